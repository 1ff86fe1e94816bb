#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

std::string address(const Variant& range) {
    return utf8(range.get(names::Address));
}

}  // namespace

TEST_CASE("addresses in both styles") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    const Object range = sheet.get(names::Range, u"C5:D6,F7");
    const auto of = [&](auto... arguments) { return utf8(range.get(names::Address, arguments...)); };
    CHECK(of() == "$C$5:$D$6,$F$7");
    CHECK(of(false, true) == "$C5:$D6,$F7");
    CHECK(of(named(names::ColumnAbsolute, false)) == "C$5:D$6,F$7");
    CHECK(of(named(names::RowAbsolute, false), named(names::ColumnAbsolute, false)) == "C5:D6,F7");
    CHECK(of(true, true, -4150) == "R5C3:R6C4,R7C6");
    CHECK(of(false, false, -4150, false, sheet.get(names::Range, u"C6")) == "R[-1]C:RC[1],R[1]C[3]");
    CHECK(of(false, false, -4150) == "R[4]C[2]:R[5]C[3],R[6]C[5]");
    CHECK(of(false, false, -4150, false, sheet.get(names::Range, u"C5")) == "RC:R[1]C[1],R[2]C[3]");
    CHECK(error_of([&] { of(true, true, 5); }) == 1004);

    book.get(names::Worksheets, 1).put(names::Name, u"my sheet");
    const std::string name = utf8(book.get(names::Name));
    CHECK(of(true, true, 1, true) == "'[" + name + "]my sheet'!$C$5:$D$6,$F$7");
    CHECK(utf8(range.get(names::AddressLocal, false, false)) == "C5:D6,F7");

    CHECK(utf8(sheet.get(names::Range, u"B:C").get(names::Address, true, true, -4150)) == "C2:C3");
    CHECK(utf8(sheet.get(names::Range, u"4:4").get(names::Address, true, true, -4150)) == "R4");
    CHECK(utf8(sheet.get(names::Cells).get(names::Address, true, true, -4150)) == "R1:R1048576");
    CHECK(address(sheet.get(names::Range, u"A1:A1048576")) == "$A:$A");
    CHECK(utf8(sheet.get(names::Range, u"B:B").get(names::Address, true, false)) == "B:B");
    CHECK(utf8(sheet.get(names::Range, u"3:3").get(names::Address, false)) == "3:3");
}

TEST_CASE("parts of a range of several areas") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object range = sheet.get(names::Range, u"B2:C5,E9,G1:G3");
    CHECK(range.get(names::Count) == 12);
    CHECK(range.get(names::Cells).get(names::Count) == 12);
    // Rows and columns are those of the first area.
    CHECK(range.get(names::Rows).get(names::Count) == 4);
    CHECK(range.get(names::Columns).get(names::Count) == 2);
    CHECK(address(range.get(names::Rows)) == "$B$2:$C$5");
    CHECK(address(range.get(names::EntireRow)) == "$2:$5,$9:$9,$1:$3");
    CHECK(address(range.get(names::EntireColumn)) == "$B:$C,$E:$E,$G:$G");
    CHECK(range.get(names::EntireColumn).get(names::Count) == 4);
    CHECK(range.get(names::Areas).get(names::Parent).get(names::Count) == 12);
    std::string areas;
    for (const Variant& area : range.get(names::Areas).object().items()) areas += address(area) + " ";
    CHECK(areas == "$B$2:$C$5 $E$9 $G$1:$G$3 ");
    std::string rows;
    for (const Variant& row : sheet.get(names::Range, u"B2:C3").get(names::Rows).object().items()) {
        rows += address(row) + " ";
        CHECK(row.get(names::Count) == 1);
    }
    CHECK(rows == "$B$2:$C$2 $B$3:$C$3 ");
}

TEST_CASE("values and looks of a range of several areas") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object range = sheet.get(names::Range, u"B2:C3,E9");
    range.put(names::Value, 7.0);
    CHECK(sheet.get(names::Range, u"C3").get(names::Value) == 7.0);
    CHECK(sheet.get(names::Range, u"E9").get(names::Value) == 7.0);
    CHECK(range.get(names::Value).array()->size() == 4);
    range.put(names::Formula, u"=ROW()");
    CHECK(sheet.get(names::Range, u"E9").get(names::Value) == 9.0);
    CHECK(sheet.get(names::Range, u"B3").get(names::Value) == 3.0);
    range.get(names::Interior).put(names::Color, 255);
    range.get(names::Font).put(names::Bold, true);
    CHECK(sheet.get(names::Range, u"E9").get(names::Interior).get(names::Color) == 255);
    CHECK(sheet.get(names::Range, u"C2").get(names::Font).get(names::Bold) == true);
    CHECK(sheet.get(names::Range, u"D2").get(names::Interior).get(names::Color) == 16777215);
    CHECK(range.get(names::Interior).get(names::Color) == 255);
    CHECK(sheet.get(names::Range, u"B2:C3,E8").get(names::Interior).get(names::Color) == Variant(Null{}));
    range.put(names::NumberFormat, u"0.00");
    CHECK(sheet.get(names::Range, u"E9").get(names::NumberFormat) == u"0.00");
    range.put(names::ColumnWidth, 5.0);
    range.put(names::RowHeight, 33.0);
    CHECK(sheet.get(names::Range, u"E1").get(names::ColumnWidth) == 5.0);
    CHECK(sheet.get(names::Range, u"C1").get(names::ColumnWidth) == 5.0);
    CHECK(sheet.get(names::Range, u"A9").get(names::RowHeight) == 33.0);
    CHECK(range.get(names::RowHeight) == 33.0);
    CHECK(sheet.get(names::Range, u"B2,E8").get(names::RowHeight) == Variant(Null{}));
}

TEST_CASE("items by number, letter and pair") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object range = sheet.get(names::Range, u"C3:E6");
    CHECK(address(range.get(names::Item, 2)) == "$D$3");
    CHECK(address(range.get(names::Item, 2, u"C")) == "$E$4");
    CHECK(address(range.get(names::Cells, 0, 0)) == "$B$2");
    CHECK(address(range.get(names::Columns, u"B:C")) == "$D$3:$E$6");
    CHECK(address(range.get(names::Columns, u"c")) == "$E$3:$E$6");
    CHECK(address(range.get(names::Rows, u"2:3")) == "$C$4:$E$5");
    CHECK(address(range.get(names::Rows, 9)) == "$C$11:$E$11");
    CHECK(error_of([&] { range.get(names::Columns, u"1"); }) == 1004);
    CHECK(error_of([&] { range.get(names::Rows, u"B"); }) == 1004);
    CHECK(error_of([&] { range.get(names::Cells, -3, 1); }) == 1004);
}

}  // namespace qor::calc::tests
