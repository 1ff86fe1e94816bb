#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// A sheet "Data" and one "Other", and names of several kinds.
Object book_with_names(const Calc& calc) {
    Object book = calc.add_book();
    const Object sheets = book.get(names::Worksheets);
    sheets.get(names::Item, 1).put(names::Name, u"Data");
    sheets.call(names::Add, Missing{}, sheets.get(names::Item, 1)).put(names::Name, u"Other");
    const Object all = book.get(names::Names);
    all.call(names::Add, u"Rates", u"=Data!$A$1:$A$3");
    all.call(names::Add, u"Far", u"=Other!$B$2");
    all.call(names::Add, u"Tax", u"=0.25");
    all.call(names::Add, u"Sum_Of_Rates", u"=SUM(Data!$A$1:$A$3)");
    all.call(names::Add, u"Data!Own", u"=Data!$C$1");
    all.call(names::Add, u"AB", u"=Data!$C$2");
    Array numbers = Array::table(3, 1);
    for (std::size_t i = 0; i < 3; ++i) numbers.at(i) = static_cast<double>(i + 1);
    sheets.get(names::Item, u"Data").get(names::Range, u"A1:A3").put(names::Value, numbers);
    return book;
}

}  // namespace

TEST_CASE("formulas entered again in transition take out the names") {
    const Calc calc;
    const Object book = book_with_names(calc);
    const Object sheet = book.get(names::Worksheets, u"Data");
    struct Row {
        const char16_t* formula;
        const char16_t* without_names;
    };
    const Row rows[] = {{u"=SUM(Rates)*2", u"=SUM($A$1:$A$3)*2"},
                        {u"=Far+1", u"=Other!$B$2+1"},
                        {u"=A1*Tax", u"=A1*0.25"},
                        {u"=Sum_Of_Rates/3", u"=Sum_Of_Rates/3"},
                        {u"=Own", u"=$C$1"},
                        {u"=\"Rates\"&A1", u"=\"Rates\"&A1"},
                        {u"=SUM($AB$1,AB:AB)", u"=SUM($AB$1,AB:AB)"},
                        {u"=AB*2", u"=$C$2*2"},
                        {u"=A1+1", u"=A1+1"}};
    const Object cell = sheet.get(names::Range, u"E5");
    for (const Row& row : rows) {
        CAPTURE(utf8(Variant(row.formula)));
        cell.put(names::Formula, row.formula);
        CHECK(cell.get(names::Formula) == row.formula);
        const Variant before = cell.get(names::Value);
        sheet.put(names::TransitionFormEntry, true);
        cell.put(names::Formula, cell.get(names::Formula));
        sheet.put(names::TransitionFormEntry, false);
        CHECK(cell.get(names::Formula) == row.without_names);
        CHECK(cell.get(names::Value) == before);
    }
}

TEST_CASE("array formulas and arrays of formulas lose their names in transition too") {
    const Calc calc;
    const Object book = book_with_names(calc);
    const Object sheet = book.get(names::Worksheets, u"Data");
    const Object array = sheet.get(names::Range, u"E1:E3");
    array.put(names::FormulaArray, u"=Rates*10");
    CHECK(array.get(names::FormulaArray) == u"=Rates*10");
    sheet.put(names::TransitionFormEntry, true);
    array.put(names::FormulaArray, array.get(names::FormulaArray));
    CHECK(array.get(names::FormulaArray) == u"=$A$1:$A$3*10");
    CHECK(sheet.get(names::Range, u"E3").get(names::Value) == 30.0);
    Array formulas = Array::table(1, 2);
    formulas.at(0) = u"=MAX(Rates)";
    formulas.at(1) = u"Rates";
    sheet.get(names::Range, u"G1:H1").put(names::Formula, formulas);
    CHECK(sheet.get(names::Range, u"G1").get(names::Formula) == u"=MAX($A$1:$A$3)");
    CHECK(sheet.get(names::Range, u"H1").get(names::Formula) == u"Rates");
    const Object other = book.get(names::Worksheets, u"Other").get(names::Range, u"A1");
    other.put(names::Formula, u"=SUM(Rates)");
    CHECK(other.get(names::Formula) == u"=SUM(Rates)");
    book.get(names::Worksheets, u"Other").put(names::TransitionFormEntry, true);
    other.put(names::Formula, u"=SUM(Rates)");
    CHECK(other.get(names::Formula) == u"=SUM(Data!$A$1:$A$3)");
}

}  // namespace qor::calc::tests
