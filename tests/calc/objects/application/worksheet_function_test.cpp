#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// A1:A6 hold 3, text, True, blank, the formula =10/4 and an empty text; C1:C2 hold -7 and a date.
Object filled_sheet(const Calc& calc) {
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1").put(names::Value, 3.0);
    sheet.get(names::Range, u"A2").put(names::Value, u"text");
    sheet.get(names::Range, u"A3").put(names::Value, true);
    sheet.get(names::Range, u"A5").put(names::Formula, u"=10/4");
    sheet.get(names::Range, u"A6").put(names::Formula, u"=\"\"");
    sheet.get(names::Range, u"C1").put(names::Value, -7.0);
    sheet.get(names::Range, u"C2").put(names::Value, Date{45000});
    return sheet;
}

Array numbers_and_text() {
    Array table = Array::table(2, 2);
    table.at(0, 0) = 4.0;
    table.at(0, 1) = u"9";
    table.at(1, 0) = true;
    return table;
}

}  // namespace

TEST_CASE("CountA counts what is not blank") {
    const Calc calc;
    const Object sheet = filled_sheet(calc);
    const Object functions = calc.application.get(names::WorksheetFunction);
    CHECK(functions.call(names::CountA, sheet.get(names::Range, u"A1:A6")) == 5.0);
    CHECK(functions.call(names::CountA, sheet.get(names::Range, u"A1:A2,C1:C2,E1")) == 4.0);
    CHECK(functions.call(names::CountA, sheet.get(names::Range, u"A:C")) == 7.0);
    CHECK(functions.call(names::CountA, sheet.get(names::Range, u"E1:F9")) == 0.0);
    CHECK(functions.call(names::CountA, sheet.get(names::Range, u"A1"), sheet.get(names::Range, u"C1:C2")) == 3.0);
    CHECK(functions.call(names::CountA, numbers_and_text()) == 3.0);
    CHECK(functions.call(names::CountA, 1.0, u"", u"a", Missing{}, true) == 4.0);
    CHECK(error_of([&] { functions.call(names::CountA); }) == 449);
}

TEST_CASE("Max takes the numbers") {
    const Calc calc;
    const Object sheet = filled_sheet(calc);
    const Object functions = calc.application.get(names::WorksheetFunction);
    const auto range = [&](const char16_t* address) { return sheet.get(names::Range, address); };
    CHECK(functions.call(names::Max, range(u"A1:A6")) == 3.0);
    CHECK(functions.call(names::Max, range(u"A2:A4")) == 0.0);  // no number among them
    CHECK(functions.call(names::Max, range(u"A2:A4"), -5.0) == -5.0);
    CHECK(functions.call(names::Max, range(u"C1,A5")) == 2.5);
    CHECK(functions.call(names::Max, range(u"A:C")) == 45000.0);
    CHECK(functions.call(names::Max, numbers_and_text(), 2.0) == 4.0);
    CHECK(functions.call(names::Max, -1.0, true, u"0.5") == 1.0);
    CHECK(functions.call(names::Max, Currency{25000}, std::int32_t{2}) == 2.5);
    sheet.get(names::Range, u"D1").put(names::Formula, u"=1/0");
    CHECK(error_of([&] { functions.call(names::Max, range(u"D1")); }) == 1004);
    CHECK(error_of([&] { functions.call(names::Max, u"text"); }) == 1004);
}

