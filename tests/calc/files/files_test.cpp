#include <fstream>

#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("saving, opening and the names of a workbook") {
    const Calc calc;
    const Object book = calc.add_book();
    book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 1.0);
    CHECK(book.get(names::Saved) == false);
    CHECK(book.get(names::FullName) == book.get(names::Name));
    struct Row {
        const char* file;
        std::int32_t format;
    };
    for (const Row& row : {Row{"book.xls", -4143}, Row{"book.xlsx", 51}, Row{"book.ods", 60}, Row{"book.csv", 6}}) {
        const std::filesystem::path path = calc.folder() / row.file;
        book.call(names::SaveAs, from_utf8(path.string()));
        CHECK(std::filesystem::exists(path));
        CHECK(utf8(book.get(names::Name)) == row.file);
        CHECK(utf8(book.get(names::FullName)) == path.string());
        CHECK(utf8(book.get(names::Path)) == calc.folder().string());
        CHECK(book.get(names::FileFormat) == row.format);
        CHECK(book.get(names::Saved) == true);
    }
    book.call(names::Close, false);
    const Object again = calc.open(calc.folder() / "book.xls");
    CHECK(again.get(names::FileFormat) == -4143);
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 1);
    CHECK(calc.open(calc.folder() / "book.xls").is(again));
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 1);
    again.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 5.0);
    again.call(names::Close, true);
    const Object third = calc.open(calc.folder() / "book.xls");
    CHECK(third.get(names::Worksheets, 1).get(names::Range, u"A1").get(names::Value) == 5.0);
}

TEST_CASE("a file format may be asked for by its number") {
    const Calc calc;
    const Object book = calc.add_book();
    const std::u16string path = from_utf8((calc.folder() / "chosen").string());
    book.call(names::SaveAs, path, 60);
    CHECK(book.get(names::Name) == u"chosen.ods");
    CHECK(error_of([&] { book.call(names::SaveAs, path, 12345); }) == 1004);
}

TEST_CASE("a missing or damaged file is named") {
    const Calc calc;
    const auto description = [&](const std::filesystem::path& path) {
        try {
            calc.open(path);
        } catch (const Error& error) {
            return to_utf8(error.description());
        }
        return std::string("opened");
    };
    const std::filesystem::path missing = calc.folder() / "missing.xlsx";
    CHECK(description(missing).find(missing.string()) != std::string::npos);
    const std::filesystem::path damaged = calc.folder() / "damaged.xlsx";
    std::ofstream(damaged) << "PK\x03\x04 this is no workbook at all";
    CHECK(description(damaged).find(damaged.string()) != std::string::npos);
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 0);
}

TEST_CASE("a read-only workbook is not written to") {
    const Calc calc;
    const Object book = calc.add_book();
    const std::filesystem::path path = calc.folder() / "readonly.ods";
    book.call(names::SaveAs, from_utf8(path.string()));
    book.call(names::Close, false);
    const Object again = calc.application.get(names::Workbooks)
                             .call(names::Open, from_utf8(path.string()), named(names::ReadOnly, true));
    CHECK(again.get(names::ReadOnly) == true);
    CHECK(error_of([&] { again.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 1.0); }) == 1004);
    CHECK(error_of([&] { again.call(names::Save); }) == 1004);
}

TEST_CASE("a folder that cannot be written to") {
    const Calc calc;
    const Object book = calc.add_book();
    std::ofstream(calc.folder() / "file") << "x";
    CHECK(error_of([&] { book.call(names::SaveAs, from_utf8((calc.folder() / "file" / "b.xlsx").string())); }) == 1004);
}

TEST_CASE("the application") {
    const Calc calc;
    CHECK_FALSE(calc.application.get(names::ActiveWorkbook).object());
    CHECK_FALSE(calc.application.get(names::ActiveSheet).object());
    CHECK(error_of([&] { calc.application.get(names::Workbooks, u"absent.xls"); }) == 9);
    CHECK(error_of([&] { calc.application.get(MemberName(u"NoSuchMember")); }) == 438);
    CHECK(error_of([&] { calc.application.put(names::NumberFormat, u"0.0000"); }) == 438);
    CHECK(error_of([&] { calc.application.call(names::Help, u"/no/such/help.html"); }) == 1004);
    calc.add_book();
    CHECK(calc.application.get(names::ScreenUpdating) == true);
    calc.application.put(names::ScreenUpdating, false);
    CHECK(calc.application.get(names::ScreenUpdating) == false);
    calc.application.put(names::ScreenUpdating, true);
    CHECK(calc.application.get(names::ScreenUpdating) == true);
    calc.application.put(names::DisplayAlerts, false);
    CHECK(calc.application.get(names::DisplayAlerts) == false);
    CHECK(utf8(calc.application.get(names::Version)).starts_with("7."));
    CHECK_FALSE(utf8(calc.application.get(names::UserName)).empty());
}

}  // namespace qor::calc::tests
