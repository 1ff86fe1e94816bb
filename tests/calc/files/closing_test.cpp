#include <filesystem>

#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

Object changed_book(const Calc& calc) {
    const Object book = calc.add_book();
    book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 1.0);
    return book;
}

Variant first_cell(const Object& book) {
    return book.get(names::Worksheets, 1).get(names::Range, u"A1").get(names::Value);
}

std::int32_t open_books(const Calc& calc) {
    return *calc.application.get(names::Workbooks).get(names::Count).get_if<std::int32_t>();
}

}  // namespace

TEST_CASE("a changed workbook asks before it is closed") {
    const Calc calc;
    const Object book = changed_book(calc);
    const std::string name = utf8(book.get(names::Name));
    calc.user->answers = {MessageAnswer::cancel};
    book.call(names::Close);
    CHECK(open_books(calc) == 1);
    REQUIRE(calc.user->messages.size() == 1);
    const MessageBox& message = calc.user->messages[0];
    CHECK(to_utf8(message.text) == "Do you want to save the changes you made to '" + name + "'?");
    CHECK(message.buttons == MessageButtons::yes_no_cancel);
    CHECK(default_answer(message) == MessageAnswer::yes);

    calc.user->answers = {MessageAnswer::no};
    book.call(names::Close);
    CHECK(open_books(calc) == 0);
    CHECK(error_of([&] { book.get(names::Saved); }) == 1004);
    CHECK(error_of([&] { book.call(names::Close); }) == 1004);
    CHECK(error_of([&] { book.call(names::Save); }) == 1004);
}

TEST_CASE("Yes saves a workbook in its file") {
    const Calc calc;
    const Object book = calc.reopened(changed_book(calc), "kept.ods");
    book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 2.0);
    calc.user->answers = {MessageAnswer::yes};
    book.call(names::Close);
    CHECK(open_books(calc) == 0);
    CHECK(calc.user->file_questions.empty());
    CHECK(first_cell(calc.open(calc.folder() / "kept.ods")) == 2.0);
}

TEST_CASE("Yes asks for the file of a workbook that has none") {
    const Calc calc;
    const Object book = changed_book(calc);
    const Variant name = book.get(names::Name);
    calc.user->answers = {MessageAnswer::yes, MessageAnswer::yes};
    book.call(names::Close);  // no file is chosen
    CHECK(open_books(calc) == 1);
    REQUIRE(calc.user->file_questions.size() == 1);
    CHECK(Variant(calc.user->file_questions[0].file_name) == name);
    calc.user->files = {from_utf8((calc.folder() / "named.xlsx").string())};
    book.call(names::Close);
    CHECK(open_books(calc) == 0);
    CHECK(first_cell(calc.open(calc.folder() / "named.xlsx")) == 1.0);
}

TEST_CASE("workbooks that are closed without a question") {
    const Calc calc;
    calc.add_book().call(names::Close);
    changed_book(calc).call(names::Close, false);
    const Object saved = changed_book(calc);
    saved.put(names::Saved, true);
    CHECK(saved.get(names::Saved) == true);
    saved.call(names::Close);
    const Object with_changes = calc.reopened(changed_book(calc), "changes.xls");
    with_changes.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 3.0);
    with_changes.call(names::Close, named(names::SaveChanges, true));
    calc.application.put(names::DisplayAlerts, false);
    changed_book(calc).call(names::Close);
    CHECK(open_books(calc) == 0);
    CHECK(calc.user->messages.empty());
    CHECK(first_cell(calc.open(calc.folder() / "changes.xls")) == 3.0);
}

TEST_CASE("SaveChanges takes the name of the file") {
    const Calc calc;
    const Object book = changed_book(calc);
    const std::u16string path = from_utf8((calc.folder() / "given.ods").string());
    book.call(names::Close, true, path);
    CHECK(open_books(calc) == 0);
    CHECK(first_cell(calc.open(calc.folder() / "given.ods")) == 1.0);
}

TEST_CASE("closing all workbooks leaves the one that the user keeps") {
    const Calc calc;
    const Object kept = changed_book(calc);
    changed_book(calc);
    calc.add_book();
    calc.user->answers = {MessageAnswer::cancel, MessageAnswer::no};
    calc.application.get(names::Workbooks).call(names::Close);
    CHECK(calc.user->messages.size() == 2);
    CHECK(open_books(calc) == 1);
    CHECK(calc.application.get(names::Workbooks, 1).object().is(kept));
}

}  // namespace qor::calc::tests
