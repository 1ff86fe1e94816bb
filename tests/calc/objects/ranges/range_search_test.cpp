#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

constexpr std::int32_t last_cell = 11;
constexpr std::int32_t by_rows = 1;
constexpr std::int32_t by_columns = 2;
constexpr std::int32_t next = 1;
constexpr std::int32_t previous = 2;

std::string address(const Variant& range) {
    return range.object() ? utf8(range.get(names::Address)) : "nothing";
}

// Searches behind a cell.
std::string found(const Object& range, const char16_t* what, const Object& after, std::int32_t order,
                  std::int32_t direction) {
    return address(range.call(names::Find, what, named(names::After, after), named(names::SearchOrder, order),
                              named(names::SearchDirection, direction)));
}

}  // namespace

TEST_CASE("the last cell") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const auto last = [&] { return address(sheet.get(names::Cells).call(names::SpecialCells, last_cell)); };
    CHECK(last() == "$A$1");
    sheet.get(names::Range, u"B3").put(names::Value, 1.0);
    sheet.get(names::Range, u"F2").put(names::Value, 1.0);
    CHECK(last() == "$F$3");
    sheet.get(names::Range, u"D9").get(names::Interior).put(names::Color, 255);
    CHECK(last() == "$F$9");
    CHECK(sheet.get(names::Cells).call(names::SpecialCells, last_cell).get(names::Row) == 9);
}

TEST_CASE("cells of a kind") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1").put(names::Value, 1.0);
    sheet.get(names::Range, u"A2").put(names::Value, u"text");
    sheet.get(names::Range, u"B1").put(names::Formula, u"=A1+1");
    sheet.get(names::Range, u"B3").put(names::Formula, u"=1/0");
    sheet.get(names::Range, u"A3").call(MemberName(u"AddComment"), u"note");
    const auto cells = [&](auto... arguments) {
        return address(sheet.get(names::Cells).call(names::SpecialCells, arguments...));
    };
    CHECK(cells(2) == "$A$1:$A$2");
    CHECK(cells(2, 1) == "$A$1");
    CHECK(cells(2, 2) == "$A$2");
    CHECK(cells(-4123) == "$B$1,$B$3");
    CHECK(cells(-4123, 16) == "$B$3");
    CHECK(cells(4) == "$A$3,$B$2");
    CHECK(cells(-4144) == "$A$3");
    CHECK(cells(12) == "$A$1:$B$3");
    sheet.get(names::Rows, 2).put(MemberName(u"Hidden"), true);
    CHECK(cells(12) == "$A$1:$B$1,$A$3:$B$3");
    CHECK(address(sheet.get(names::Range, u"B1:B2").call(names::SpecialCells, -4123)) == "$B$1");
    CHECK(address(sheet.get(names::Range, u"D9").call(names::SpecialCells, -4123)) == "$B$1,$B$3");
    CHECK(error_of([&] { sheet.get(names::Range, u"A1:A2").call(names::SpecialCells, -4123); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Range, u"A1").call(names::SpecialCells, 99); }) == 1004);
}

TEST_CASE("cells of a kind are looked for within the range only") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1").put(names::Value, u"text");
    sheet.get(names::Range, u"B1").put(names::Formula, u"=1/0");
    sheet.get(names::Range, u"A2").call(MemberName(u"AddComment"), u"note");
    sheet.get(names::Range, u"F9").get(names::Interior).put(names::Color, 255);
    const Object beside = sheet.get(names::Range, u"D1:F9");
    for (const std::int32_t kind : {2, -4123, -4144}) {
        CAPTURE(kind);
        CHECK(error_of([&] { beside.call(names::SpecialCells, kind); }) == 1004);
    }
    CHECK(address(beside.call(names::SpecialCells, 4)) == "$D$1:$F$9");
    CHECK(address(beside.call(names::SpecialCells, 12)) == "$D$1:$F$9");
}

