#include "hosts/calc/uno/ref.hpp"
#include "hosts/calc/uno/running_command.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// Puts the value or formula into a cell.
void enter(const Object& sheet, const char16_t* cell, const Variant& value) {
    sheet.get(names::Range, cell).put(names::Value, value);
}
Variant value(const Object& sheet, const char16_t* cell) {
    return sheet.get(names::Range, cell).get(names::Value);
}
Variant formula(const Object& sheet, const char16_t* cell) {
    return sheet.get(names::Range, cell).get(names::Formula);
}

}  // namespace

TEST_CASE("values come in the types of Excel") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    enter(sheet, u"A1", 12.5);
    enter(sheet, u"A2", u"abc");
    enter(sheet, u"A3", true);
    enter(sheet, u"A4", Date{43831.5});
    enter(sheet, u"A5", Currency{55000});
    enter(sheet, u"A6", u"=1/0");
    enter(sheet, u"A7", u"=\"\"");
    enter(sheet, u"A8", 7);
    CHECK(value(sheet, u"A1") == 12.5);
    CHECK(value(sheet, u"A2") == u"abc");
    CHECK(value(sheet, u"A3") == true);
    CHECK(value(sheet, u"A4") == Variant(Date{43831.5}));
    CHECK(value(sheet, u"A5") == Variant(Currency{55000}));
    CHECK(value(sheet, u"A6") == Variant(ErrorValue{2007}));
    CHECK(value(sheet, u"A7") == u"");
    CHECK(value(sheet, u"A8") == 7.0);
    CHECK(value(sheet, u"A9") == Variant(Empty{}));
    CHECK(sheet.get(names::Range, u"A4").get(names::Value2) == 43831.5);
    CHECK(sheet.get(names::Range, u"A5").get(names::Value2) == 5.5);
    CHECK(sheet.get(names::Range, u"A3").get(names::Value2) == true);

    const Variant table = sheet.get(names::Range, u"A6:B7").get(names::Value);
    REQUIRE(table.array());
    CHECK(table.array()->lower_bound() == 1);
    CHECK(table.array()->dimensions() == 2);
    CHECK(table.array()->at(0, 0) == Variant(ErrorValue{2007}));
    CHECK(table.array()->at(0, 1) == Variant(Empty{}));
    CHECK(table.array()->at(1, 0) == u"");
}

TEST_CASE("every error value has its code") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    struct Row {
        const char16_t* formula;
        std::int32_t code;
    };
    for (const Row& row : {Row{u"=#NULL!+1", 2000}, Row{u"=1/0", 2007}, Row{u"=1+\"a\"", 2015}, Row{u"=#REF!+1", 2023},
                           Row{u"=nosuchname", 2029}, Row{u"=SQRT(-1)", 2036}, Row{u"=NA()", 2042}}) {
        enter(sheet, u"A1", row.formula);
        CHECK(value(sheet, u"A1") == Variant(ErrorValue{row.code}));
    }
    enter(sheet, u"A1", ErrorValue{2042});
    CHECK(value(sheet, u"A1") == Variant(ErrorValue{2042}));
    CHECK(formula(sheet, u"A1") == u"#N/A");
    CHECK(sheet.get(names::Range, u"A1").get(names::HasFormula) == false);
}

TEST_CASE("many errors of several kinds are told apart") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1:A40").put(names::Formula, u"=1/0");
    sheet.get(names::Range, u"B1:B40").put(names::Formula, u"=NA()");
    sheet.get(names::Range, u"C1:C40").put(names::Formula, u"=1+\"x\"");
    const std::uint64_t before = host_calls;
    const Variant table = sheet.get(names::Range, u"A1:C40").get(names::Value);
    CHECK(host_calls - before < 120);
    for (std::size_t row = 0; row < 40; ++row) {
        CHECK(table.array()->at(row, 0) == Variant(ErrorValue{2007}));
        CHECK(table.array()->at(row, 1) == Variant(ErrorValue{2042}));
        CHECK(table.array()->at(row, 2) == Variant(ErrorValue{2015}));
    }
}

