#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

std::string list_of(const Object& all) {
    std::string result;
    for (const Variant& name : all.items()) result += utf8(name.get(names::Name)) + ";";
    return result;
}

}  // namespace

TEST_CASE("names of a workbook") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object all = book.get(names::Names);
    CHECK(all.get(names::Count) == 0);
    const Object sheet = book.get(names::Worksheets, 1);
    sheet.get(names::Range, u"B2").put(names::Value, 7.0);
    const Object rate = all.call(names::Add, u"rate", u"=Sheet1!$B$2");
    all.call(names::Add, u"Area", sheet.get(names::Range, u"B2:C4"));
    all.call(names::Add, named(names::Name, u"Constant"), named(names::RefersTo, u"=1+2"));
    all.call(names::Add, u"Sheet1!Local", u"=Sheet1!$D$4");
    all.call(names::Add, u"Both", u"=Sheet1!$A$1,Sheet1!$C$3");
    CHECK(list_of(all) == "Area;Both;Constant;Sheet1!Local;rate;");
    CHECK(all.get(names::Count) == 5);
    CHECK(rate.get(names::RefersTo) == u"=Sheet1!$B$2");
    CHECK(all.get(names::Item, u"AREA").get(names::RefersTo) == u"=Sheet1!$B$2:$C$4");
    CHECK(all.get(names::Item, u"constant").get(names::RefersTo) == u"=1+2");
    CHECK(book.get(names::Names, u"sheet1!local").get(names::RefersTo) == u"=Sheet1!$D$4");
    CHECK(book.get(names::Names, u"Both").get(names::RefersTo) == u"=Sheet1!$A$1,Sheet1!$C$3");
    CHECK(calc.application.get(names::Names, 5).object().is(rate));
    CHECK(rate.get(names::Index) == 5);
    CHECK(error_of([&] { all.get(names::Item, u"absent"); }) == 1004);
    CHECK(error_of([&] { all.get(names::Item, 6); }) == 1004);
    CHECK(error_of([&] { all.get(names::Item, 0); }) == 1004);

    CHECK(rate.get(names::RefersToRange).get(names::Address) == u"$B$2");
    CHECK(book.get(names::Names, u"Area").get(names::RefersToRange).get(names::Parent).object().is(sheet));
    CHECK(error_of([&] { book.get(names::Names, u"Constant").get(names::RefersToRange); }) == 1004);
    CHECK(error_of([&] { book.get(names::Names, u"Both").get(names::RefersToRange); }) == 1004);
    CHECK(sheet.get(names::Range, u"Rate").get(names::Value) == 7.0);
    CHECK(calc.application.get(names::Range, u"Area").get(names::Address) == u"$B$2:$C$4");

    all.call(names::Add, u"Rate", u"=Sheet1!$B$3");  // it gets another meaning
    CHECK(all.get(names::Count) == 5);
    CHECK(rate.get(names::RefersTo) == u"=Sheet1!$B$3");
    rate.put(names::RefersTo, u"=Sheet1!$B$2");
    sheet.get(names::Range, u"E1").put(names::Formula, u"=rate*2");
    CHECK(sheet.get(names::Range, u"E1").get(names::Value) == 14.0);
    CHECK(error_of([&] { rate.put(names::Name, u"Percent"); }) == 438);
    CHECK(error_of([&] { all.call(names::Add, u"A1", u"=1"); }) == 1004);
    CHECK(error_of([&] { all.call(names::Add, u"no name", u"=1"); }) == 1004);
    CHECK(error_of([&] { all.call(names::Add, u"Open", u"=SUM(1"); }) == 1004);
    CHECK(all.get(names::Count) == 5);

    rate.call(names::Delete);
    CHECK(list_of(all) == "Area;Both;Constant;Sheet1!Local;");
    CHECK(error_of([&] { rate.get(names::Name); }) == 1004);
    CHECK(error_of([&] { rate.get(names::RefersTo); }) == 1004);
    CHECK(error_of([&] { rate.get(names::RefersToRange); }) == 1004);
    CHECK(error_of([&] { rate.call(names::Delete); }) == 1004);
}

