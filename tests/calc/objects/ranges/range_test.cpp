#include "hosts/calc/uno/ref.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("ranges are found by text, corners and numbers") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    const auto address = [&](const Variant& range) { return utf8(range.get(names::Address)); };
    CHECK(address(sheet.get(names::Range, u"a1:b2")) == "$A$1:$B$2");
    CHECK(address(sheet.get(names::Range, u"B2:A1")) == "$A$1:$B$2");
    CHECK(address(sheet.get(names::Range, u"$C$4")) == "$C$4");
    CHECK(address(sheet.get(names::Range, u"A1:B9,D2")) == "$A$1:$B$9,$D$2");
    CHECK(address(sheet.get(names::Range, u"A:B")) == "$A:$B");
    CHECK(address(sheet.get(names::Range, u"2:3")) == "$2:$3");
    CHECK(address(sheet.get(names::Range, u"A1", u"C3")) == "$A$1:$C$3");
    CHECK(address(sheet.get(names::Range, sheet.get(names::Cells, 2, 2), sheet.get(names::Cells, 4, 3))) ==
          "$B$2:$C$4");
    CHECK(address(sheet.get(names::Cells, 3, 4)) == "$D$3");
    CHECK(address(sheet.get(names::Cells, 3, u"D")) == "$D$3");
    CHECK(address(sheet.get(names::Rows, 3)) == "$3:$3");
    CHECK(address(sheet.get(names::Rows, u"3:5")) == "$3:$5");
    CHECK(address(sheet.get(names::Columns, u"B")) == "$B:$B");
    CHECK(address(sheet.get(names::Columns, 2)) == "$B:$B");
    CHECK(address(sheet.get(names::Cells)) == "$1:$1048576");
    CHECK(address(calc.application.get(names::Range, u"Sheet1!C3")) == "$C$3");
    CHECK(error_of([&] { sheet.get(names::Range, u"no such name"); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Range, u"Nowhere!A1"); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Cells, 0, 1); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Cells).get(names::Count); }) == 6);

    const Object range = sheet.get(names::Range, u"B2:D5");
    CHECK(address(range.get(names::Range, u"B2")) == "$C$3");
    CHECK(address(range.get(names::Cells, 1, 1)) == "$B$2");
    CHECK(address(range.get(names::Cells, 4)) == "$B$3");
    CHECK(address(range.get(names::Item, 9, 9)) == "$J$10");
    CHECK(address(range.get(names::Rows, 2)) == "$B$3:$D$3");
    CHECK(address(range.get(names::Columns, 3)) == "$D$2:$D$5");
    CHECK(range.get(names::Rows).get(names::Count) == 4);
    CHECK(range.get(names::Columns).get(names::Count) == 3);
    CHECK(range.get(names::Row) == 2);
    CHECK(range.get(names::Column) == 2);
    CHECK(range.get(names::Count) == 12);
    CHECK(utf8(range.get(names::Address, false, false)) == "B2:D5");
    CHECK(utf8(range.get(names::Address, true, false)) == "B$2:D$5");
    CHECK(range.items().size() == 12);
    CHECK(utf8(range.items()[4].get(names::Address)) == "$C$3");
    CHECK(range.get(names::Rows).object().items().size() == 4);
    CHECK(range.get(names::Parent).object().is(sheet));
}

TEST_CASE("areas") {
    const Calc calc;
    const Object range = calc.add_sheet().get(names::Range, u"A1:B2,D4");
    CHECK(range.get(names::Areas).get(names::Count) == 2);
    CHECK(range.get(names::Areas, 2).get(names::Address) == u"$D$4");
    CHECK(range.get(names::Count) == 5);
    CHECK(error_of([&] { range.get(names::Areas, 3); }) == 9);
    CHECK(range.items().size() == 5);
}

TEST_CASE("selection and the active cell") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    sheet.get(names::Range, u"C5:D6").call(names::Select);
    CHECK(calc.application.get(names::Selection).get(names::Address) == u"$C$5:$D$6");
    CHECK(calc.application.get(names::ActiveCell).get(names::Address) == u"$C$5");
    sheet.get(names::Range, u"A1:B9,D2").call(names::Select);
    CHECK(calc.application.get(names::Selection).get(names::Address) == u"$A$1:$B$9,$D$2");
    const Object other = book.get(names::Worksheets).call(names::Add);
    CHECK(calc.application.get(names::ActiveSheet).object().is(other));
    sheet.get(names::Range, u"B2").call(names::Select);
    CHECK(calc.application.get(names::ActiveSheet).object().is(sheet));
    CHECK(calc.application.get(names::ActiveCell).get(names::Address) == u"$B$2");
}