TEST_CASE("what was entered is read back as text") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    struct Row {
        Variant entered;
        const char16_t* read;
    };
    for (const Row& row :
         {Row{0.1, u"0.1"}, Row{1e20, u"100000000000000000000"}, Row{1e21, u"1E+21"}, Row{-2.5e-7, u"-0.00000025"},
          Row{1e-12, u"1E-12"}, Row{1234567.25, u"1234567.25"}, Row{true, u"TRUE"}, Row{Date{43831}, u"43831"},
          Row{u"abc", u"abc"}, Row{u"'007", u"007"}, Row{u"'=text", u"=text"}, Row{Empty{}, u""}}) {
        enter(sheet, u"A1", row.entered);
        CHECK(formula(sheet, u"A1") == row.read);
        CHECK(sheet.get(names::Range, u"A1").get(names::HasFormula) == false);
    }
    CHECK(formula(sheet, u"B9") == u"");
}

TEST_CASE("text is entered as if it were typed") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    struct Row {
        const char16_t* typed;
        Variant value;
    };
    for (const Row& row :
         {Row{u"12.5", 12.5}, Row{u"50%", 0.5}, Row{u"true", true}, Row{u"1/2/2020", Date{43832}},
          Row{u"Sheet1", u"Sheet1"}, Row{u"'12", u"12"}, Row{u"#N/A", ErrorValue{2042}}, Row{u"5 apples", u"5 apples"},
          Row{u"$5.50", Currency{55000}}, Row{u"plain", u"plain"}, Row{u"'=1+1", u"=1+1"}}) {
        const Object cell = calc.add_sheet().get(names::Range, u"A1");
        cell.put(names::Value, row.typed);
        CHECK(cell.get(names::Value) == row.value);
    }
}

TEST_CASE("a cell that showed a Boolean shows a number again") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    enter(sheet, u"A1", true);
    enter(sheet, u"A1", 5.0);
    CHECK(value(sheet, u"A1") == 5.0);
    enter(sheet, u"A2", u"=1>0");
    CHECK(value(sheet, u"A2") == true);
    enter(sheet, u"A2", 1.0);
    CHECK(value(sheet, u"A2") == 1.0);
}

TEST_CASE("values survive files of three kinds") {
    for (const char* file : {"values.xlsx", "values.xls", "values.ods"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = calc.add_book();
        const Object sheet = book.get(names::Worksheets, 1);
        enter(sheet, u"A1", 12.5);
        enter(sheet, u"A2", u"abc");
        enter(sheet, u"A3", true);
        enter(sheet, u"A4", Date{43831});
        enter(sheet, u"A5", u"=1/0");
        enter(sheet, u"A6", u"'=text");
        enter(sheet, u"A7", u"=A1*2");
        const Object again = calc.reopened(book, file).get(names::Worksheets, 1);
        CHECK(value(again, u"A1") == 12.5);
        CHECK(value(again, u"A2") == u"abc");
        CHECK(value(again, u"A3") == true);
        CHECK(formula(again, u"A3") == u"TRUE");
        CHECK(again.get(names::Range, u"A3").get(names::HasFormula) == false);
        CHECK(value(again, u"A4") == Variant(Date{43831}));
        CHECK(value(again, u"A5") == Variant(ErrorValue{2007}));
        CHECK(formula(again, u"A5") == u"=1/0");
        CHECK(value(again, u"A6") == u"=text");
        CHECK(formula(again, u"A6") == u"=text");
        CHECK(again.get(names::Range, u"A6").get(names::HasFormula) == false);
        CHECK(value(again, u"A7") == 25.0);
        CHECK(formula(again, u"A7") == u"=A1*2");
        CHECK(value(again, u"A8") == Variant(Empty{}));
    }
}

TEST_CASE("a cell by itself reads as it does in an array") {
    const Calc calc;
    const Object book = calc.add_book();
    Object sheet = book.get(names::Worksheets, 1);
    std::int32_t row = 0;
    for (const Variant& entered : {Variant(1.0),
                                   Variant(0.0),
                                   Variant(true),
                                   Variant(Date{1.0}),
                                   Variant(Currency{10000}),
                                   Variant(u"text"),
                                   Variant(u"'1"),
                                   Variant(u"TRUE"),
                                   Variant(ErrorValue{2042}),
                                   Variant(u"=1=1"),
                                   Variant(u"=2-1"),
                                   Variant(u"=\"\""),
                                   Variant(u"=\"x\""),
                                   Variant(u"=1/0"),
                                   Variant(u"=TRUE"),
                                   Variant(u"=DATE(2020,1,1)"),
                                   Variant(u"=A1"),
                                   Variant(u"=A50"),
                                   Variant(u"=NOT(A1)"),
                                   Variant(u"=NA()"),
                                   Variant(u"=A3")}) {
        sheet.get(names::Cells, ++row, 1).put(names::Value, entered);
    }
    sheet.get(names::Range, u"A22:A23").put(names::FormulaArray, u"=A1:A2*2");
    sheet.get(names::Range, u"A24").put(names::Formula, u"=5-4");
    sheet.get(names::Range, u"A24").put(names::NumberFormat, u"m/d/yyyy");
    for (const char* file : {"", "single.xlsx", "single.xls", "single.ods"}) {
        CAPTURE(file);
        if (*file) sheet = calc.reopened(sheet.get(names::Parent), file).get(names::Worksheets, 1);
        for (const MemberName& member : {names::Value, names::Value2, names::Formula}) {
            const Variant together = sheet.get(names::Range, u"A1:A25").get(member);
            for (std::int32_t place = 1; place <= 25; ++place) {
                CAPTURE(place);
                CHECK(sheet.get(names::Cells, place, 1).get(member) ==
                      together.array()->at(static_cast<std::size_t>(place - 1)));
            }
        }
    }
    const RunningCommand command;
    const std::uint64_t before_all = host_calls;
    for (std::int32_t place = 1; place <= 100; ++place) {
        CHECK(sheet.get(names::Cells, place, 2).get(names::Value2) == Variant(Empty{}));
    }
    CHECK(host_calls - before_all <= 205);  // the cell and what it holds, for each
    const Object formula = sheet.get(names::Range, u"A11");
    const std::uint64_t before = host_calls;
    CHECK(formula.get(names::Value2) == 1.0);
    CHECK(host_calls - before <= 10);
}

TEST_CASE("reading two hundred thousand cells takes a few calls") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    Array table = Array::table(20000, 10);
    for (std::size_t i = 0; i < table.size(); ++i) {
        table.at(i) = i % 3 == 0 ? Variant(static_cast<double>(i)) : i % 3 == 1 ? Variant(u"text") : Variant(Empty{});
    }
    const Object range = sheet.get(names::Range, u"A1:J20000");
    range.put(names::Value, table);
    std::uint64_t before = host_calls;
    const Variant values = range.get(names::Value);
    CHECK(host_calls - before < 20);
    before = host_calls;
    const Variant formulas = range.get(names::Formula);
    CHECK(host_calls - before < 20);
    CHECK(values.array()->at(19999, 9) == u"text");
    CHECK(values.array()->at(19999, 8) == 199998.0);
    CHECK(values.array()->at(19999, 7) == Variant(Empty{}));
    CHECK(formulas.array()->at(0, 3) == u"3");
    CHECK(formulas.array()->at(0, 2) == u"");
}

