#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/frame/Desktop.hpp>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/uno/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// The undo lists of the open workbooks in the order of their opening.
std::vector<Ref<css::document::XUndoManager>> undo_lists() {
    std::vector<Ref<css::document::XUndoManager>> result;
    for (const Document& document : Host(office_context()).documents()) {
        result.emplace_back(Ref<css::document::XUndoManagerSupplier>(document)->getUndoManager());
    }
    return result;
}

}  // namespace

TEST_CASE("a command is one step of undo in each workbook that it changes") {
    const Calc calc;
    const Object changed = calc.add_sheet();
    const Object untouched = calc.add_sheet();
    const auto lists = undo_lists();
    for (const auto& list : lists) list->clear();
    {
        const UndoStep step(u"Worksheet Summary");
        changed.get(names::Range, u"A1").put(names::Value, 1.0);
        changed.get(names::Range, u"A2:B3").put(names::Value, u"x");
        changed.get(names::Range, u"A1").get(names::Font).put(names::Bold, true);
        untouched.get(names::Range, u"A1").get(names::Value);
    }
    REQUIRE(lists.size() == 2);
    CHECK(lists[0]->getAllUndoActionTitles().getLength() == 1);
    CHECK(view_of(lists[0]->getCurrentUndoActionTitle()) == u"Worksheet Summary");
    CHECK(lists[1]->getAllUndoActionTitles().getLength() == 0);
    lists[0]->undo();
    CHECK(changed.get(names::Range, u"A1").get(names::Value) == Variant(Empty{}));
    CHECK(changed.get(names::Range, u"B3").get(names::Value) == Variant(Empty{}));
    CHECK(changed.get(names::Range, u"A1").get(names::Font).get(names::Bold) == false);
    lists[0]->redo();
    CHECK(changed.get(names::Range, u"B3").get(names::Value) == u"x");
}

TEST_CASE("a step ends when its command fails, and when a workbook is closed in it") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object closing = calc.add_book();
    const std::int32_t error = error_of([&] {
        const UndoStep step(u"Failing");
        sheet.get(names::Range, u"A1").put(names::Value, 1.0);
        closing.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 1.0);
        closing.call(names::Close, false);
        sheet.get(names::Range, u"no such range");
    });
    CHECK(error == 1004);
    const auto lists = undo_lists();
    CHECK_FALSE(lists[0]->isUndoPossible() == false);
    sheet.get(names::Range, u"A2").put(names::Value, 2.0);
    lists[0]->undo();
    CHECK(sheet.get(names::Range, u"A1").get(names::Value) == 1.0);
    CHECK(sheet.get(names::Range, u"A2").get(names::Value) == Variant(Empty{}));
}

TEST_CASE("values and formats of scattered cells are undone and redone, though their sheet was away in between") {
    const Calc calc;
    const Object sheets = calc.add_book().get(names::Worksheets).object();
    const auto list = undo_lists().front();
    list->clear();
    {
        const UndoStep step(u"Add");
        sheets.call(names::Add);
    }
    const auto cell = [&](const char16_t* address) { return sheets.get(names::Item, 1).get(names::Range, address); };
    cell(u"B3").put(names::NumberFormat, u"0%");
    {
        const UndoStep step(u"Change");
        cell(u"A1,B2,D3:D4").put(names::NumberFormat, u"0.00");
        cell(u"B3,D3:D3").put(names::NumberFormat, u"#,##0");
        cell(u"C1:C2").put(names::Value, u"x");
    }
    const auto check_changed = [&] {
        CHECK(cell(u"A1").get(names::NumberFormat) == u"0.00");
        CHECK(cell(u"A2").get(names::NumberFormat) == u"General");
        CHECK(cell(u"B2").get(names::NumberFormat) == u"0.00");
        CHECK(cell(u"B3").get(names::NumberFormat) == u"#,##0");
        CHECK(cell(u"D3").get(names::NumberFormat) == u"#,##0");
        CHECK(cell(u"D4").get(names::NumberFormat) == u"0.00");
        CHECK(cell(u"C2").get(names::Value) == u"x");
    };
    check_changed();
    CHECK(list->getAllUndoActionTitles().getLength() == 3);
    for (int step = 0; step < 3; ++step) list->undo();
    CHECK(sheets.get(names::Count) == 1);
    for (int step = 0; step < 3; ++step) list->redo();
    check_changed();
    list->undo();
    CHECK(cell(u"A1:A9").get(names::NumberFormat) == u"General");
    CHECK(cell(u"D1:D9").get(names::NumberFormat) == u"General");
    CHECK(cell(u"B3").get(names::NumberFormat) == u"0%");
    CHECK(cell(u"C2").get(names::Value) == Variant(Empty{}));
    // What the user does afterwards is recorded as before.
    cell(u"A1").put(names::Value, 1.0);
    CHECK(list->getAllUndoActionTitles().getLength() == 3);
}

TEST_CASE("a comment that is shown or hidden is no step of undo") {
    const Calc calc;
    const Object cell = calc.add_sheet().get(names::Range, u"B2").object();
    cell.call(MemberName(u"AddComment"), u"Ask the board");
    const auto list = undo_lists().front();
    list->clear();
    cell.put(names::Value, 1.0);
    const Object comment = cell.get(names::Comment).object();
    comment.put(names::Visible, true);
    comment.put(names::Visible, false);
    {
        const UndoStep step(u"Selection");
        comment.put(names::Visible, true);
    }
    CHECK(comment.get(names::Visible) == true);
    CHECK(list->getAllUndoActionTitles().getLength() == 1);
    cell.put(names::Value, 2.0);
    CHECK(list->getAllUndoActionTitles().getLength() == 2);
    list->undo();
    CHECK(cell.get(names::Value) == 1.0);
    CHECK(comment.get(names::Visible) == true);
}

}  // namespace qor::calc::tests
