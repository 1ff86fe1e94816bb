#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XTitle.hpp>

#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "tests/calc/support/fixture.hpp"

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
    calc.application.get(names::Windows, u"windows.xlsx:2").call(names::Activate);
    CHECK(book.get(names::Windows, 1).get(names::Caption) == u"windows.xlsx:2");
    CHECK(book.get(names::Windows, 2).get(names::Caption) == u"windows.xlsx:1");
    CHECK(calc.application.get(names::ActiveWindow).get(names::Caption) == u"windows.xlsx:2");
    CHECK(calc.application.get(names::Windows, u"WINDOWS.xlsx:2").get(names::Caption) == u"windows.xlsx:2");
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 1);
    CHECK(error_of([&] { book.get(names::Windows, 3); }) == 9);
    CHECK(error_of([&] { book.get(names::Windows, u"windows.xlsx"); }) == 9);
    calc.application.get(names::Windows, u"windows.xlsx:1").call(names::Activate);
    CHECK(book.get(names::Windows, 1).get(names::Caption) == u"windows.xlsx:1");
    CHECK(book.get(names::Windows, u"windows.xlsx:2").get(names::Index) == 2);
}

TEST_CASE("windows are ordered by when they were active") {
    const Calc calc;
    const Object first = calc.reopened(calc.add_book(), "first.ods");
    const Object second = calc.reopened(calc.add_book(), "second.ods");
    const Object third = calc.reopened(calc.add_book(), "third.ods");
    const auto order = [&] {
        std::string captions;
        for (const Variant& window : calc.application.get(names::Windows).object().items()) {
            captions += utf8(window.get(names::Caption)) + ";";
        }
        return captions;
    };
    CHECK(order() == "third.ods;second.ods;first.ods;");
    first.call(names::Activate);
    CHECK(order() == "first.ods;third.ods;second.ods;");
    const Object window = second.get(names::Windows, 1);
    CHECK(window.get(names::Index) == 3);
    window.call(names::Activate);
    CHECK(window.get(names::Index) == 1);
    CHECK(order() == "second.ods;first.ods;third.ods;");
    CHECK(calc.application.get(names::ActiveWorkbook).object().is(second));
    CHECK(calc.application.get(names::Windows, 2).get(names::Parent).object().is(first));
    CHECK(calc.application.get(names::Windows).get(names::Count) == 3);
    CHECK(calc.application.get(names::ActiveWindow).object().is(window));

    second.call(names::Close, false);
    CHECK(order() == "first.ods;third.ods;");
    CHECK(error_of([&] { window.get(names::Caption); }) == 1004);
    CHECK(error_of([&] { window.get(names::Index); }) == 1004);
    CHECK(error_of([&] { window.call(names::Activate); }) == 1004);
    CHECK(error_of([&] { window.put(names::Visible, false); }) == 1004);
    CHECK(error_of([&] { window.get(names::SelectedSheets); }) == 1004);
}

TEST_CASE("windows of which none can be seen") {
    const Calc calc;
    const Object first = calc.reopened(calc.add_book(), "first.ods");
    const Object second = calc.reopened(calc.add_book(), "second.ods");
    const Object hidden = calc.application.get(names::Windows, u"second.ods");
    hidden.put(names::Visible, false);
    CHECK(hidden.get(names::Visible) == false);
    CHECK(calc.application.get(names::ActiveWorkbook).object().is(first));
    CHECK(calc.application.get(names::ActiveSheet).get(names::Parent).object().is(first));
    CHECK(calc.application.get(names::Windows).get(names::Count) == 2);
    CHECK(error_of([&] { hidden.call(names::Activate); }) == 1004);
    second.call(names::Activate);
    CHECK(calc.application.get(names::ActiveWorkbook).object().is(first));

    calc.application.get(names::Windows, u"first.ods").put(names::Visible, false);
    for (const MemberName& member :
         {names::ActiveWorkbook, names::ActiveWindow, names::ActiveSheet, names::ActiveCell, names::Selection}) {
        CHECK_FALSE(calc.application.get(member).object());
    }
    CHECK(error_of([&] { calc.application.get(names::Range, u"A1"); }) == 1004);
    hidden.put(names::Visible, true);
    CHECK(calc.application.get(names::ActiveWorkbook).object().is(second));
}

TEST_CASE("a caption that is given") {
    const Calc calc;
    const Object book = calc.reopened(calc.add_book(), "captions.ods");
    const Object window = book.get(names::Windows, 1);
    window.put(names::Caption, u"captions.ods [Read-Only]");
    CHECK(window.get(names::Caption) == u"captions.ods [Read-Only]");
    CHECK(calc.application.get(names::Windows, u"captions.ods [Read-Only]").object().is(window));
    CHECK(error_of([&] { calc.application.get(names::Windows, u"captions.ods"); }) == 9);
    CHECK(book.get(names::Name) == u"captions.ods");
    const Ref desktop{css::frame::Desktop::create(office_context())};
    const Ref<css::frame::XTitle> frame(Ref{desktop->getCurrentFrame()});
    CHECK(view_of(frame->getTitle()) == u"captions.ods [Read-Only]");
    book.call(names::Close, false);
    CHECK(calc.open(calc.folder() / "captions.ods").get(names::Windows, 1).get(names::Caption) == u"captions.ods");
}

TEST_CASE("arranging") {
    const Calc calc;
    const Object first = calc.reopened(calc.add_book(), "first.ods");
    const Object second = calc.reopened(calc.add_book(), "second.ods");
    const Object all = calc.application.get(names::Windows);
    for (const std::int32_t style : {1, -4128, -4166, 7}) CHECK(all.call(names::Arrange, style, false) == true);
    CHECK(all.call(names::Arrange, named(names::ArrangeStyle, 1), named(MemberName(u"ActiveWorkbook"), true)) == true);
    CHECK(second.get(names::Windows).call(names::Arrange, 7, true) == true);
    CHECK(all.call(names::Arrange) == true);
    CHECK(error_of([&] { all.call(names::Arrange, 2); }) == 1004);
    CHECK(calc.application.get(names::ActiveWorkbook).object().is(second));
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
    const Array list = Array::list({u"sheet1", 2});
    book.get(names::Worksheets).get(names::Item, list).call(names::Select);
    std::string together;
    for (const Variant& sheet : book.get(names::Windows, 1).get(names::SelectedSheets).object().items()) {
        together += utf8(sheet.get(names::Name)) + ";";
    }
    CHECK(together == "Sheet2;Sheet1;");
}

}  // namespace qor::calc::tests