TEST_CASE("arrays go in from the corner and are repeated or filled up") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1:B3").put(names::Value, Array::list({1.0, u"x"}));
    CHECK(value(sheet, u"A3") == 1.0);
    CHECK(value(sheet, u"B3") == u"x");
    Array square = Array::table(2, 2);
    square.at(0, 0) = 1.0;
    square.at(0, 1) = u"=A11+1";
    square.at(1, 0) = true;
    square.at(1, 1) = Date{2.0};
    sheet.get(names::Range, u"A11:C12").put(names::Value, square);
    CHECK(value(sheet, u"A11") == 1.0);
    CHECK(value(sheet, u"B11") == 2.0);
    CHECK(value(sheet, u"C11") == Variant(ErrorValue{2042}));
    CHECK(value(sheet, u"A12") == true);
    CHECK(value(sheet, u"B12") == Variant(Date{2.0}));
    sheet.get(names::Range, u"E1:E2,G1").put(names::Value, 3.0);
    CHECK(value(sheet, u"E2") == 3.0);
    CHECK(value(sheet, u"G1") == 3.0);
    CHECK(value(sheet, u"F1") == Variant(Empty{}));
    sheet.get(names::Range, u"E1:E2,G1").call(MemberName(u"ClearContents"));
    CHECK(value(sheet, u"G1") == Variant(Empty{}));
    CHECK(value(sheet, u"E1") == Variant(Empty{}));
}

TEST_CASE("a cell that went back to General shows a date again") {
    const Calc calc;
    const Object cell = calc.add_sheet().get(names::Range, u"A1");
    cell.put(names::Value, Date{45000});
    cell.put(names::NumberFormat, u"General");
    CHECK(cell.get(names::Value) == 45000.0);
    CHECK(cell.get(names::NumberFormat) == u"General");
    cell.put(names::Value, Date{45001});
    CHECK(cell.get(names::Value) == Variant(Date{45001}));
    CHECK(cell.get(names::NumberFormat) == u"m/d/yyyy");
}

}  // namespace qor::calc::tests
