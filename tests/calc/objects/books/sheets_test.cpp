#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("sheets are added where they are wanted") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheets = book.get(names::Worksheets);
    const Object second = sheets.call(names::Add, named(names::After, sheets.get(names::Item, 1)));
    CHECK(second.get(names::Name) == u"Sheet2");
    CHECK(second.get(names::Index) == 2);
    CHECK(calc.application.get(names::ActiveSheet).object().is(second));
    const Object first = sheets.call(names::Add, named(names::Before, sheets.get(names::Item, 1)));
    CHECK(first.get(names::Name) == u"Sheet3");
    CHECK(first.get(names::Index) == 1);
    sheets.call(names::Add, Missing{}, second, 2);
    CHECK(sheets.get(names::Count) == 5);
    CHECK(sheets.get(names::Item, 4).get(names::Index) == 4);
    const std::vector<Variant> all = sheets.items();
    REQUIRE(all.size() == 5);
    CHECK(all[0].object().is(first));
}

TEST_CASE("names that Excel would refuse are refused") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    book.get(names::Worksheets).call(names::Add).put(names::Name, u"Taken");
    for (const char16_t* name : {u"", u"a/b", u"a\\b", u"a:b", u"a?b", u"a*b", u"a[b", u"a]b", u"'quoted", u"quoted'",
                                 u"taken", u"history", u"12345678901234567890123456789012"}) {
        CHECK(error_of([&] { sheet.put(names::Name, name); }) == 1004);
        CHECK(sheet.get(names::Name) == u"Sheet1");
    }
    sheet.put(names::Name, u"SHEET1");
    CHECK(sheet.get(names::Name) == u"SHEET1");
    sheet.put(names::Name, u"History 2");
    sheet.put(names::Name, u"1234567890123456789012345678901");
    CHECK(sheet.get(names::Name) == u"1234567890123456789012345678901");
}

TEST_CASE("hidden and very hidden sheets") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object first = book.get(names::Worksheets, 1);
    const Object second = book.get(names::Worksheets).call(names::Add);
    CHECK(second.get(names::Visible) == -1);
    second.put(names::Visible, 2);
    CHECK(second.get(names::Visible) == 2);
    CHECK(error_of([&] { first.put(names::Visible, 0); }) == 1004);
    CHECK(error_of([&] { second.call(names::Activate); }) == 1004);
    CHECK(error_of([&] { first.call(MemberName(u"Delete")); }) == 1004);
    second.put(names::Name, u"Renamed");
    const Object again = calc.reopened(book, "hidden.ods").get(names::Worksheets, u"Renamed");
    CHECK(again.get(names::Visible) == 2);
    again.put(names::Visible, true);
    CHECK(again.get(names::Visible) == -1);
    again.put(names::Visible, false);
    CHECK(again.get(names::Visible) == 0);
}

TEST_CASE("protection is kept as it was asked for") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    CHECK(sheet.get(names::ProtectContents) == false);
    CHECK(sheet.get(names::ProtectScenarios) == false);
    sheet.get(names::Range, u"B1").put(names::Locked, false);
    sheet.call(names::Protect, u"secret", false, true, true);
    CHECK(sheet.get(names::ProtectContents) == true);
    CHECK(sheet.get(names::ProtectDrawingObjects) == false);
    CHECK(sheet.get(names::ProtectScenarios) == true);

    CHECK(error_of([&] { sheet.get(names::Range, u"A1").put(names::Value, 1.0); }) == 1004);
    CHECK(sheet.get(names::Range, u"A1").get(names::Value) == Variant(Empty{}));
    CHECK(error_of([&] { sheet.get(names::Range, u"A1:B1").put(names::Formula, u"=1"); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Range, u"B1").get(names::Font).put(names::Bold, true); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Range, u"B1").put(names::Value, 2.0); }) == 0);
    CHECK(sheet.get(names::Range, u"B1").get(names::Value) == 2.0);

    CHECK(error_of([&] { sheet.call(names::Unprotect, u"wrong"); }) == 1004);
    CHECK(sheet.get(names::ProtectContents) == true);
    const Object again = calc.reopened(book, "protected.ods").get(names::Worksheets, 1);
    CHECK(again.get(names::ProtectContents) == true);
    CHECK(again.get(names::ProtectDrawingObjects) == false);
    again.call(names::Unprotect, u"secret");
    CHECK(again.get(names::ProtectContents) == false);
    CHECK(again.get(names::ProtectScenarios) == false);
}

TEST_CASE("a protected sheet of a foreign file counts as protected throughout") {
    const Calc calc;
    const Object book = calc.add_book();
    book.get(names::Worksheets, 1).call(names::Protect);
    const Object again = calc.reopened(book, "protected.xls").get(names::Worksheets, 1);
    CHECK(again.get(names::ProtectContents) == true);
    CHECK(again.get(names::ProtectDrawingObjects) == true);
    CHECK(again.get(names::ProtectScenarios) == true);
}

TEST_CASE("the used range") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    CHECK(sheet.get(names::UsedRange).get(names::Address) == u"$A$1");
    sheet.get(names::Range, u"C3").put(names::Value, 1.0);
    sheet.get(names::Range, u"E7").put(names::Value, u"x");
    CHECK(sheet.get(names::UsedRange).get(names::Address) == u"$C$3:$E$7");
    CHECK(sheet.get(names::UsedRange).get(names::Count) == 15);
}

TEST_CASE("comments") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    CHECK(sheet.get(names::Comments).get(names::Count) == 0);
    const Object cell = sheet.get(names::Range, u"B2");
    CHECK_FALSE(cell.get(names::Comment).object());
    cell.call(MemberName(u"AddComment"), u"look here");
    CHECK(sheet.get(names::Comments).get(names::Count) == 1);
    CHECK(cell.get(names::Comment).call(names::Text) == u"look here");
    CHECK(sheet.get(names::Comments).get(names::Item, 1).get(names::Parent).get(names::Address) == u"$B$2");
    CHECK(error_of([&] { cell.call(MemberName(u"AddComment"), u"twice"); }) == 1004);
    cell.get(names::Comment).call(MemberName(u"Delete"));
    CHECK_FALSE(cell.get(names::Comment).object());
}

}  // namespace qor::calc::tests
