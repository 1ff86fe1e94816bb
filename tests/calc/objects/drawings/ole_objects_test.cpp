#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

constexpr std::int32_t linked = 0;
constexpr std::int32_t embedded = 1;

// A workbook with an embedded spreadsheet and a link to one that lies beside it.
Object book_with_objects(const Calc& calc) {
    const Object source = calc.add_book();
    source.call(names::SaveAs, from_utf8((calc.folder() / "source.ods").string()));
    source.call(names::Close, false);
    const std::filesystem::path file = calc.folder() / "objects.ods";
    std::filesystem::copy_file(std::filesystem::path(QOR_TEST_FILES) / "objects.ods", file);
    return calc.open(file);
}

}  // namespace

TEST_CASE("embedded and linked objects") {
    for (const char* file : {"", "saved.ods"}) {
        CAPTURE(file);
        const Calc calc;
        Object book = book_with_objects(calc);
        if (*file) book = calc.reopened(book, file);
        const Object sheet = book.get(names::Worksheets, 1);
        const Object objects = sheet.get(names::OLEObjects);
        REQUIRE(objects.get(names::Count) == 2);
        CHECK(sheet.get(names::ChartObjects).get(names::Count) == 0);
        CHECK(sheet.get(names::Shapes).get(names::Count) == 2);
        const Object inner = objects.get(names::Item, 1);
        const Object link = sheet.get(names::OLEObjects, u"Linked sheet");
        CHECK(inner.get(names::Name) == u"Inner");
        CHECK(inner.get(names::OLEType) == embedded);
        CHECK(error_of([&] { inner.get(names::SourceName); }) == 1004);
        CHECK(link.get(names::OLEType) == linked);
        CHECK(link.get(names::SourceName) == from_utf8((calc.folder() / "source.ods").string()));
        CHECK(link.get(names::Parent).object().is(sheet));
        inner.put(names::Name, u"Renamed");
        CHECK(sheet.get(names::OLEObjects, u"Renamed").get(names::OLEType) == embedded);
        CHECK(error_of([&] { sheet.get(names::OLEObjects, u"Inner"); }) == 1004);
        link.call(names::Select);
        CHECK_FALSE(calc.application.get(names::Selection).object());
        sheet.call(names::Protect);
        CHECK(error_of([&] { link.call(names::Delete); }) == 1004);
        CHECK(objects.get(names::Count) == 2);
        sheet.call(names::Unprotect);
        link.call(names::Delete);
        CHECK(objects.get(names::Count) == 1);
        CHECK(error_of([&] { link.get(names::Name); }) == 1004);
        const Object again = calc.reopened(book, "left.ods").get(names::Worksheets, 1);
        CHECK(again.get(names::OLEObjects).get(names::Count) == 1);
        CHECK(error_of([&] { inner.get(names::Name); }) == 1004);
    }
}

TEST_CASE("an xlsx file keeps no objects") {
    const Calc calc;
    const Object book = book_with_objects(calc);
    const Object from_xlsx = calc.reopened(book, "saved.xlsx").get(names::Worksheets, 1);
    CHECK(from_xlsx.get(names::OLEObjects).get(names::Count) == 0);
    CHECK(from_xlsx.get(names::Shapes).get(names::Count) == 0);
}

TEST_CASE("an xls file keeps what is embedded") {
    const Calc calc;
    const Object sheet = calc.reopened(book_with_objects(calc), "saved.xls").get(names::Worksheets, 1);
    REQUIRE(sheet.get(names::OLEObjects).get(names::Count) == 1);
    CHECK(sheet.get(names::OLEObjects, 1).get(names::OLEType) == embedded);
    CHECK(sheet.get(names::OLEObjects, 1).get(names::Name) == u"Inner");
}

}  // namespace qor::calc::tests
