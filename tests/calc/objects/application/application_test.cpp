#include <fstream>

#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("the way to write references") {
    const Calc calc;
    CHECK(calc.application.get(names::ReferenceStyle) == 1);
    calc.application.put(names::ReferenceStyle, -4150);
    CHECK(calc.application.get(names::ReferenceStyle) == -4150);
    CHECK(error_of([&] { calc.application.put(names::ReferenceStyle, 3); }) == 1004);
    CHECK(calc.application.get(names::ReferenceStyle) == -4150);
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"B2").put(names::Formula, u"=A1+$C$3");
    CHECK(sheet.get(names::Range, u"B2").get(names::Formula) == u"=A1+$C$3");
    calc.application.put(names::ReferenceStyle, 1);
    CHECK(calc.application.get(names::ReferenceStyle) == 1);
}

TEST_CASE("the status bar") {
    const Calc calc;
    const Object book = calc.add_book();
    CHECK(calc.application.get(names::StatusBar) == false);
    calc.application.put(names::StatusBar, u"Locating Links.");
    CHECK(calc.application.get(names::StatusBar) == u"Locating Links.");
    book.call(names::Close, false);
    calc.application.put(names::StatusBar, u"");
    CHECK(calc.application.get(names::StatusBar) == u"");
    calc.application.put(names::StatusBar, false);
    CHECK(calc.application.get(names::StatusBar) == false);
}

TEST_CASE("help") {
    const Calc calc;
    const std::string page = (calc.folder() / "help page.html").string();
    std::ofstream(page) << "<html/>";
    calc.application.call(names::Help, from_utf8(page));
    calc.application.call(names::Help, named(names::HelpFile, from_utf8(page)), named(names::HelpContextID, 170120));
    calc.application.call(names::Help, u"https://example.org/help");
    const std::u16string address = u"file://" + from_utf8(calc.folder().string()) + u"/help%20page.html";
    CHECK(Variant(calc.user->pages.at(0)) == Variant(address));
    CHECK(Variant(calc.user->pages.at(1)) == Variant(address + u"#170120"));
    CHECK(Variant(calc.user->pages.at(2)) == u"https://example.org/help");
    CHECK(error_of([&] { calc.application.call(names::Help, u"/no/such/help.html"); }) == 1004);
    CHECK(error_of([&] { calc.application.call(names::Help); }) == 1004);
    CHECK(error_of([&] { calc.application.call(names::Help, u"mailto:someone@example.org"); }) == 1004);
    CHECK(calc.user->pages.size() == 3);
    calc.user->shows_pages = false;
    CHECK(error_of([&] { calc.application.call(names::Help, from_utf8(page)); }) == 1004);
}

TEST_CASE("a file name to save under") {
    const Calc calc;
    CHECK(calc.application.call(names::GetSaveAsFilename) == false);
    REQUIRE(calc.user->file_questions.size() == 1);
    CHECK(Variant(calc.user->file_questions[0].title) == u"Save As");
    REQUIRE(calc.user->file_questions[0].kinds.size() == 1);
    CHECK(Variant(calc.user->file_questions[0].kinds[0].pattern) == u"*.*");

    calc.user->files = {u"/tmp/first", u"/tmp/second.xls", u"/tmp/third"};
    const auto ask = [&](const char16_t* filter, std::int32_t index) {
        return calc.application.call(names::GetSaveAsFilename, named(names::InitialFilename, u"Untitled 1"),
                                     named(names::FileFilter, filter), named(MemberName(u"FilterIndex"), index),
                                     named(names::Title, u"Save All"));
    };
    CHECK(ask(u"Microsoft Excel Workbook (*.xls), *.xls", 1) == u"/tmp/first.xls");
    const FileDialog& question = calc.user->file_questions.back();
    CHECK(Variant(question.title) == u"Save All");
    CHECK(Variant(question.file_name) == u"Untitled 1");
    CHECK(question.purpose == FileDialog::Purpose::save);
    REQUIRE(question.kinds.size() == 1);
    CHECK(Variant(question.kinds[0].description) == u"Microsoft Excel Workbook (*.xls)");
    CHECK(Variant(question.kinds[0].pattern) == u"*.xls");
    CHECK(ask(u"Texts,*.txt,Other texts,*.csv;*.prn", 2) == u"/tmp/second.xls");
    CHECK(calc.user->file_questions.back().chosen_kind == 1);
    CHECK(ask(u"Texts,*.txt,Other texts,*.csv;*.prn", 2) == u"/tmp/third.csv");
    CHECK(ask(u"Texts,*.txt", 1) == false);
    CHECK(error_of([&] { ask(u"Texts,*.txt,Alone", 1); }) == 1004);
}

TEST_CASE("a range that the user marks") {
    const Calc calc;
    const Object book = calc.add_book();
    book.get(names::Worksheets).call(names::Add);
    calc.user->ranges = {u"B2:C3", u"Sheet1!$D$4,Sheet1!$F$6", u"no range"};
    const auto ask = [&] {
        return calc.application.call(names::InputBox, u"Please select range", u"Add-in", Missing{}, Missing{},
                                     Missing{}, Missing{}, Missing{}, 8);
    };
    const Object range = ask();
    CHECK(range.get(names::Address) == u"$B$2:$C$3");
    CHECK(range.get(names::Worksheet).get(names::Name) == u"Sheet2");
    REQUIRE(calc.user->range_questions.size() == 1);
    CHECK(Variant(calc.user->range_questions[0].prompt) == u"Please select range");
    CHECK(Variant(calc.user->range_questions[0].title) == u"Add-in");
    const Object areas = ask();
    CHECK(areas.get(names::Address) == u"$D$4,$F$6");
    CHECK(areas.get(names::Worksheet).get(names::Name) == u"Sheet1");
    CHECK(error_of([&] { ask(); }) == 1004);
    CHECK(ask() == false);
    calc.application.call(names::InputBox, named(names::Prompt, u"?"), named(names::Default, range),
                          named(names::Type, 8));
    CHECK(Variant(calc.user->range_questions.back().proposed) == u"$B$2:$C$3");
    CHECK(error_of([&] { calc.application.call(names::InputBox, u"A text?"); }) == 1004);
}

TEST_CASE("options of functions") {
    const Calc calc;
    for (const char16_t* name : {u"ARNS", u"WCapital", u"dar", u"SUM"}) {
        calc.application.call(names::MacroOptions, named(names::Macro, name), named(names::Description, u"Text"),
                              named(names::Category, 1), named(names::HelpContextID, 100030),
                              named(names::HelpFile, u"/help"));
    }
    CHECK(error_of([&] { calc.application.call(names::MacroOptions, u"NOSUCHFUNCTION"); }) == 1004);
}

TEST_CASE("the workbook of the macros is a folder") {
    const Calc calc;
    CHECK(calc.application.get(names::ThisWorkbook).get(names::Path) == u"/usr/share/companion");
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 0);
}

}  // namespace qor::calc::tests
