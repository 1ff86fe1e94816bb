#include <fstream>

#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

std::u16string text_of(const std::filesystem::path& path) {
    return from_utf8(path.string());
}

Object cell(const Object& sheet, const char16_t* address) {
    return sheet.get(names::Range, address).object();
}

// A workbook of three sheets, the second of which is active and holds a small table with a formula.
Object table_book(const Calc& calc) {
    const Object book = calc.add_book();
    const Object sheets = book.get(names::Worksheets).object();
    sheets.call(names::Add);
    sheets.call(names::Add);
    cell(sheets.get(names::Item, 1), u"A1").put(names::Value, u"first");
    const Object table = sheets.get(names::Item, 2).object();
    cell(table, u"A1").put(names::Value, u"NAME");
    cell(table, u"B1").put(names::Value, u"AMOUNT");
    cell(table, u"A2").put(names::Value, u"ink, red");
    cell(table, u"B2").put(names::Value, 12.5);
    cell(table, u"A3").put(names::Value, u"pen");
    cell(table, u"B3").put(names::Formula, u"=B2*2");
    table.call(names::Activate);
    return book;
}

std::string names_of_sheets(const Object& book) {
    std::string result;
    for (const Variant& sheet : book.get(names::Worksheets).object().items()) {
        result += utf8(sheet.get(names::Name)) + ";";
    }
    return result;
}

}  // namespace

TEST_CASE("the formats by their numbers") {
    const Calc calc;
    calc.application.put(names::DisplayAlerts, false);
    struct Row {
        std::int32_t number;
        const char* file;
        std::int32_t saved;   // as FileFormat answers after saving
        std::int32_t loaded;  // and after loading
    };
    for (const Row& row : {
             Row{6, "f6.csv", 6, 6},
             Row{62, "f62.csv", 62, 6},
             Row{11, "f11.dbf", 8, 8},
             Row{8, "f8.dbf", 8, 8},
             Row{7, "f7.dbf", 8, 8},
             Row{9, "f9.dif", 9, 9},
             Row{2, "f2.slk", 2, 2},
             Row{-4143, "f4143.xls", -4143, -4143},
             Row{56, "f56.xls", -4143, -4143},
             Row{36, "f36.prn", 36, 36},
             Row{20, "f20.txt", 20, -4158},
             Row{-4158, "f4158.txt", -4158, -4158},
             Row{51, "f51.xlsx", 51, 51},
             Row{52, "f52.xlsm", 52, 52},
             Row{60, "f60.ods", 60, 60},
         }) {
        INFO(row.file);
        const Object book = table_book(calc);
        book.call(names::SaveAs, text_of(calc.folder() / row.file), row.number);
        CHECK(std::filesystem::file_size(calc.folder() / row.file) > 0);
        CHECK(utf8(book.get(names::Name)) == row.file);
        CHECK(book.get(names::FileFormat) == row.saved);
        CHECK(book.get(names::Saved) == true);
        CHECK(names_of_sheets(book) == "Sheet3;Sheet2;Sheet1;");
        CHECK(book.get(names::ActiveSheet).get(names::Index) == 2);
        book.call(names::Close);
        const Object again = calc.open(calc.folder() / row.file);
        CHECK(again.get(names::FileFormat) == row.loaded);
        again.call(names::Close, false);
    }
    CHECK(calc.user->messages.empty());
}

TEST_CASE("templates keep their number") {
    const Calc calc;
    const Object book = table_book(calc);
    book.call(names::SaveAs, text_of(calc.folder() / "t.xltx"), 54);
    CHECK(book.get(names::FileFormat) == 54);
    book.call(names::SaveAs, text_of(calc.folder() / "t.xlt"), 17);
    CHECK(book.get(names::FileFormat) == 17);
}

