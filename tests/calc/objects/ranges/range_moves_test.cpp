#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

constexpr std::int32_t to_left = -4159;
constexpr std::int32_t up = -4162;
constexpr std::int32_t to_right = -4161;
constexpr std::int32_t down = -4121;

// A sheet with the number 10 * row + column in each of A1:C3.
Object numbered_sheet(const Calc& calc) {
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1:C3").put(names::Formula, u"=10*ROW()+COLUMN()");
    sheet.get(names::Range, u"A1:C3").put(names::Value, sheet.get(names::Range, u"A1:C3").get(names::Value));
    return sheet;
}

// The first four rows and columns, blanks as dots.
std::string square(const Object& sheet) {
    std::string text;
    const Variant values = sheet.get(names::Range, u"A1:D4").get(names::Value);
    for (std::size_t i = 0; i < 16; ++i) {
        const auto* number = values.array()->at(i).get_if<double>();
        text += (number ? std::to_string(static_cast<int>(*number)) : std::string("."));
        text += i % 4 == 3 ? "/" : " ";
    }
    return text;
}

}  // namespace

TEST_CASE("inserting cells, rows and columns") {
    const Calc calc;
    Object sheet = numbered_sheet(calc);
    CHECK(square(sheet) == "11 12 13 ./21 22 23 ./31 32 33 ./. . . ./");
    sheet.get(names::Range, u"B2").call(names::Insert);
    CHECK(square(sheet) == "11 12 13 ./21 . 23 ./31 22 33 ./. 32 . ./");
    sheet = numbered_sheet(calc);
    sheet.get(names::Range, u"B2").call(names::Insert, to_right);
    CHECK(square(sheet) == "11 12 13 ./21 . 22 23/31 32 33 ./. . . ./");
    sheet = numbered_sheet(calc);
    sheet.get(names::Range, u"A1:A2").call(names::Insert);
    CHECK(square(sheet) == ". 11 12 13/. 21 22 23/31 32 33 ./. . . ./");
    sheet = numbered_sheet(calc);
    const Object row = sheet.get(names::Range, u"B2").get(names::EntireRow);
    row.call(names::Insert);
    CHECK(square(sheet) == "11 12 13 ./. . . ./21 22 23 ./31 32 33 ./");
    CHECK(row.get(names::Address) == u"$3:$3");
    sheet = numbered_sheet(calc);
    sheet.get(names::Columns, 1).call(names::Insert);
    CHECK(square(sheet) == ". 11 12 13/. 21 22 23/. 31 32 33/. . . ./");
    sheet = numbered_sheet(calc);
    sheet.get(names::Range, u"A1,A3").get(names::EntireRow).call(names::Insert);
    CHECK(sheet.get(names::Range, u"A2").get(names::Value) == 11.0);
    CHECK(sheet.get(names::Range, u"A3").get(names::Value) == 21.0);
    CHECK(sheet.get(names::Range, u"A5").get(names::Value) == 31.0);
    CHECK(error_of([&] { sheet.get(names::Range, u"A1:A2,A2:A3").get(names::EntireRow).call(names::Insert); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Range, u"A1").call(names::Insert, 5); }) == 1004);
}

TEST_CASE("deleting cells, rows and columns") {
    const Calc calc;
    Object sheet = numbered_sheet(calc);
    sheet.get(names::Range, u"B2").call(names::Delete);
    CHECK(square(sheet) == "11 12 13 ./21 32 23 ./31 . 33 ./. . . ./");
    sheet = numbered_sheet(calc);
    sheet.get(names::Range, u"A2:B2").call(names::Delete, to_left);
    CHECK(square(sheet) == "11 12 13 ./23 . . ./31 32 33 ./. . . ./");
    sheet = numbered_sheet(calc);
    sheet.get(names::Range, u"A1:A2").call(names::Delete, up);
    CHECK(square(sheet) == "31 12 13 ./. 22 23 ./. 32 33 ./. . . ./");
    sheet = numbered_sheet(calc);
    sheet.get(names::Range, u"A1,C1").get(names::EntireColumn).call(names::Delete);
    CHECK(square(sheet) == "12 . . ./22 . . ./32 . . ./. . . ./");
    sheet = numbered_sheet(calc);
    sheet.get(names::Range, sheet.get(names::Cells, 2, 1), sheet.get(names::Cells, 3, 1))
        .get(names::EntireRow)
        .call(names::Delete);
    CHECK(square(sheet) == "11 12 13 ./. . . ./. . . ./. . . ./");
}

