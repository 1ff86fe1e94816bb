#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

constexpr std::int32_t unspecified_error = -2147467259;

struct TextProperty {
    const char16_t* name;
    std::int32_t index;
    const char16_t* value;
};
constexpr TextProperty text_properties[] = {
    {u"Title", 1, u"Budget"},     {u"Subject", 2, u"Next year"}, {u"Author", 3, u"Ada"},
    {u"Keywords", 4, u"money"},   {u"Comments", 5, u"Draft"},    {u"Category", 18, u"Plans"},
    {u"Manager", 20, u"Charles"}, {u"Company", 21, u"Engines"},  {u"Hyperlink Base", 29, u"https://example.org/"},
};

Object built_in(const Object& book, const char16_t* name) {
    return book.get(names::BuiltinDocumentProperties, name);
}

Object custom(const Object& book, const char16_t* name) {
    return book.get(names::CustomDocumentProperties, name);
}

Object add(const Object& book, const char16_t* name, std::int32_t type, const Variant& value) {
    return book.get(names::CustomDocumentProperties)
        .call(names::Add, named(names::Name, name), named(names::LinkToContent, false), named(names::Type, type),
              named(names::Value, value), named(names::LinkSource, false));
}

}  // namespace

TEST_CASE("built-in properties") {
    const Calc calc;
    const Object book = calc.add_book();
    CHECK(book.get(names::BuiltinDocumentProperties).get(names::Count) == 30);
    for (const TextProperty& property : text_properties) {
        INFO(to_utf8(property.name));
        const Object object = built_in(book, property.name);
        CHECK(object.get(names::Name) == property.name);
        CHECK(object.get(names::Type) == 4);
        CHECK(object.get(names::Value) == u"");
        book.put(names::Saved, true);
        object.put(names::Value, property.value);
        CHECK(book.get(names::Saved) == false);
        CHECK(book.get(names::BuiltinDocumentProperties, property.index).get(names::Value) == property.value);
    }
    CHECK(built_in(book, u"title").get(names::Value) == u"Budget");
    CHECK(built_in(book, u"Security").get(names::Value) == 0);
    CHECK(built_in(book, u"Total Editing Time").get(names::Type) == 1);
    CHECK(built_in(book, u"Application Name").get(names::Value) == u"LibreOffice Calc");
    CHECK(built_in(book, u"Creation Date").get(names::Type) == 3);
    for (const char16_t* name : {u"Last Print Date", u"Last Save Time", u"Number of Pages", u"Format"}) {
        INFO(to_utf8(name));
        CHECK(error_of([&] { built_in(book, name).get(names::Value); }) == unspecified_error);
    }
    CHECK(error_of([&] { built_in(book, u"Security").put(names::Value, 1); }) == unspecified_error);
    CHECK(error_of([&] { built_in(book, u"Title").call(names::Delete); }) == unspecified_error);
    CHECK(error_of([&] { built_in(book, u"No such"); }) == 5);
    CHECK(error_of([&] { book.get(names::BuiltinDocumentProperties, 31); }) == 5);
    CHECK(book.get(names::CustomDocumentProperties).get(names::Count) == 0);
}

