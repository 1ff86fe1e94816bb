#include <com/sun/star/awt/PosSize.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/ui/XModuleUIConfigurationManager.hpp>
#include <com/sun/star/util/URLTransformer.hpp>

#include "hosts/calc/bars/bars.hpp"
#include "hosts/calc/bars/office_faces.hpp"
#include "hosts/calc/uno/running_command.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/calc/support/office_loop.hpp"

namespace qor::calc::tests {
namespace {

constexpr std::int32_t button = 1;
constexpr std::int32_t drop_down = 3;
constexpr std::int32_t popup = 10;
constexpr std::int32_t help_menu = 30010;
const MemberName built_in{u"BuiltIn"};
const MemberName enabled{u"Enabled"};

Object menu_bar(const Calc& calc) {
    return calc.application.get(names::CommandBars, 1);
}

Object help_of(const Calc& calc) {
    return menu_bar(calc).call(names::FindControl, popup, help_menu);
}

// Deletes all that carries the tag, as a menu is taken down.
void delete_tagged(const Calc& calc, std::u16string_view tag) {
    for (const Variant& bar : calc.application.get(names::CommandBars).object().items()) {
        for (;;) {
            const Object control = bar.call(names::FindControl, Missing{}, Missing{}, std::u16string(tag));
            if (!control) break;
            control.call(names::Delete);
        }
    }
}

std::shared_ptr<Bars> bars() {
    return Bars::of(office_context());
}

// The commands and labels of what a bar shows in all windows.
std::vector<std::u16string> shown_on(std::u16string_view url) {
    std::vector<std::u16string> labels;
    if (!bars()->ui().manager()->hasSettings(to_uno(url))) return labels;
    for (const ControlPointer& control :
         built_in_controls(bars()->ui(), bars()->ui().manager()->getSettings(to_uno(url), false))) {
        labels.push_back(control->caption);
    }
    return labels;
}

bool is_default(std::u16string_view url) {
    return Ref<css::ui::XModuleUIConfigurationManager>(bars()->ui().manager())->isDefaultSettings(to_uno(url));
}

// What a click on an own control does in the first window.
void click(std::u16string_view command) {
    css::util::URL url;
    url.Complete = to_uno(command);
    css::util::URLTransformer::create(office_context())->parseStrict(url);
    const Ref<css::frame::XDispatchProvider> window(bars()->ui().frames().at(0));
    const Ref dispatch{window->queryDispatch(url, "_self", 0)};
    dispatch->dispatch(url, {});
}

std::u16string last_command() {
    return bars()->controls(*bars()->all().back()).back()->command;
}

}  // namespace

TEST_CASE("the main menu bar is the first of the command bars") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object bar = menu_bar(calc);
    CHECK(bar.get(names::Name) == u"Worksheet Menu Bar");
    CHECK(bar.get(names::Index) == 1);
    CHECK(bar.get(names::Type) == 1);
    CHECK(bar.get(names::Position) == 1);
    CHECK(bar.get(names::Visible) == true);
    CHECK(bar.get(names::Controls).get(names::Count) == 11);
    CHECK(bar.get(names::Controls, 1).get(names::Caption) == u"&File");
    CHECK(bar.get(names::Controls, u"tools").get(names::Id) == 30007);
    CHECK(calc.application.get(names::CommandBars, u"worksheet menu bar").object().is(bar));

    const Object help = help_of(calc);
    REQUIRE(help);
    CHECK(help.get(names::Caption) == u"&Help");
    CHECK(help.get(names::Type) == 10);
    CHECK(help.get(names::Index) == 11);
    CHECK(help.get(names::Parent).object().is(bar));
    CHECK(help.get(names::Controls).get(names::Count).get_if<std::int32_t>() != nullptr);
    CHECK(error_of([&] { help.call(names::Delete); }) == 1004);
    CHECK(error_of([&] { help.put(names::Caption, u"Aid"); }) == 1004);
    CHECK(error_of([&] { bar.call(names::Delete); }) == 1004);
    CHECK(error_of([&] { bar.put(names::Visible, false); }) == 1004);
    CHECK(error_of([&] { bar.get(names::Controls, 12); }) == 5);
    CHECK(error_of([&] { bar.get(names::Controls, u"No such menu"); }) == 5);
    CHECK(error_of([&] { calc.application.get(names::CommandBars, u"No such bar"); }) == 5);
    CHECK(error_of([&] { calc.application.get(names::CommandBars, 1000); }) == 9);
    CHECK(!bar.call(names::FindControl, popup, 30099).object());
}