TEST_CASE("Proper, Replace and RoundDown") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object functions = calc.application.get(names::WorksheetFunction);
    CHECK(functions.call(names::Proper, u"this is a TITLE") == u"This Is A Title");
    CHECK(functions.call(names::Proper, u"2-cent's worth") == u"2-Cent'S Worth");
    CHECK(functions.call(names::Proper, u"76BudGet") == u"76Budget");
    CHECK(functions.call(names::Proper, u"") == u"");
    CHECK(functions.call(names::Proper, 12.0) == u"12");
    CHECK(functions.call(names::Replace, u"abcdefghijk", 6, 5, u"*") == u"abcde*k");
    CHECK(functions.call(names::Replace, u"2009", 3, 2, u"10") == u"2010");
    CHECK(functions.call(names::Replace, u"123456", 1, 3, u"@") == u"@456");
    CHECK(functions.call(names::Replace, u"abc", 9, 5, u"") == u"abc");
    CHECK(functions.call(names::Replace, u"abc", u"2", 1.0, u"") == u"ac");
    CHECK(error_of([&] { functions.call(names::Replace, u"abc", 0, 1, u""); }) == 1004);
    CHECK(error_of([&] { functions.call(names::Replace, u"abc", u"x", 1, u""); }) == 13);
    CHECK(functions.call(names::RoundDown, 3.2, 0) == 3.0);
    CHECK(functions.call(names::RoundDown, 76.9, 0) == 76.0);
    CHECK(functions.call(names::RoundDown, 3.14159, 3) == 3.141);
    CHECK(functions.call(names::RoundDown, -3.14159, 1) == -3.1);
    CHECK(functions.call(names::RoundDown, 31415.92654, -2) == 31400.0);
    const Object cell = sheet.get(names::Range, u"B2");
    cell.put(names::Value, u"mixed CASE");
    CHECK(functions.call(names::Proper, cell) == u"Mixed Case");
    CHECK(functions.call(names::Proper, cell.get(names::Value)) == u"Mixed Case");
}

TEST_CASE("IsLogical tells a Boolean from a number") {
    const Calc calc;
    const Object sheet = filled_sheet(calc);
    const Object functions = calc.application.get(names::WorksheetFunction);
    CHECK(functions.call(names::IsLogical, true) == true);
    CHECK(functions.call(names::IsLogical, 1.0) == false);
    CHECK(functions.call(names::IsLogical, u"TRUE") == false);
    CHECK(functions.call(names::IsLogical, Empty{}) == false);
    CHECK(functions.call(names::IsLogical, sheet.get(names::Range, u"A3")) == true);
    CHECK(functions.call(names::IsLogical, sheet.get(names::Range, u"A1")) == false);
    CHECK(functions.call(names::IsLogical, sheet.get(names::Range, u"A3").get(names::Value)) == true);
    sheet.get(names::Range, u"B1").put(names::Formula, u"=1<2");
    CHECK(functions.call(names::IsLogical, sheet.get(names::Range, u"B1")) == true);
}

TEST_CASE("values of loaded workbooks are taken by the worksheet functions") {
    for (const char* file : {"numbers.ods", "numbers.xlsx", "numbers.xls"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = calc.reopened(filled_sheet(calc).get(names::Parent), file);
        const Object sheet = book.get(names::Worksheets, 1);
        const Object functions = calc.application.get(names::WorksheetFunction);
        CHECK(functions.call(names::CountA, sheet.get(names::Range, u"A:C")) == 7.0);
        CHECK(functions.call(names::Max, sheet.get(names::Range, u"A:B")) == 3.0);
        CHECK(functions.call(names::IsLogical, sheet.get(names::Range, u"A3")) == true);
    }
}

TEST_CASE("the worksheet functions refuse a range that is gone") {
    const Calc calc;
    const Object functions = calc.application.get(names::WorksheetFunction);
    const Object book = calc.add_book();
    const Object range = book.get(names::Worksheets, 1).get(names::Range, u"A1:B2");
    book.call(names::Close, false);
    CHECK(error_of([&] { functions.call(names::CountA, range); }) == 1004);
    CHECK(error_of([&] { functions.call(names::Max, range); }) == 1004);
    CHECK(error_of([&] { functions.call(names::Proper, range); }) == 1004);
    CHECK(error_of([&] { functions.call(names::IsLogical, range); }) == 1004);
    CHECK(functions.call(names::Proper, u"still here") == u"Still Here");
}

}  // namespace qor::calc::tests
