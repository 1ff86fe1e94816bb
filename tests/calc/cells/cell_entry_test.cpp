#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

Object text_cell(const Object& sheet, const char16_t* address) {
    Object range = sheet.get(names::Range, address);
    range.put(names::NumberFormat, u"@");
    return range;
}

}  // namespace

TEST_CASE("a cell of text makes a text of what is entered") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object cell = text_cell(sheet, u"A1");
    struct Row {
        Variant entered;
        const char16_t* held;
    };
    for (const Row& row : {Row{5.0, u"5"}, Row{7, u"7"}, Row{0.125, u"0.125"}, Row{1e21, u"1E+21"}, Row{u"12", u"12"},
                           Row{u"007", u"007"}, Row{u"=1+1", u"=1+1"}, Row{u"=(", u"=("}, Row{u"#N/A", u"#N/A"},
                           Row{u"1/2/2020", u"1/2/2020"}, Row{u"'05", u"05"}, Row{u"abc", u"abc"},
                           Row{Currency{55000}, u"5.5"}, Row{true, u"TRUE"}}) {
        CAPTURE(row.entered);
        cell.put(names::Value, row.entered);
        CHECK(cell.get(names::Value) == row.held);
        CHECK(cell.get(names::Formula) == row.held);
        CHECK(cell.get(names::HasFormula) == false);
        CHECK(cell.get(names::NumberFormat) == u"@");
    }
    cell.put(names::Formula, u"=A2");
    CHECK(cell.get(names::Value) == u"=A2");
    cell.put(names::Value, Empty{});
    CHECK(cell.get(names::Value) == Variant(Empty{}));
    CHECK(cell.get(names::NumberFormat) == u"@");
}

TEST_CASE("of an array only what goes into cells of text becomes text") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    text_cell(sheet, u"B1:B2");
    Array table = Array::table(2, 3);
    table.at(0, 0) = 1.0;
    table.at(0, 1) = 2.0;
    table.at(0, 2) = u"=A1*10";
    table.at(1, 0) = u"3";
    table.at(1, 1) = u"=A1*10";
    table.at(1, 2) = u"4";
    const Object range = sheet.get(names::Range, u"A1:C2");
    range.put(names::Value, table);
    const Variant held = range.get(names::Value);
    CHECK(held.array()->at(0, 0) == 1.0);
    CHECK(held.array()->at(0, 1) == u"2");
    CHECK(held.array()->at(0, 2) == 10.0);
    CHECK(held.array()->at(1, 0) == 3.0);
    CHECK(held.array()->at(1, 1) == u"=A1*10");
    CHECK(held.array()->at(1, 2) == 4.0);
    range.put(names::Value, 6.0);
    CHECK(range.get(names::Value).array()->at(1, 0) == 6.0);
    CHECK(range.get(names::Value).array()->at(1, 1) == u"6");
    range.put(names::Formula, u"=2*4");
    CHECK(range.get(names::Value).array()->at(1, 2) == 8.0);
    CHECK(range.get(names::Value).array()->at(1, 1) == 8.0);
}

TEST_CASE("a number that lay in the cell before it became one of text stays a number") {
    const Calc calc;
    const Object cell = calc.add_sheet().get(names::Range, u"A1");
    cell.put(names::Value, 5.0);
    cell.put(names::NumberFormat, u"@");
    CHECK(cell.get(names::Value) == 5.0);
    CHECK(cell.get(names::Value2) == 5.0);
}

TEST_CASE("an apostrophe makes a text and leaves the cell its format") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object cells = sheet.get(names::Range, u"A1:A2");
    sheet.get(names::Range, u"A2").put(names::NumberFormat, u"0.00");
    for (const char16_t* text : {u"'05", u"'TRUE", u"'1/2/2020", u"'=ROW()", u"'=", u"'-x", u"'@y", u"''z", u"'#N/A"}) {
        cells.put(names::Value, text);
        for (const std::int32_t row : {1, 2}) {
            const Object cell = cells.get(names::Cells, row, 1);
            CHECK(cell.get(names::Value) == std::u16string(text + 1));
            CHECK(cell.get(names::NumberFormat) == (row == 1 ? u"General" : u"0.00"));
            cell.put(names::Value, 5.0);
            CHECK(cell.get(names::Value) == 5.0);
            cell.put(names::Value, text);
            CHECK(cell.get(names::Value) == std::u16string(text + 1));
            CHECK(cell.get(names::NumberFormat) == (row == 1 ? u"General" : u"0.00"));
        }
    }
}

TEST_CASE("texts of cells of text survive files of three kinds") {
    for (const char* file : {"texts.xlsx", "texts.xls", "texts.ods"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = calc.add_book();
        const Object cells = text_cell(book.get(names::Worksheets, 1), u"A1:A2");
        cells.get(names::Cells, 1, 1).put(names::Value, 5.0);
        cells.get(names::Cells, 2, 1).put(names::Value, u"=1+1");
        const Object again = calc.reopened(book, file).get(names::Worksheets, 1);
        CHECK(again.get(names::Range, u"A1").get(names::Value) == u"5");
        CHECK(again.get(names::Range, u"A2").get(names::Value) == u"=1+1");
        CHECK(again.get(names::Range, u"A2").get(names::HasFormula) == false);
        CHECK(again.get(names::Range, u"A1").get(names::NumberFormat) == u"@");
        again.get(names::Range, u"A2").put(names::Value, 7.0);
        CHECK(again.get(names::Range, u"A2").get(names::Value) == u"7");
    }
}

}  // namespace qor::calc::tests