TEST_CASE("a popup before the Help menu") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object controls = menu_bar(calc).get(names::Controls);
    const Object top =
        controls.call(names::Add, named(names::Type, popup), named(names::Before, help_of(calc).get(names::Index)),
                      named(names::Temporary, false));
    CHECK(top.get(names::Type) == 10);
    CHECK(top.get(names::Index) == 11);
    CHECK(help_of(calc).get(names::Index) == 12);
    top.put(names::Caption, u"&Bars test");
    top.put(names::Tag, u"Bars test");
    CHECK(top.get(names::Caption) == u"&Bars test");
    CHECK(top.get(names::Tag) == u"Bars test");
    CHECK(top.get(names::Id) == 1);
    CHECK(controls.get(names::Item, u"Bars test").object().is(top));

    const Object entry = top.get(names::Controls).call(names::Add, button);
    entry.put(names::BeginGroup, true);
    entry.put(names::Caption, u"Cell && &Information");
    entry.put(names::OnAction, u"UTCelInf");
    entry.put(names::Tag, u"Bars test");
    CHECK(entry.get(names::BeginGroup) == true);
    CHECK(entry.get(names::Caption) == u"Cell && &Information");
    CHECK(entry.get(names::OnAction) == u"UTCelInf");
    CHECK(entry.get(names::ToolTipText) == u"Cell & Information");
    entry.put(names::ToolTipText, u"Cell Information");
    CHECK(entry.get(names::ToolTipText) == u"Cell Information");
    CHECK(entry.get(names::Index) == 1);
    CHECK(entry.get(names::Parent).object().is(top));
    CHECK(top.get(names::Controls).get(names::Parent).object().is(top));
    CHECK(entry.get(names::Visible) == true);
    CHECK(top.get(names::Controls).object().items().size() == 1);

    // Only what is looked for recursively is found in popups.
    CHECK(menu_bar(calc).call(names::FindControl, button, Missing{}, u"Bars test").object().is(Object()));
    CHECK(menu_bar(calc).call(names::FindControl, button, Missing{}, u"Bars test", Missing{}, true).object().is(entry));
    CHECK(calc.application.get(names::CommandBars)
              .call(names::FindControl, button, Missing{}, u"Bars test")
              .object()
              .is(entry));

    delete_tagged(calc, u"Bars test");
    CHECK(controls.get(names::Count) == 11);
    CHECK(help_of(calc).get(names::Index) == 11);
    CHECK(error_of([&] { top.get(names::Caption); }) == 1004);
    CHECK(error_of([&] { entry.get(names::Caption); }) == 1004);
    CHECK(error_of([&] { top.get(names::Controls); }) == 1004);
    CHECK(error_of([&] { entry.call(names::Delete); }) == 1004);
}