TEST_CASE("a name whose cells are gone") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets).call(names::Add);
    book.get(names::Names).call(names::Add, u"Gone", u"=Sheet2!$B$2");
    const Object gone = book.get(names::Names, u"Gone");
    CHECK(gone.get(names::RefersToRange).get(names::Parent).object().is(sheet));
    sheet.call(names::Delete);
    CHECK(utf8(gone.get(names::RefersTo)).find("#REF!") != std::string::npos);
    CHECK(error_of([&] { gone.get(names::RefersToRange); }) == 1004);
    book.call(names::Close, false);
    CHECK(error_of([&] { gone.get(names::Name); }) == 1004);
    CHECK(error_of([&] { gone.get(names::RefersTo); }) == 1004);
}

TEST_CASE("names come back from files") {
    const Calc calc;
    for (const char* file : {"names.xlsx", "names.xls", "names.ods"}) {
        INFO(file);
        const Object fresh = calc.add_book();
        fresh.get(names::Worksheets, 1).put(names::Name, u"My Data");
        fresh.get(names::Worksheets, 1).get(names::Range, u"A1:B5").put(names::Value, 1.0);
        fresh.get(names::Names).call(names::Add, u"Total", u"=SUM('My Data'!$A$1:$A$5)");
        fresh.get(names::Names).call(names::Add, u"'My Data'!Local", u"='My Data'!$C$3");
        const Object book = calc.reopened(fresh, file);
        CHECK(list_of(book.get(names::Names)) == "'My Data'!Local;Total;");
        CHECK(book.get(names::Names, u"Total").get(names::RefersTo) == u"=SUM('My Data'!$A$1:$A$5)");
        CHECK(book.get(names::Names, u"'My Data'!Local").get(names::RefersToRange).get(names::Address) == u"$C$3");
        book.call(names::Close, false);
    }
}

TEST_CASE("names of a read-only workbook stay") {
    const Calc calc;
    const Object fresh = calc.add_book();
    fresh.get(names::Names).call(names::Add, u"Fixed", u"=Sheet1!$A$1");
    calc.reopened(fresh, "fixed.ods").call(names::Close, false);
    const std::string path = (calc.folder() / "fixed.ods").string();
    const Object book = calc.application.get(names::Workbooks)
                            .call(names::Open, std::u16string(path.begin(), path.end()), named(names::ReadOnly, true));
    const Object fixed = book.get(names::Names, 1);
    CHECK(error_of([&] { fixed.call(names::Delete); }) == 1004);
    CHECK(error_of([&] { fixed.put(names::RefersTo, u"=1"); }) == 1004);
    CHECK(error_of([&] { book.get(names::Names).call(names::Add, u"New", u"=1"); }) == 1004);
    CHECK(fixed.get(names::RefersTo) == u"=Sheet1!$A$1");
}

TEST_CASE("the name of exactly these cells") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    const Object other = book.get(names::Worksheets).call(names::Add);
    const Object cells = sheet.get(names::Range, u"B2:C4");
    CHECK(error_of([&] { cells.get(names::Name); }) == 1004);
    cells.put(names::Name, u"Rates");
    CHECK(cells.get(names::Name).get(names::Name) == u"Rates");
    CHECK(cells.get(names::Name).get(names::RefersTo) == u"=Sheet1!$B$2:$C$4");
    CHECK(book.get(names::Names).get(names::Count) == 1);
    CHECK(error_of([&] { sheet.get(names::Range, u"B2").get(names::Name); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Range, u"B2:C4,E1").get(names::Name); }) == 1004);
    CHECK(error_of([&] { other.get(names::Range, u"B2:C4").get(names::Name); }) == 1004);
    cells.put(names::Name, u"Areas");
    CHECK(cells.get(names::Name).get(names::Name) == u"Areas");
    CHECK(error_of([&] { cells.put(names::Name, u"not a name"); }) == 1004);
    cells.get(names::Name).call(names::Delete);
    CHECK(cells.get(names::Name).get(names::Name) == u"Rates");
    other.put(names::Name, u"My Data");
    other.get(names::Range, u"A1,C3").put(names::Name, u"Two_Areas");
    CHECK(book.get(names::Names, u"Two_Areas").get(names::RefersTo) == u"='My Data'!$A$1,'My Data'!$C$3");
    sheet.get(names::Rows, 1).call(names::Insert);
    CHECK(sheet.get(names::Range, u"B3:C5").get(names::Name).get(names::Name) == u"Rates");
}

}  // namespace qor::calc::tests
