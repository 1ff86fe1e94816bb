#include <com/sun/star/text/ControlCharacter.hpp>
#include <com/sun/star/text/XText.hpp>

#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/service.hpp"
#include "tests/calc/support/whole_document.hpp"

namespace qor::calc::tests {
namespace {

using Text = Ref<css::text::XText>;

css::uno::Reference<css::text::XTextRange> end_of(const Text& text) {
    const Ref cursor{text->createTextCursor()};
    cursor->gotoEnd(false);
    return {cursor.reference(), css::uno::UNO_QUERY};
}

void append(const Text& text, const char* characters, const char* property, const css::uno::Any& value) {
    text->insertString(end_of(text), rtl::OUString::createFromAscii(characters), false);
    const Ref cursor{text->createTextCursor()};
    cursor->gotoEnd(false);
    cursor->goLeft(static_cast<sal_Int16>(std::string_view(characters).size()), true);
    Ref<css::beans::XPropertySet>(cursor)->setPropertyValue(rtl::OUString::createFromAscii(property), value);
}

// "small red heavy", each word with one look more, and a second line with a link.
void write_rich_text(const Sheet& sheet, std::int32_t column, std::int32_t row) {
    const Text text(Ref{sheet.sheet->getCellByPosition(column, row)});
    append(text, "small ", "CharHeight", css::uno::Any(8.0F));
    append(text, "red ", "CharColor", css::uno::Any(sal_Int32{0xff0000}));
    append(text, "heavy", "CharWeight", css::uno::Any(150.0F));
    text->insertControlCharacter(end_of(text), css::text::ControlCharacter::PARAGRAPH_BREAK, false);
    const auto field = create_in<css::text::XTextContent>(sheet.book.document, "com.sun.star.text.TextField.URL");
    set_property(field, "URL", rtl::OUString("https://example.org/"));
    set_property(field, "Representation", rtl::OUString("example"));
    text->insertTextContent(end_of(text), field.reference(), false);
}

Sheet first_sheet() {
    const auto host = std::make_shared<Host>(office_context());
    return Book{host, host->documents().back()}.sheets().front();
}

// An array that is refused at its last cell.
Array refused_array() {
    Array array = Array::table(3, 2);
    for (std::size_t place = 0; place < 6; ++place) array.at(place) = u"12%";
    array.at(0, 1) = u"=1+1";
    array.at(2, 1) = u"=1 2";
    return array;
}

}  // namespace

TEST_CASE("a refused write leaves texts whose parts look different, in new and in loaded workbooks") {
    const Calc calc;
    Object book = calc.add_book();
    book.get(names::Worksheets, 1).get(names::Range, u"A1:A2").put(names::Value, u"plain");
    write_rich_text(first_sheet(), 0, 2);
    write_rich_text(first_sheet(), 1, 1);
    for (const char* file : {"", "rich.ods", "rich.xlsx", "rich.xls"}) {
        CAPTURE(file);
        if (*file) book = calc.reopened(book, file);
        const Object sheet = book.get(names::Worksheets, 1);
        // With the first change and the first saving the office measures a loaded sheet.
        sheet.get(names::Range, u"D1").put(names::Value, 1.0);
        sheet.get(names::Range, u"1:3").put(names::RowHeight, 30.0);
        static_cast<void>(whole_document());
        const std::string before = whole_document();
        REQUIRE(before.find("heavy") != std::string::npos);
        REQUIRE(before.find("https://example.org/") != std::string::npos);
        CHECK(error_of([&] { sheet.get(names::Range, u"A1:B3").put(names::Value, refused_array()); }) == 1004);
        CHECK(whole_document() == before);
        CHECK(error_of([&] { sheet.get(names::Range, u"B2").put(names::Formula, u"=1 2"); }) == 1004);
        CHECK(whole_document() == before);
        CHECK(error_of([&] { sheet.get(names::Range, u"A3").put(names::FormulaArray, u"=1 2"); }) == 1004);
        CHECK(whole_document() == before);
    }
}

}  // namespace qor::calc::tests