TEST_CASE("the last used row and column are found backwards") {
    for (const char* file : {"", "found.xlsx", "found.xls", "found.ods"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = calc.add_book();
        Object sheet = book.get(names::Worksheets, 1);
        const auto start = [&] { return sheet.get(names::Range, u"A1").object(); };
        CHECK(found(sheet.get(names::Cells), u"*", start(), by_rows, previous) == "nothing");
        sheet.get(names::Range, u"B7").put(names::Value, 5.0);
        sheet.get(names::Range, u"F2").put(names::Formula, u"=\"\"");
        sheet.get(names::Range, u"C3").put(names::Value, u"x");
        sheet.get(names::Range, u"H20").get(names::Interior).put(names::Color, 255);
        if (*file) sheet = calc.reopened(book, file).get(names::Worksheets, 1);
        CHECK(found(sheet.get(names::Cells), u"*", start(), by_rows, previous) == "$B$7");
        CHECK(found(sheet.get(names::Cells), u"*", start(), by_columns, previous) == "$F$2");
        CHECK(found(sheet.get(names::Cells), u"*", start(), by_rows, next) == "$F$2");
    }
}

TEST_CASE("finding text") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1").put(names::Value, u"Apple");
    sheet.get(names::Range, u"A2").put(names::Value, u"apple pie");
    sheet.get(names::Range, u"B1").put(names::Formula, u"=\"app\"&\"le\"");
    sheet.get(names::Range, u"B2").put(names::Value, u"5*3");
    const Object cells = sheet.get(names::Cells);
    CHECK(address(cells.call(names::Find, u"apple")) == "$A$2");
    CHECK(address(cells.call(names::Find, u"apple", Missing{}, -4163)) == "$B$1");
    CHECK(address(cells.call(names::Find, u"apple", Missing{}, -4123, 1)) == "$A$1");
    CHECK(address(cells.call(names::Find, u"a?ple pie")) == "$A$2");
    CHECK(address(cells.call(names::Find, u"5~*3")) == "$B$2");
    CHECK(address(cells.call(names::Find, u"APPLE", named(MemberName(u"MatchCase"), true))) == "nothing");
    CHECK(address(sheet.get(names::Range, u"B1:B2").call(names::Find, u"apple pie")) == "nothing");
    CHECK(address(sheet.get(names::Range, u"B1:B2,A2").call(names::Find, u"apple pie")) == "$A$2");
    // The cell behind which the search begins comes last.
    CHECK(found(cells, u"Apple", sheet.get(names::Range, u"A2"), by_rows, next) == "$A$1");
    CHECK(found(cells, u"pie", sheet.get(names::Range, u"A2"), by_rows, next) == "$A$2");
}

TEST_CASE("a held range of a sheet that is gone raises an error") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets).call(names::Add);
    const Object range = sheet.get(names::Range, u"A1:B2,D4");
    sheet.call(names::Delete);
    for (const MemberName& member : {names::Address, names::Value, names::Formula, names::Count, names::Rows,
                                     names::ColumnWidth, names::NumberFormat, names::Parent}) {
        CAPTURE(utf8(Variant(member.text())));
        attempt([&] { range.get(member); });
    }
    CHECK(error_of([&] { range.put(names::Value, 1.0); }) == 1004);
    CHECK(error_of([&] { range.get(names::Value); }) == 1004);
    CHECK(error_of([&] { range.call(names::Select); }) == 1004);
    const Object other = book.get(names::Worksheets, 1);
    const Object cell = other.get(names::Range, u"A1");
    book.call(names::Close, false);
    CHECK(error_of([&] { cell.get(names::Value); }) == 1004);
    CHECK(error_of([&] { cell.put(names::Value, 1.0); }) == 1004);
    CHECK(error_of([&] { cell.get(names::Address); }) == 1004);
    CHECK(error_of([&] { other.get(names::Name); }) == 1004);
    CHECK(error_of([&] { other.get(names::UsedRange); }) == 1004);
}

}  // namespace qor::calc::tests