TEST_CASE("text formats hold the active sheet") {
    const Calc calc;
    calc.application.put(names::DisplayAlerts, false);
    const auto saved_as = [&](const char* file, std::int32_t number) {
        const Object book = table_book(calc);
        book.call(names::SaveAs, text_of(calc.folder() / file), number);
        book.call(names::Close, false);
        return test::content_of(calc.folder() / file);
    };
    CHECK(saved_as("t.csv", 6) == "NAME,AMOUNT\n\"ink, red\",12.5\npen,25\n");
    CHECK(saved_as("t.txt", 20) == "NAME\tAMOUNT\nink, red\t12.5\npen\t25\n");
    const std::string fixed = saved_as("t.prn", 36);
    CHECK(fixed.starts_with("NAME "));
    CHECK(fixed.find("12.5\n") != std::string::npos);
    const std::string dif = saved_as("t.dif", 9);
    CHECK(dif.starts_with("TABLE"));
    CHECK(dif.find("\"ink, red\"") != std::string::npos);
    CHECK(dif.find("0,25\n") != std::string::npos);
    CHECK(dif.find("first") == std::string::npos);
    const std::string symbolic = saved_as("t.slk", 2);
    CHECK(symbolic.starts_with("ID;"));
    CHECK(symbolic.find("ink, red") != std::string::npos);
    CHECK(symbolic.find("first") == std::string::npos);
    const std::string base = saved_as("t.dbf", 8);
    CHECK(base.front() == '\x03');
    CHECK(base.find("AMOUNT") != std::string::npos);
    CHECK(base.find("ink, red") != std::string::npos);
    CHECK(base.find("first") == std::string::npos);
}

TEST_CASE("a file of the first sheet only is saved again as it was") {
    const Calc calc;
    const Object book = table_book(calc);
    book.call(names::SaveAs, text_of(calc.folder() / "again.dif"), 9);
    cell(book.get(names::ActiveSheet), u"A2").put(names::Value, u"paper");
    CHECK(book.get(names::Saved) == false);
    book.call(names::Save);
    CHECK(book.get(names::Saved) == true);
    CHECK(test::content_of(calc.folder() / "again.dif").find("\"paper\"") != std::string::npos);
    CHECK(names_of_sheets(book) == "Sheet3;Sheet2;Sheet1;");
}

TEST_CASE("a file that is there is replaced after a question only") {
    const Calc calc;
    const std::filesystem::path path = calc.folder() / "there.xlsx";
    std::ofstream(path) << "old";
    const Object book = table_book(calc);
    CHECK(error_of([&] { book.call(names::SaveAs, text_of(path)); }) == 1004);  // the question's default is No
    REQUIRE(calc.user->messages.size() == 1);
    CHECK(to_utf8(calc.user->messages[0].text) ==
          "A file named '" + path.string() + "' already exists in this location. Do you want to replace it?");
    CHECK(test::content_of(path) == "old");
    CHECK(book.get(names::Path) == u"");
    calc.user->answers = {MessageAnswer::yes};
    book.call(names::SaveAs, text_of(path));
    CHECK(test::content_of(path).starts_with("PK"));

    std::ofstream(calc.folder() / "other.xlsx") << "old";
    calc.application.put(names::DisplayAlerts, false);
    book.call(names::SaveAs, text_of(calc.folder() / "other.xlsx"));
    CHECK(test::content_of(calc.folder() / "other.xlsx").starts_with("PK"));
    CHECK(calc.user->messages.size() == 2);
}

TEST_CASE("a copy leaves the workbook as it is") {
    const Calc calc;
    const Object book = calc.reopened(table_book(calc), "source.xls");
    cell(book.get(names::Worksheets, 1), u"A1").put(names::Value, u"changed");
    const std::filesystem::path copy = calc.folder() / "source.xlk";
    std::ofstream(copy) << "old";
    book.call(names::SaveCopyAs, text_of(copy));
    CHECK(calc.user->messages.empty());
    CHECK(book.get(names::Name) == u"source.xls");
    CHECK(book.get(names::Saved) == false);
    CHECK(test::content_of(copy).starts_with("\xD0\xCF\x11\xE0"));
    book.call(names::Close, false);
    const Object again = calc.open(copy);
    CHECK(cell(again.get(names::Worksheets, 1), u"A1").get(names::Value) == u"changed");
    CHECK(error_of([&] { again.call(names::SaveCopyAs, text_of(calc.folder() / "absent" / "c.xls")); }) == 1004);
    const Object fresh = calc.add_book();
    fresh.call(names::SaveCopyAs, text_of(calc.folder() / "fresh.xlsx"));
    CHECK(test::content_of(calc.folder() / "fresh.xlsx").starts_with("PK"));
    CHECK(fresh.get(names::Path) == u"");
}