TEST_CASE("cells are not moved where something is in the way") {
    const Calc calc;
    const Object sheet = numbered_sheet(calc);
    const auto refuses = [&](const char16_t* range, const MemberName& member, auto... arguments) {
        return error_of([&] { sheet.get(names::Range, range).call(member, arguments...); }) == 1004;
    };
    sheet.get(names::Range, u"E2:F3").put(names::FormulaArray, u"=A1:B2*2");
    CHECK(refuses(u"3:3", names::Insert));
    CHECK(refuses(u"3:3", names::Delete));
    CHECK(refuses(u"E1", names::Insert, down));
    CHECK(sheet.get(names::Range, u"F3").get(names::Value) == 44.0);
    CHECK(sheet.get(names::Range, u"A3").get(names::Value) == 31.0);
    sheet.get(names::Range, u"1:1").call(names::Insert);
    CHECK(sheet.get(names::Range, u"F4").get(names::Value) == 44.0);
    // Calc makes no room directly in front of an array formula.
    CHECK(refuses(u"3:3", names::Insert));
    CHECK(refuses(u"E:E", names::Insert));
    sheet.get(names::Range, u"1:1").call(names::Delete);
    sheet.get(names::Range, u"A1048576").put(names::Value, 1.0);
    CHECK(refuses(u"5:5", names::Insert));
    CHECK(sheet.get(names::Range, u"A1048576").get(names::Value) == 1.0);
    sheet.call(names::Protect);
    CHECK(refuses(u"9:9", names::Insert));
    CHECK(refuses(u"9:9", names::Delete));
    CHECK(sheet.get(names::Range, u"A3").get(names::Value) == 31.0);
}

TEST_CASE("a refusal names the member and the place") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const auto message = [](auto statement) {
        try {
            statement();
        } catch (const Error& error) {
            return utf8(Variant(error.description()));
        }
        return std::string("no error");
    };
    sheet.put(names::Name, u"In");
    sheet.get(names::Range, u"A1:A2").put(names::FormulaArray, u"=ROW()");
    const std::string book = utf8(sheet.get(names::Parent).get(names::Name));
    CHECK(message([&] { sheet.get(names::Range, u"A1").put(names::Value, 1.0); }) ==
          "Unable to set the Value property of the Range class at '[" + book +
              "]In'!$A$1. You can't change part of an array.");
    CHECK(message([&] { sheet.get(names::Range, u"A2:B9").call(names::ClearContents); }) ==
          "ClearContents method of Range class failed at '[" + book +
              "]In'!$A$2:$B$9. You can't change part of an array.");
    CHECK(message([&] { sheet.get(names::Range, u"nowhere"); }) ==
          "Unable to get the Range property of the Range class at '[" + book +
              "]In'!$1:$1048576. Method 'Range' of object '_Global' failed");
    sheet.call(names::Protect);
    CHECK(message([&] { sheet.get(names::Range, u"B2").get(names::Font).put(names::Bold, true); }) ==
          "Unable to set the Bold property of the Font class at '[" + book +
              "]In'!$B$2. The cell or chart you're trying to change is on a protected sheet.");
}

TEST_CASE("clearing") {
    const Calc calc;
    const Object sheet = numbered_sheet(calc);
    const Object cell = sheet.get(names::Range, u"B2");
    cell.get(names::Font).put(names::Bold, true);
    cell.put(names::NumberFormat, u"0.00");
    cell.call(MemberName(u"AddComment"), u"note");
    cell.call(names::ClearContents);
    CHECK(cell.get(names::Value) == Variant(Empty{}));
    CHECK(cell.get(names::Font).get(names::Bold) == true);
    CHECK(sheet.get(names::Comments).get(names::Count) == 1);
    sheet.get(names::Range, u"B2,C3").call(names::Clear);
    CHECK(cell.get(names::Font).get(names::Bold) == false);
    CHECK(cell.get(names::NumberFormat) == u"General");
    CHECK(sheet.get(names::Comments).get(names::Count) == 0);
    CHECK(sheet.get(names::Range, u"C3").get(names::Value) == Variant(Empty{}));
    CHECK(sheet.get(names::Range, u"C2").get(names::Value) == 23.0);
    sheet.call(names::Protect);
    CHECK(error_of([&] { sheet.get(names::Range, u"A1").call(names::Clear); }) == 1004);
    CHECK(sheet.get(names::Range, u"A1").get(names::Value) == 11.0);
}