TEST_CASE("how cells look") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object cell = sheet.get(names::Range, u"B2");
    const Object font = cell.get(names::Font);
    CHECK(font.get(names::Bold) == false);
    font.put(names::Bold, true);
    font.put(names::Italic, true);
    font.put(names::Size, 16);
    font.put(names::Color, 255);
    CHECK(font.get(names::Bold) == true);
    CHECK(font.get(names::Italic) == true);
    CHECK(font.get(names::Size) == 16.0);
    CHECK(font.get(names::Color) == 255);
    CHECK(sheet.get(names::Range, u"B2:C2").get(names::Font).get(names::Bold) == Variant(Null{}));

    CHECK(cell.get(names::HorizontalAlignment) == 1);
    cell.put(names::HorizontalAlignment, -4131);
    CHECK(cell.get(names::HorizontalAlignment) == -4131);

    CHECK(cell.get(names::Interior).get(names::Color) == 16777215);
    cell.get(names::Interior).put(names::Color, 65535);
    CHECK(cell.get(names::Interior).get(names::Color) == 65535);
    CHECK(cell.get(names::Interior).get(names::ColorIndex) == 6);

    const Object bottom = cell.get(names::Borders, 9);
    CHECK(bottom.get(names::LineStyle) == -4142);
    bottom.put(names::LineStyle, 1);
    bottom.put(names::Weight, 2);
    bottom.put(names::ColorIndex, -4105);
    CHECK(bottom.get(names::LineStyle) == 1);
    CHECK(bottom.get(names::Weight) == 2);
    CHECK(bottom.get(names::ColorIndex) == -4105);
    CHECK(cell.get(names::Borders, 8).get(names::LineStyle) == -4142);
    bottom.put(names::Weight, 4);
    CHECK(bottom.get(names::Weight) == 4);

    CHECK(cell.get(names::NumberFormat) == u"General");
    cell.put(names::NumberFormat, u"0.00%");
    CHECK(cell.get(names::NumberFormat) == u"0.00%");
    cell.put(names::NumberFormat, u"mm/dd/yyyy");
    CHECK(cell.get(names::NumberFormat) == u"mm/dd/yyyy");
    for (const char16_t* format :
         {u"[h]:mm", u"[Color10]0", u"[Red]0.0;[Blue]-0.0", u"[>100]0;0.0", u"\"x\"0", u"$#,##0.00"}) {
        cell.put(names::NumberFormat, format);
        CHECK(cell.get(names::NumberFormat) == format);
    }
    CHECK(error_of([&] { cell.put(names::NumberFormat, u"0["); }) == 1004);
    cell.put(names::NumberFormat, u"0.0");
    cell.put(names::Value, 2.25);
    CHECK(cell.get(names::Text) == u"2.3");
    cell.put(names::WrapText, true);
    CHECK(cell.get(names::WrapText) == true);
    cell.put(names::RowHeight, 30.0);
    CHECK(cell.get(names::RowHeight) == 30.0);
    cell.put(names::ColumnWidth, 20.0);
    CHECK(cell.get(names::ColumnWidth) == 20.0);
}

TEST_CASE("an array of number formats goes in at once") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    Array formats = Array::table(20000, 2);
    for (std::size_t row = 0; row < 20000; ++row) {
        formats.at(row, 0) = u"0.00";
        formats.at(row, 1) = row < 10000 ? u"0%" : u"@";
    }
    const std::uint64_t before = host_calls;
    sheet.get(names::Range, u"A1:B20000").put(names::NumberFormat, formats);
    CHECK(host_calls - before < 40);
    const auto format = [&](const char16_t* address) {
        return sheet.get(names::Range, address).get(names::NumberFormat);
    };
    CHECK(format(u"A1:A20000") == u"0.00");
    CHECK(format(u"B1:B10000") == u"0%");
    CHECK(format(u"B10001:B20000") == u"@");
    CHECK(format(u"A1:B1") == Variant(Null{}));
    CHECK(format(u"C1:C20001") == u"General");
    sheet.get(names::Range, u"C1:D3").put(names::NumberFormat, Array::list({u"0.0", u"m/d/yyyy"}));
    CHECK(format(u"C1:C3") == u"0.0");
    CHECK(format(u"D1:D3") == u"m/d/yyyy");
    CHECK(error_of([&] {
              sheet.get(names::Range, u"C1:D1").put(names::NumberFormat, Array::list({u"0", u"0["}));
          }) == 1004);
    CHECK(format(u"C1") == u"0.0");
}

TEST_CASE("lines across cells") {
    for (const char* file : {"", "across.xlsx", "across.xls", "across.ods"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = calc.add_book();
        Object cells = book.get(names::Worksheets, 1).get(names::Range, u"B2:C3");
        CHECK(cells.get(names::Borders, 5).get(names::LineStyle) == -4142);
        cells.get(names::Borders, 5).put(names::LineStyle, 1);
        cells.get(names::Borders, 5).put(names::Color, 255);
        cells.get(names::Borders, 6).put(names::LineStyle, 1);
        cells.get(names::Borders, 6).put(names::LineStyle, -4142);
        if (*file) cells = calc.reopened(book, file).get(names::Worksheets, 1).get(names::Range, u"B2:C3");
        CHECK(cells.get(names::Borders, 5).get(names::LineStyle) == 1);
        CHECK(cells.get(names::Borders, 5).get(names::Color) == 255);
        CHECK(cells.get(names::Borders, 5).get(names::Weight) == 2);
        CHECK(cells.get(names::Borders, 6).get(names::LineStyle) == -4142);
        CHECK(cells.get(names::Borders, 9).get(names::LineStyle) == -4142);
        cells.get(names::Cells, 1, 1).get(names::Borders, 5).put(names::LineStyle, -4142);
        CHECK(cells.get(names::Borders, 5).get(names::LineStyle) == Variant(Null{}));
        CHECK(cells.get(names::Cells, 2, 2).get(names::Borders, 5).get(names::LineStyle) == 1);
    }
}

}  // namespace qor::calc::tests