TEST_CASE("what is added to the menu bar is shown at once in all windows, and nothing stays") {
    const Calc calc;
    const Object book = calc.add_book();
    CHECK(is_default(menu_bar_url));
    const Object top =
        menu_bar(calc)
            .get(names::Controls)
            .call(names::Add, named(names::Type, popup), named(names::Before, help_of(calc).get(names::Index)));
    top.put(names::Caption, u"&Shown");
    const Object inner = top.get(names::Controls).call(names::Add, popup);
    inner.put(names::Caption, u"&Inner");
    inner.get(names::Controls).call(names::Add, button).put(names::Caption, u"First ~ entry");
    const Object guest = menu_bar(calc).get(names::Controls, u"Tools").get(names::Controls).call(names::Add, button);
    guest.put(names::Caption, u"A guest");
    let_office_work();
    CHECK(!is_default(menu_bar_url));
    const auto content = bars()->ui().manager()->getSettings(to_uno(menu_bar_url), false);
    REQUIRE(content->getCount() == 12);
    PropertyValues item;
    REQUIRE((content->getByIndex(10) >>= item));
    CHECK(std::ranges::any_of(item, [](const auto& property) {
        return property.Name == "Label" && property.Value == css::uno::Any(rtl::OUString("~Shown"));
    }));

    guest.call(names::Delete);
    top.call(names::Delete);
    let_office_work();
    CHECK(bars()->ui().manager()->getSettings(to_uno(menu_bar_url), false)->getCount() == 11);
    CHECK(is_default(menu_bar_url));
}

TEST_CASE("a control on a bar of the office") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object bar = calc.application.get(names::CommandBars, u"Standard");
    CHECK(bar.get(built_in) == true);
    const std::int32_t count = *bar.get(names::Controls).get(names::Count).get_if<std::int32_t>();
    CHECK(count > 10);
    const Object control = bar.get(names::Controls).call(names::Add, button, Missing{}, Missing{}, 3);
    control.put(names::Caption, u"Guest");
    control.put(names::Tag, u"Guest");
    CHECK(control.get(names::Index) == 3);
    let_office_work();
    CHECK(!is_default(u"private:resource/toolbar/standardbar"));
    delete_tagged(calc, u"Guest");
    CHECK(bar.get(names::Controls).get(names::Count) == count);
    let_office_work();
    CHECK(is_default(u"private:resource/toolbar/standardbar"));
}

TEST_CASE("a toolbar of our own") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object all = calc.application.get(names::CommandBars);
    const std::int32_t count = *all.get(names::Count).get_if<std::int32_t>();
    const Object bar =
        all.call(names::Add, named(names::Name, u"Test - Report Manager"), named(names::Temporary, true));
    CHECK(all.get(names::Count) == count + 1);
    CHECK(bar.get(names::Index) == count + 1);
    CHECK(bar.get(names::Name) == u"Test - Report Manager");
    CHECK(bar.get(built_in) == false);
    CHECK(bar.get(names::Visible) == false);
    CHECK(bar.get(names::Position) == 4);
    CHECK(bar.get(names::Controls).get(names::Count) == 0);
    CHECK(all.get(names::Item, u"test - report manager").object().is(bar));
    CHECK(error_of([&] { all.call(names::Add, u"Test - Report Manager"); }) == 5);
    CHECK(error_of([&] { all.call(names::Add, u"A menu bar", 1, true); }) == 1004);
    CHECK(error_of([&] { bar.put(names::Position, 5); }) == 1004);
    const Object unnamed = all.call(names::Add);
    CHECK(unnamed.get(names::Name) == u"Custom 1");
    unnamed.call(names::Delete);

    const Object control = bar.get(names::Controls).call(names::Add, button);
    control.put(names::Caption, u"Cell Color");
    bar.put(names::Visible, true);
    let_office_work();
    const std::u16string url = bars()->all().back()->url;
    CHECK(bars()->ui().manager()->getSettings(to_uno(url), false)->getCount() == 1);
    CHECK(shown_on(url).empty());  // nothing of the office's

    bar.call(names::Delete);
    let_office_work();
    CHECK(all.get(names::Count) == count);
    CHECK(!bars()->ui().manager()->hasSettings(to_uno(url)));
    CHECK(!bars()->ui().window_states()->hasByName(to_uno(url)));
    CHECK(error_of([&] { bar.get(names::Visible); }) == 1004);
    CHECK(error_of([&] { bar.call(names::Delete); }) == 1004);
    CHECK(error_of([&] { control.get(names::Caption); }) == 1004);
    CHECK(error_of([&] { all.get(names::Item, u"Test - Report Manager"); }) == 5);
}