TEST_CASE("copying to a destination") {
    const Calc calc;
    const Object sheet = numbered_sheet(calc);
    sheet.get(names::Range, u"E1").put(names::Formula, u"=A1+1");
    sheet.get(names::Range, u"E1").get(names::Font).put(names::Bold, true);
    sheet.get(names::Range, u"E1").call(names::Copy, sheet.get(names::Range, u"E2:F3"));
    CHECK(sheet.get(names::Range, u"F3").get(names::Formula) == u"=B3+1");
    CHECK(sheet.get(names::Range, u"F2").get(names::Value) == 23.0);
    CHECK(sheet.get(names::Range, u"F3").get(names::Font).get(names::Bold) == true);
    sheet.get(names::Range, u"A1:B2").call(names::Copy, named(names::Destination, sheet.get(names::Range, u"A10")));
    CHECK(sheet.get(names::Range, u"B11").get(names::Value) == 22.0);
    // Areas in the same rows come side by side.
    sheet.get(names::Range, u"A1:A2,C1:C2").call(names::Copy, sheet.get(names::Range, u"A20"));
    CHECK(sheet.get(names::Range, u"B21").get(names::Value) == 23.0);
    CHECK(error_of([&] {
              sheet.get(names::Range, u"A1:A2,C2:C3").call(names::Copy, sheet.get(names::Range, u"A20"));
          }) == 1004);
    CHECK(error_of([&] {
              sheet.get(names::Range, u"A1:A2").call(names::Copy, sheet.get(names::Range, u"A1048576"));
          }) == 1004);
    // A thousand copies of one row.
    sheet.get(names::Range, u"E1").call(names::Copy, sheet.get(names::Range, u"H1:H1000"));
    CHECK(sheet.get(names::Range, u"H1000").get(names::Formula) == u"=D1000+1");
}

TEST_CASE("copying to another workbook") {
    const Calc calc;
    const Object source = numbered_sheet(calc);
    source.get(names::Range, u"B2").get(names::Interior).put(names::Color, 65535);
    source.get(names::Range, u"C3").call(names::Select);
    const Object target = calc.add_sheet();
    target.get(names::Range, u"C3").put(names::Value, u"goes");
    source.get(names::Range, u"A1:C2").call(names::Copy, target.get(names::Range, u"B2"));
    CHECK(target.get(names::Range, u"B2").get(names::Value) == 11.0);
    CHECK(target.get(names::Range, u"C3").get(names::Value) == 22.0);
    CHECK(target.get(names::Range, u"C3").get(names::Interior).get(names::Color) == 65535);
    CHECK(calc.application.get(names::Selection).get(names::Address) == u"$A$1");
    source.get(names::Parent).call(names::Activate);
    CHECK(calc.application.get(names::Selection).get(names::Address) == u"$C$3");
}

TEST_CASE("copying and pasting") {
    const Calc calc;
    const Object source = numbered_sheet(calc);
    source.get(names::Range, u"A3").put(names::Formula, u"=A1+A2");
    source.get(names::Range, u"A1").get(names::Font).put(names::Bold, true);
    source.get(names::Range, u"A1:B3").call(names::Copy);
    const Object all = calc.add_sheet();
    all.call(names::Paste);
    CHECK(all.get(names::Range, u"A3").get(names::Formula) == u"=A1+A2");
    CHECK(all.get(names::Range, u"B3").get(names::Value) == 32.0);
    CHECK(all.get(names::Range, u"A1").get(names::Font).get(names::Bold) == true);
    const Object values = calc.add_sheet();
    values.get(names::Range, u"C4").put(names::Value, u"goes");
    values.get(names::Range, u"B2").call(names::Select);
    values.call(names::PasteSpecial, named(names::Paste, -4163));
    CHECK(values.get(names::Range, u"B4").get(names::Formula) == u"32");
    CHECK(values.get(names::Range, u"C4").get(names::Value) == 32.0);
    CHECK(values.get(names::Range, u"B2").get(names::Font).get(names::Bold) == false);
    values.get(names::Range, u"F1").call(names::PasteSpecial, -4123);
    CHECK(values.get(names::Range, u"F3").get(names::Formula) == u"=F1+F2");
    values.get(names::Range, u"H1").put(names::Value, u"stays");
    values.get(names::Range, u"H1").call(names::PasteSpecial, -4122);
    CHECK(values.get(names::Range, u"H1").get(names::Value) == u"stays");
    CHECK(values.get(names::Range, u"H1").get(names::Font).get(names::Bold) == true);
    all.call(names::Paste, all.get(names::Range, u"D5"));
    CHECK(all.get(names::Range, u"D7").get(names::Formula) == u"=D5+D6");
    all.call(names::Protect);
    CHECK(error_of([&] { all.call(names::Paste); }) == 1004);
    CHECK(error_of([&] { values.call(names::PasteSpecial, 12345); }) == 1004);
}

}  // namespace qor::calc::tests
