#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/util/XCloseable.hpp>

#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/adapter/objects/object_model.hpp"
#include "platform/text.hpp"
#include "tests/calc/objects/every_object.hpp"

// An object of every kind is held while what it belongs to goes away; then each of its members is asked for.
namespace qor::calc::tests {

TEST_CASE("what is held of a sheet that is deleted raises an error, whatever it is asked") {
    const Calc calc;
    const Object book = full_book(calc);
    const Object sheet = book.get(names::Worksheets, 1);
    const std::vector<Object> objects = objects_of_sheet(sheet);
    calc.application.put(names::DisplayAlerts, false);
    sheet.call(names::Delete);
    CHECK(text_of(answers_of(objects)) == "");
    CHECK(book.get(names::Worksheets).get(names::Count) == 1);
}

TEST_CASE("a sheet that goes away while a command runs is gone at once") {
    const Calc calc;
    const RunningCommand command;
    const Object sheets = calc.add_book().get(names::Worksheets);
    sheets.call(names::Add, Missing{}, Missing{}, 2);
    const Object sheet = sheets.get(names::Item, 2);
    const Object cell = sheet.get(names::Cells, 1, 1);
    sheets.get(names::Item, 3).get(names::Range, u"A1").put(names::Value, u"next");
    CHECK(cell.get(names::Value) == Variant(Empty{}));
    calc.application.put(names::DisplayAlerts, false);
    sheet.call(names::Delete);
    CHECK(error_of([&] { cell.get(names::Value); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Cells, 1, 1); }) == 1004);
    const Object moved = sheets.get(names::Item, 2);
    const Object kept = moved.get(names::Cells, 1, 1);
    CHECK(kept.get(names::Value) == u"next");
    moved.call(names::Move, sheets.get(names::Item, 1));
    CHECK(kept.get(names::Value) == u"next");
    CHECK(moved.get(names::Cells, 1, 1).get(names::Value) == u"next");
    kept.get(names::EntireRow).call(names::Insert);
    CHECK(moved.get(names::Cells, 1, 1).get(names::Value) == Variant(Empty{}));
    CHECK(moved.get(names::Cells, 2, 1).get(names::Value) == u"next");
    moved.get(names::Parent).call(names::Close, false);
    CHECK(error_of([&] { kept.get(names::Value); }) == 1004);
    CHECK(error_of([&] { moved.get(names::Cells, 1, 1); }) == 1004);
}

TEST_CASE("what is held of a workbook that is closed raises an error, whatever it is asked") {
    const Calc calc;
    const Object other = calc.add_sheet();
    const Object book = full_book(calc);
    const std::vector<Object> objects = objects_of_book(book);
    book.call(names::Close, false);
    CHECK(text_of(answers_of(objects)) == "");
    CHECK(other.get(names::UsedRange).get(names::Count) == 1);
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 1);
}

TEST_CASE("what is held of a workbook's second window raises an error once that is closed") {
    const Calc calc;
    const Object book = calc.add_book();
    const Ref<css::frame::XModel> model(Host(office_context()).documents().back());
    const css::uno::Reference<css::frame::XDispatchProvider> frame(
        Ref { model->getCurrentController() } -> getFrame(), css::uno::UNO_QUERY_THROW);
    Ref(css::frame::DispatchHelper::create(office_context()))->executeDispatch(frame, ".uno:NewWindow", {}, 0, {});
    REQUIRE(book.get(names::Windows).get(names::Count) == 2);
    const Object window = book.get(names::Windows, *book.get(names::Name).get_if<std::u16string>() + u":2");
    const auto host = std::make_shared<Host>(office_context());
    const Ref<css::util::XCloseable> second(Ref{Book{host, host->documents().back()}.controllers().back()->getFrame()});
    second->close(true);
    CHECK(text_of(answers_of({window})) == "");
    CHECK(book.get(names::Windows).get(names::Count) == 1);
}

TEST_CASE("an object of every kind that a workbook has is held in these tests") {
    const Calc calc;
    std::set<std::string> kinds;
    for (const Object& object : objects_of_book(full_book(calc))) kinds.insert(kind_of(object));
    std::set<std::string> others;
    for (const ObjectDescription& object : object_model()) {
        if (!kinds.contains(to_utf8(object.name))) others.insert(to_utf8(object.name));
    }
    CHECK(text_of(others) ==
          "Application; CommandBar; CommandBarButton; CommandBarComboBox; CommandBarControls; CommandBarPopup; "
          "CommandBars; RecentFile; RecentFiles; ThisWorkbook; Workbooks; WorksheetFunction; ");
}

}  // namespace qor::calc::tests