// Without a screen the office forgets where its window is when it tells where a toolbar floats in it.
void move_window_to_corner() {
    const auto desktop = css::frame::Desktop::create(office_context());
    desktop->getCurrentFrame()->getContainerWindow()->setPosSize(0, 0, 0, 0, css::awt::PosSize::POS);
}

TEST_CASE("places of a toolbar read back what was set, before and after it is shown") {
    const Calc calc;
    const Object book = calc.add_book();
    move_window_to_corner();
    const Object bar = calc.application.get(names::CommandBars).call(names::Add, u"Placed");
    bar.get(names::Controls).call(names::Add, button).put(names::Caption, u"One");
    bool shown_first = false;
    SUBCASE("before") {}
    SUBCASE("after") {
        shown_first = true;
    }
    if (shown_first) {
        bar.put(names::Visible, true);
        let_office_work();
    }
    bar.put(names::Position, 4);
    bar.put(names::Height, 49);
    bar.put(names::Top, 203);
    bar.put(names::Width, 316);
    bar.put(names::Left, 75);
    bar.put(names::Visible, true);
    CHECK(bar.get(names::Position) == 4);
    CHECK(bar.get(names::Height) == 49);
    CHECK(bar.get(names::Top) == 203);
    CHECK(bar.get(names::Width) == 316);
    CHECK(bar.get(names::Left) == 75);
    CHECK(bar.get(names::Visible) == true);
    let_office_work();
    CHECK(bar.get(names::Left) == 75);
    CHECK(bar.get(names::Top) == 203);
    for (const std::int32_t position : {1, 3}) {
        CAPTURE(position);
        bar.put(names::Position, position);
        bar.put(names::RowIndex, 1);
        bar.put(names::Left, 30);
        let_office_work();
        CHECK(bar.get(names::Position) == position);
        CHECK(bar.get(names::RowIndex) == 1);
        CHECK(bar.get(names::Left) == 30);
    }
    bar.put(names::Position, 0);
    CHECK(bar.get(names::Position) == 0);
    bar.put(names::Position, 2);
    CHECK(bar.get(names::Position) == 2);
    bar.put(names::Position, 4);
    CHECK(bar.get(names::Position) == 4);
    CHECK(bar.get(names::Top) == 203);
    bar.put(names::Visible, false);
    let_office_work();
    CHECK(bar.get(names::Visible) == false);
    bar.call(names::Delete);
    let_office_work();
}

TEST_CASE("a drop-down list on a toolbar") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object bar = calc.application.get(names::CommandBars).call(names::Add, u"Listed");
    const Object list = bar.get(names::Controls).call(names::Add, drop_down);
    list.put(names::BeginGroup, true);
    list.put(names::DropDownWidth, 150);
    list.put(names::OnAction, u"UTBoo");
    list.put(names::Width, list.get(names::DropDownWidth));
    CHECK(list.get(names::Type) == 3);
    CHECK(list.get(names::DropDownWidth) == 150);
    CHECK(list.get(names::Width) == 150);
    CHECK(list.get(names::ListCount) == 0);
    CHECK(list.get(names::ListIndex) == 0);
    CHECK(list.get(names::Text) == u"");
    list.call(names::AddItem, u"second");
    list.call(names::AddItem, u"first", 1);
    CHECK(list.get(names::ListCount) == 2);
    CHECK(list.get(names::List, 1) == u"first");
    CHECK(list.get(names::List, 2) == u"second");
    list.put(names::ListIndex, 2);
    CHECK(list.get(names::ListIndex) == 2);
    CHECK(list.get(names::Text) == u"second");
    list.put(names::List, 2, u"another");
    CHECK(list.get(names::List, 2) == u"another");
    CHECK(list.get(names::Text) == u"another");
    CHECK(error_of([&] { list.put(names::List, 3, u"beyond"); }) == 5);
    list.put(names::List, 2, u"second");
    list.call(names::RemoveItem, 1);
    CHECK(list.get(names::ListIndex) == 1);
    CHECK(list.get(names::Text) == u"second");
    CHECK(error_of([&] { list.put(names::ListIndex, 2); }) == 5);
    CHECK(error_of([&] { list.call(names::RemoveItem, 0); }) == 5);
    CHECK(error_of([&] { list.get(names::List, 2); }) == 5);
    CHECK(error_of([&] { list.call(names::PasteFace); }) == 438);
    list.call(names::Clear);
    CHECK(list.get(names::ListCount) == 0);
    CHECK(list.get(names::ListIndex) == 0);
    const Object entry = menu_bar(calc).get(names::Controls).call(names::Add, popup);
    CHECK(error_of([&] { entry.get(names::Controls).call(names::Add, drop_down); }) == 1004);
    entry.call(names::Delete);
    CHECK(error_of([&] { bar.get(names::Controls).call(names::Add, 2); }) == 1004);
    CHECK(error_of([&] { bar.get(names::Controls).call(names::Add, button, 3); }) == 1004);
    bar.call(names::Delete);
    let_office_work();
}