TEST_CASE("custom properties") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object all = book.get(names::CustomDocumentProperties);
    CHECK(all.get(names::Count) == 0);
    add(book, u"Client", 4, u"Difference Ltd");
    add(book, u"Pages", 1, 12);
    add(book, u"Rate", 5, 0.5);
    add(book, u"Checked", 2, true);
    add(book, u"Date completed", 3, Date{38061.5});  // 15 March 2004, noon
    CHECK(all.get(names::Count) == 5);
    struct Row {
        const char16_t* name;
        std::int32_t type;
        Variant value;
    };
    const Row rows[] = {{u"client", 4, u"Difference Ltd"},
                        {u"Pages", 1, 12},
                        {u"Rate", 5, 0.5},
                        {u"Checked", 2, true},
                        {u"Date Completed", 3, Date{38061.5}}};
    for (const Row& row : rows) {
        INFO(to_utf8(row.name));
        CHECK(custom(book, row.name).get(names::Type) == row.type);
        CHECK(custom(book, row.name).get(names::Value) == row.value);
        CHECK(custom(book, row.name).get(names::LinkToContent) == false);
    }
    CHECK(custom(book, u"CLIENT").get(names::Name) == u"Client");
    custom(book, u"Client").put(names::Value, u"Other");
    CHECK(custom(book, u"Client").get(names::Value) == u"Other");
    custom(book, u"Client").put(names::Value, 3.5);  // of another kind
    CHECK(custom(book, u"Client").get(names::Value) == 3.5);
    CHECK(error_of([&] { custom(book, u"Absent").get(names::Value); }) == 5);
    CHECK(error_of([&] { all.get(names::Item, 6); }) == 5);
    CHECK(error_of([&] { add(book, u"Rate", 5, 1.0); }) == 5);
    CHECK(error_of([&] { add(book, u"Odd", 9, 1.0); }) == 5);
    CHECK(error_of([&] { add(book, u"Word", 1, u"no number"); }) == 13);

    const Object pages = custom(book, u"Pages");
    pages.call(names::Delete);
    CHECK(all.get(names::Count) == 4);
    CHECK(error_of([&] { pages.get(names::Value); }) == unspecified_error);
    CHECK(error_of([&] { pages.call(names::Delete); }) == unspecified_error);
    const Object rate = custom(book, u"Rate");
    book.call(names::Close, false);
    CHECK(error_of([&] { rate.get(names::Value); }) == 1004);
    CHECK(error_of([&] { all.get(names::Count); }) == 1004);
}

TEST_CASE("properties come back from files") {
    const Calc calc;
    for (const char* file : {"properties.xlsx", "properties.xls", "properties.ods"}) {
        INFO(file);
        const Object fresh = calc.add_book();
        for (const TextProperty& property : text_properties) {
            built_in(fresh, property.name).put(names::Value, property.value);
        }
        add(fresh, u"Sheet1", 4, u"$A$1:$B$9");
        add(fresh, u"Rate", 5, 0.25);
        add(fresh, u"Checked", 2, true);
        const Object book = calc.reopened(fresh, file);
        for (const TextProperty& property : text_properties) {
            INFO(to_utf8(property.name));
            CHECK(built_in(book, property.name).get(names::Value) == property.value);
        }
        CHECK(book.get(names::CustomDocumentProperties).get(names::Count) == 3);
        CHECK(custom(book, u"Sheet1").get(names::Value) == u"$A$1:$B$9");
        CHECK(custom(book, u"Rate").get(names::Value) == 0.25);
        CHECK(custom(book, u"Checked").get(names::Value) == true);
        CHECK(book.get(names::Saved) == true);
        book.call(names::Close, false);
    }
}

TEST_CASE("properties of a read-only workbook stay") {
    const Calc calc;
    const Object fresh = calc.add_book();
    add(fresh, u"Client", 4, u"Ada");
    calc.reopened(fresh, "fixed.ods").call(names::Close, false);
    const Object book =
        calc.application.get(names::Workbooks)
            .call(names::Open, from_utf8((calc.folder() / "fixed.ods").string()), named(names::ReadOnly, true));
    CHECK(error_of([&] { built_in(book, u"Title").put(names::Value, u"x"); }) == 1004);
    CHECK(error_of([&] { custom(book, u"Client").put(names::Value, u"x"); }) == 1004);
    CHECK(error_of([&] { custom(book, u"Client").call(names::Delete); }) == 1004);
    CHECK(error_of([&] { add(book, u"New", 4, u"x"); }) == 1004);
    CHECK(custom(book, u"Client").get(names::Value) == u"Ada");
}

}  // namespace qor::calc::tests
