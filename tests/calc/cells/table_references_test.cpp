#include <com/sun/star/sheet/XDatabaseRanges.hpp>

#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/uno/property.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// A table "Sales" in A1:B4 of the first sheet, with the columns Year and Net income.
Object book_with_table(const Calc& calc) {
    Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    sheet.get(names::Range, u"A1").put(names::Value, u"Year");
    sheet.get(names::Range, u"B1").put(names::Value, u"Net income");
    sheet.get(names::Range, u"A2:A4").put(names::Formula, u"=2000+ROW()");
    sheet.get(names::Range, u"B2:B4").put(names::Formula, u"=ROW()*10");
    const Ref document{Host(office_context()).documents().back()};
    const Ref<css::sheet::XDatabaseRanges> tables(
        get_property<css::uno::Reference<css::sheet::XDatabaseRanges>>(document, "DatabaseRanges"));
    tables->addNewByName("Sales", {0, 0, 0, 1, 3});
    return book;
}

}  // namespace

TEST_CASE("formulas with the columns of a table") {
    struct Row {
        const char16_t* formula;
        const char16_t* in_cells;  // an ods file brings the cells in its place
        double value;
    };
    const Row rows[] = {{u"=SUM(Sales[Net income])", u"=SUM(Sheet1!$B$2:$B$4)", 90.0},
                        {u"=SUM(Sales[[#Data],[Net income]])", u"=SUM(Sheet1!$B$2:$B$4)", 90.0},
                        {u"=COUNTA(Sales[#Headers])", u"=COUNTA(Sheet1!$A$1:$B$1)", 2.0},
                        {u"=ROWS(Sales[#All])", u"=ROWS(Sheet1!$A$1:$B$4)", 4.0},
                        {u"=MAX(Sales[[Year]:[Net income]])", u"=MAX(Sheet1!$A$2:$B$4)", 2004.0}};
    for (const std::string file : {"", "table.xlsx", "table.ods"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = book_with_table(calc);
        Object sheet = book.get(names::Worksheets, 1);
        std::int32_t row = 5;
        for (const Row& each : rows) sheet.get(names::Cells, ++row, 5).put(names::Formula, each.formula);
        if (!file.empty()) sheet = calc.reopened(book, file.c_str()).get(names::Worksheets, 1);
        row = 5;
        for (const Row& each : rows) {
            const Object cell = sheet.get(names::Cells, ++row, 5);
            CAPTURE(row);
            CHECK(cell.get(names::Value) == each.value);
            CHECK(cell.get(names::Formula) == (file == "table.ods" ? each.in_cells : each.formula));
        }
    }
}

}  // namespace qor::calc::tests
