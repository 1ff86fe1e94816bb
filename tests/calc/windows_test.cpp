#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>

#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "tests/calc/fixture.hpp"

namespace qor::calc::tests {
namespace {

void open_second_window() {
    const Ref desktop{css::frame::Desktop::create(office_context())};
    const css::uno::Reference<css::frame::XDispatchProvider> frame(desktop->getCurrentFrame(), css::uno::UNO_QUERY);
    Ref(css::frame::DispatchHelper::create(office_context()))->executeDispatch(frame, ".uno:NewWindow", {}, 0, {});
}

}  // namespace

TEST_CASE("windows of a workbook") {
    const Calc calc;
    const Object book = calc.reopened(calc.add_book(), "windows.xlsx");
    CHECK(book.get(names::Windows).get(names::Count) == 1);
    CHECK(book.get(names::Windows, 1).get(names::Caption) == u"windows.xlsx");
    CHECK(book.get(names::Windows, 1).get(names::Visible) == true);
    CHECK(calc.application.get(names::ActiveWindow).get(names::Caption) == u"windows.xlsx");

    book.call(names::Activate);
    open_second_window();
    REQUIRE(book.get(names::Windows).get(names::Count) == 2);
    CHECK(book.get(names::Windows, 1).get(names::Caption) == u"windows.xlsx:1");
    CHECK(book.get(names::Windows, 2).get(names::Caption) == u"windows.xlsx:2");
    CHECK(calc.application.get(names::Windows, u"WINDOWS.xlsx:2").get(names::Caption) == u"windows.xlsx:2");
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 1);
    book.get(names::Windows, 2).put(names::Visible, false);
    CHECK(book.get(names::Windows, 2).get(names::Visible) == false);
    book.get(names::Windows, 2).put(names::Visible, true);
    CHECK(error_of([&] { book.get(names::Windows, 3); }) == 9);
}

TEST_CASE("a workbook loaded without a window to see") {
    const Calc calc;
    const Object visible = calc.add_book();
    const std::string path = (calc.folder() / "hidden.ods").string();
    visible.call(names::SaveAs, std::u16string(path.begin(), path.end()));
    visible.call(names::Close, false);
    const Object front = calc.add_book();
    const std::u16string address = u"file://" + std::u16string(path.begin(), path.end());
    const Ref desktop{css::frame::Desktop::create(office_context())};
    desktop->loadComponentFromURL(to_uno(address), "_blank", 0, sequence_of({named_value("Hidden", true)}));
    const Object hidden = calc.application.get(names::Workbooks, u"hidden.ods");
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 2);
    CHECK(hidden.get(names::Windows, 1).get(names::Visible) == false);
    CHECK(calc.application.get(names::ActiveWorkbook).object().is(front));
}

TEST_CASE("groups of sheets") {
    const Calc calc;
    const Object book = calc.add_book();
    book.get(names::Worksheets).call(names::Add);
    book.get(names::Worksheets).call(names::Add);
    book.get(names::Worksheets, 1).call(names::Select);
    book.get(names::Worksheets, 3).call(names::Select, false);
    const Object selected = calc.application.get(names::ActiveWindow).get(names::SelectedSheets);
    CHECK(selected.get(names::Count) == 2);
    CHECK(selected.get(names::Item, 2).get(names::Index) == 3);
    book.get(names::Worksheets, 2).call(names::Select);
    CHECK(calc.application.get(names::ActiveWindow).get(names::SelectedSheets).get(names::Count) == 1);
}

}  // namespace qor::calc::tests
