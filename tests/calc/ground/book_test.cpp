#include <com/sun/star/document/XUndoManagerSupplier.hpp>

#include "hosts/calc/adapter/ground/book.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// The only open workbook, as the office has it.
Document only_document() {
    return Host(office_context()).documents().front();
}

void remove_by_hand(const char* sheet) {
    Ref(only_document()->getSheets())->removeByName(rtl::OUString::createFromAscii(sheet));
}

void undo() {
    Ref(Ref<css::document::XUndoManagerSupplier>(only_document())->getUndoManager())->undo();
}

// What tools hold of a sheet.
struct Held {
    explicit Held(const Object& of)
        : sheet(of),
          cell(of.get(names::Range, u"A1")),
          links(of.get(names::Hyperlinks)),
          font(cell.get(names::Font)),
          areas(of.get(names::Range, u"A1:B2,D4").get(names::Areas)) {}

    bool is_gone() const {
        return error_of([&] { sheet.get(names::Name); }) == 1004 &&
               error_of([&] { sheet.get(names::Index); }) == 1004 &&
               error_of([&] { cell.get(names::Value); }) == 1004 &&
               error_of([&] { cell.put(names::Value, u"wrong sheet"); }) == 1004 &&
               error_of([&] { cell.get(names::Address); }) == 1004 &&
               error_of([&] { links.get(names::Count); }) == 1004 &&
               error_of([&] { font.put(names::Bold, true); }) == 1004 &&
               error_of([&] { areas.get(names::Item, 1); }) == 1004;
    }
    bool is_there() const {
        return error_of([&] { sheet.get(names::Name); }) == 0 && error_of([&] { cell.get(names::Value); }) == 0 &&
               error_of([&] { links.get(names::Count); }) == 0 && error_of([&] { areas.get(names::Item, 1); }) == 0;
    }

    Object sheet;
    Object cell;
    Object links;
    Object font;
    Object areas;
};

// Three sheets: One, Two and Three, each with its name in A1.
Object book_of_three(const Calc& calc) {
    const Object book = calc.add_book();
    const Object sheets = book.get(names::Worksheets);
    sheets.call(names::Add, Missing{}, Missing{}, 2);
    const char16_t* texts[] = {u"One", u"Two", u"Three"};
    for (std::int32_t i = 1; i <= 3; ++i) {
        sheets.get(names::Item, i).put(names::Name, texts[i - 1]);
        sheets.get(names::Item, i).get(names::Range, u"A1").put(names::Value, texts[i - 1]);
    }
    return book;
}

struct ThreeSheets {
    const Calc calc;
    const Object book = book_of_three(calc);
    const Object sheets = book.get(names::Worksheets);
    const Held one{sheets.get(names::Item, 1)};
    const Held two{sheets.get(names::Item, 2)};
    const Held three{sheets.get(names::Item, 3)};
};

}  // namespace

TEST_CASE_FIXTURE(ThreeSheets, "what is held of a sheet that the user deletes never reads the one in its place") {
    remove_by_hand("Two");
    CHECK(two.is_gone());
    CHECK(one.is_there());
    CHECK(three.is_there());
    CHECK(three.cell.get(names::Value) == u"Three");
    CHECK(three.sheet.get(names::Index) == 2);
    remove_by_hand("Three");
    CHECK(three.is_gone());
    CHECK(one.cell.get(names::Value) == u"One");
}

TEST_CASE_FIXTURE(ThreeSheets, "a deletion that is undone brings the sheet back, for those who held it too") {
    two.sheet.call(names::Delete);
    CHECK(two.is_gone());
    undo();
    CHECK(two.is_there());
    CHECK(two.cell.get(names::Value) == u"Two");
    CHECK(two.sheet.get(names::Index) == 2);
    CHECK(one.is_there());
    CHECK(three.is_there());
    CHECK(three.cell.get(names::Value) == u"Three");
    CHECK(three.sheet.get(names::Index) == 3);
    CHECK(book.get(names::Worksheets, u"Two").get(names::Range, u"A1").get(names::Value) == u"Two");
}

TEST_CASE_FIXTURE(ThreeSheets, "a sheet whose making is undone is gone") {
    const Held fresh(sheets.call(names::Add, two.sheet));
    CHECK(fresh.is_there());
    undo();
    CHECK(sheets.get(names::Count) == 3);
    CHECK(fresh.is_gone());
    CHECK(two.is_there());
    CHECK(two.cell.get(names::Value) == u"Two");
}

TEST_CASE_FIXTURE(ThreeSheets, "a sheet that is moved or renamed stays the same") {
    three.sheet.call(MemberName(u"Move"), one.sheet);
    three.sheet.put(names::Name, u"First");
    CHECK(one.is_there());
    CHECK(three.is_there());
    CHECK(three.sheet.get(names::Index) == 1);
    CHECK(three.cell.get(names::Value) == u"Three");
    CHECK(one.cell.get(names::Value) == u"One");
    undo();
    undo();
    CHECK(one.is_there());
    CHECK(three.is_there());
    CHECK(three.sheet.get(names::Index) == 3);
    CHECK(three.sheet.get(names::Name) == u"Three");
}

}  // namespace qor::calc::tests