TEST_CASE("where nothing can be written, everything stays as it was") {
    const Calc calc;
    const Object book = calc.reopened(table_book(calc), "stays.ods");
    const Object other = calc.reopened(table_book(calc), "other.ods");
    CHECK(error_of([&] { book.call(names::SaveAs, text_of(calc.folder() / "absent" / "b.ods")); }) == 1004);
    CHECK_FALSE(std::filesystem::exists(calc.folder() / "absent"));
    std::filesystem::create_directory(calc.folder() / "folder.ods");
    calc.application.put(names::DisplayAlerts, false);
    CHECK(error_of([&] { book.call(names::SaveAs, text_of(calc.folder() / "folder.ods")); }) == 1004);
    CHECK(error_of([&] { book.call(names::SaveAs, text_of(calc.folder() / "b.xls"), 39); }) == 1004);
    CHECK_FALSE(std::filesystem::exists(calc.folder() / "b.xls"));
    std::filesystem::create_directory(calc.folder() / "sub");
    CHECK(error_of([&] { book.call(names::SaveAs, text_of(calc.folder() / "sub" / "OTHER.ods")); }) == 1004);
    CHECK(book.get(names::Name) == u"stays.ods");
    CHECK(book.get(names::FileFormat) == 60);
    CHECK(other.get(names::Name) == u"other.ods");
    CHECK(error_of([&] { calc.add_book().call(names::Save); }) == 1004);
}

TEST_CASE("a read-only workbook is saved under another name only") {
    const Calc calc;
    calc.reopened(table_book(calc), "locked.ods").call(names::Close, false);
    const std::filesystem::path path = calc.folder() / "locked.ods";
    const std::string before = test::content_of(path);
    const Object book =
        calc.application.get(names::Workbooks).call(names::Open, text_of(path), named(names::ReadOnly, true)).object();
    CHECK(error_of([&] { book.call(names::Save); }) == 1004);
    CHECK(test::content_of(path) == before);
    book.call(names::SaveAs, text_of(calc.folder() / "free.ods"));
    CHECK(book.get(names::Name) == u"free.ods");
    CHECK(test::content_of(path) == before);
}

TEST_CASE("a workbook after a template") {
    const Calc calc;
    calc.reopened(table_book(calc), "template.xlsx").call(names::Close, false);
    const std::filesystem::path path = calc.folder() / "template.xlsx";
    const Object book = calc.application.get(names::Workbooks).call(names::Add, text_of(path));
    CHECK(book.get(names::Path) == u"");
    CHECK(cell(book.get(names::Worksheets, 2), u"B3").get(names::Value) == 25.0);
    CHECK(names_of_sheets(book) == "Sheet3;Sheet2;Sheet1;");
    CHECK(calc.application.get(names::ActiveWorkbook).object().is(book));
    const Object sheet_only = calc.application.get(names::Workbooks).call(names::Add, -4167);
    CHECK(sheet_only.get(names::Worksheets).get(names::Count) == 1);
    CHECK(error_of([&] { calc.application.get(names::Workbooks).call(names::Add, -4109); }) == 1004);
    CHECK(error_of([&] { calc.application.get(names::Workbooks).call(names::Add, u"/absent.xlt"); }) == 1004);
}

TEST_CASE("two workbooks of one name are not open at once") {
    const Calc calc;
    const Object book = calc.reopened(table_book(calc), "same.ods");
    std::filesystem::create_directory(calc.folder() / "sub");
    std::filesystem::copy_file(calc.folder() / "same.ods", calc.folder() / "sub" / "same.ods");
    CHECK(error_of([&] { calc.open(calc.folder() / "sub" / "same.ods"); }) == 1004);
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 1);
    book.call(names::Close, false);
    CHECK(utf8(calc.open(calc.folder() / "sub" / "same.ods").get(names::Path)) == (calc.folder() / "sub").string());
}

}  // namespace qor::calc::tests