TEST_CASE("a click runs the control's macro from the main loop, and none while a command runs") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object bar = calc.application.get(names::CommandBars).call(names::Add, u"Clicked");
    const Object control = bar.get(names::Controls).call(names::Add, button);
    control.put(names::Caption, u"Click me");
    control.put(names::OnAction, u"UTNav");
    std::vector<std::u16string> macros;
    bars()->set_macro_runner([&](const std::u16string& macro) { macros.push_back(macro); });
    let_office_work();

    click(last_command());
    CHECK(macros.empty());  // the office is to have done with the click
    let_office_work();
    CHECK(macros == std::vector<std::u16string>{u"UTNav"});

    {
        const RunningCommand command;
        click(last_command());
        let_office_work();
    }
    let_office_work();
    CHECK(macros.size() == 1);

    control.put(enabled, false);
    click(last_command());
    let_office_work();
    CHECK(macros.size() == 1);

    // A macro may take away the bar that it came from.
    control.put(enabled, true);
    bars()->set_macro_runner([&](const std::u16string&) { bar.call(names::Delete); });
    click(last_command());
    let_office_work();
    CHECK(error_of([&] { bar.get(names::Name); }) == 1004);
    bars()->set_macro_runner({});
}

TEST_CASE("a face is pasted from the clipboard for faces") {
    const Calc calc;
    const Object bar = calc.application.get(names::CommandBars).call(names::Add, u"Faced");
    const Object control = bar.get(names::Controls).call(names::Add, button);
    bars()->face_on_clipboard = {};
    CHECK(error_of([&] { control.call(names::PasteFace); }) == 1004);
    OfficeFaces faces(office_context());
    CHECK(error_of([&] { faces.put(u"NO SUCH FACE"); }) == 326);
    CHECK(error_of([&] { control.call(names::PasteFace); }) == 1004);
    faces.put(u"CELCOL");
    control.call(names::PasteFace);
    let_office_work();
    const Ref<css::ui::XImageManager> images(Ref{bars()->ui().manager()->getImageManager()});
    const rtl::OUString command = to_uno(last_command());
    constexpr sal_Int16 sizes[] = {0, 1, 2};
    for (const auto size : sizes) CHECK(images->hasImage(size, command));
    bar.call(names::Delete);
    for (const auto size : sizes) CHECK(!images->hasImage(size, command));
    let_office_work();
}

TEST_CASE("bars are there without a workbook") {
    const Calc calc;
    CHECK(help_of(calc).get(names::Index) == 11);
    const Object bar = calc.application.get(names::CommandBars).call(names::Add, u"Early");
    bar.get(names::Controls).call(names::Add, button).put(names::Caption, u"One");
    bar.put(names::Visible, true);
    let_office_work();
    const Object book = calc.add_book();
    let_office_work();
    CHECK(bar.get(names::Visible) == true);
    bar.call(names::Delete);
    let_office_work();
}

}  // namespace qor::calc::tests
