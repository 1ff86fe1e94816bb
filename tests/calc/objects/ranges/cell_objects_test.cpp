#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextContent.hpp>
#include <com/sun/star/util/XMergeable.hpp>

#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/service.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// The first sheet of the only open workbook, as the office has it.
Sheet only_sheet() {
    const auto host = std::make_shared<Host>(office_context());
    return Book{host, host->documents().front()}.sheets().front();
}

void insert_link(const Sheet& sheet, std::int32_t column, std::int32_t row) {
    const auto field = create_in<css::text::XTextContent>(sheet.book.document, "com.sun.star.text.TextField.URL");
    set_property(field, "URL", rtl::OUString("https://example.org/"));
    set_property(field, "Representation", rtl::OUString("example"));
    const Ref<css::text::XText> text(Ref{sheet.sheet->getCellByPosition(column, row)});
    const Ref cursor{text->createTextCursor()};
    text->insertTextContent(css::uno::Reference<css::text::XTextRange>(cursor.reference(), css::uno::UNO_QUERY),
                            field.reference(), false);
}

}  // namespace

TEST_CASE("links in cells are counted without asking every text") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    sheet.get(names::Range, u"A1:B2000").put(names::Value, u"plain text");
    CHECK(sheet.get(names::Hyperlinks).get(names::Count) == 0);
    insert_link(only_sheet(), 2, 4);
    insert_link(only_sheet(), 3, 4);
    sheet.get(names::Range, u"E1").put(names::Formula, u"=HYPERLINK(\"https://example.org/\")");
    const std::uint64_t before = host_calls;
    CHECK(sheet.get(names::Hyperlinks).get(names::Count) == 2);
    CHECK(host_calls - before < 40);
    CHECK(sheet.get(names::Range, u"C5").get(names::Hyperlinks).get(names::Count) == 1);
    CHECK(sheet.get(names::Range, u"A1:B9").get(names::Hyperlinks).get(names::Count) == 0);
    CHECK(sheet.get(names::Range, u"G1:H9").get(names::Hyperlinks).get(names::Count) == 0);
    for (const char* file : {"links.ods", "links.xlsx"}) {
        const std::filesystem::path path = calc.folder() / file;
        book.call(names::SaveAs, std::u16string(path.u16string()));
        book.call(names::Activate);
    }
    book.call(names::Close, false);
    const Object again = calc.open(calc.folder() / "links.xlsx").get(names::Worksheets, 1);
    CHECK(again.get(names::Hyperlinks).get(names::Count) == 2);
}

TEST_CASE("links are deleted where they are asked for, and their texts stay") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    for (const std::int32_t row : {0, 1, 2}) insert_link(only_sheet(), 0, row);
    const Object links = sheet.get(names::Hyperlinks);
    sheet.get(names::Range, u"G1:H9").get(names::Hyperlinks).call(names::Delete);
    CHECK(links.get(names::Count) == 3);
    sheet.get(names::Range, u"A1:B2").get(names::Hyperlinks).call(names::Delete);
    CHECK(links.get(names::Count) == 1);
    CHECK(sheet.get(names::Range, u"A1").get(names::Value) == u"example");
    sheet.call(names::Protect);
    CHECK(error_of([&] { links.call(names::Delete); }) == 1004);
    CHECK(links.get(names::Count) == 1);
    sheet.call(names::Unprotect);
    links.call(names::Delete);
    CHECK(links.get(names::Count) == 0);
    CHECK(sheet.get(names::Range, u"A3").get(names::Value) == u"example");
    const Object again = calc.reopened(book, "unlinked.xlsx").get(names::Worksheets, 1);
    CHECK(again.get(names::Hyperlinks).get(names::Count) == 0);
    CHECK(again.get(names::Range, u"A3").get(names::Value) == u"example");
}

TEST_CASE("merged cells") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Ref range{only_sheet().sheet->getCellRangeByName("B2:C3")};
    Ref<css::util::XMergeable>(range)->merge(true);
    CHECK(sheet.get(names::Range, u"B2").get(names::MergeCells) == true);
    CHECK(sheet.get(names::Range, u"C3").get(names::MergeCells) == true);
    CHECK(sheet.get(names::Range, u"A1").get(names::MergeCells) == false);
    sheet.get(names::Range, u"B2").put(names::Value, 4.0);
    CHECK(sheet.get(names::Range, u"B2:C3").get(names::Value).array()->at(0, 0) == 4.0);
    CHECK(sheet.get(names::Range, u"B2:C3").get(names::Value).array()->at(1, 1) == Variant(Empty{}));
}

TEST_CASE("a defined name is a range") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Sheet target = only_sheet();
    const Ref<css::sheet::XNamedRanges> defined(
        get_property<css::uno::Reference<css::sheet::XNamedRanges>>(target.book.document, "NamedRanges"));
    defined->addNewByName("input_area", "$Sheet1.$B$2:$C$4", {0, 0, 0}, 0);
    CHECK(sheet.get(names::Range, u"Input_Area").get(names::Address) == u"$B$2:$C$4");
    CHECK(calc.application.get(names::Range, u"input_area,E1").get(names::Address) == u"$B$2:$C$4,$E$1");
    sheet.get(names::Range, u"B2").put(names::Value, 2.0);
    sheet.get(names::Range, u"A1").put(names::Formula, u"=SUM(input_area)*2");
    CHECK(sheet.get(names::Range, u"A1").get(names::Value) == 4.0);
    CHECK(sheet.get(names::Range, u"A1").get(names::Formula) == u"=SUM(input_area)*2");
}

TEST_CASE("one cell is read and written with a few calls") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object cell = sheet.get(names::Range, u"B2");
    std::uint64_t before = host_calls;
    cell.put(names::Value, 5.0);
    CHECK(host_calls - before < 40);
    before = host_calls;
    cell.get(names::Value);
    CHECK(host_calls - before < 10);
}

}  // namespace qor::calc::tests
