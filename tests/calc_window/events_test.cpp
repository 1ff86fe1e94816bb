#include "hosts/calc/events/event_source.hpp"

#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>

#include "hosts/calc/bars/module_ui.hpp"
#include "hosts/calc/events/open_dialog.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/calc/support/office_loop.hpp"
#include "tests/calc_window/pointer.hpp"

namespace qor::calc::tests {
namespace {

using namespace std::chrono_literals;

Ref<css::frame::XFrame> front_window() {
    return ModuleUi(office_context()).frames().at(0);
}

void run_command(const char* command) {
    const css::uno::Reference<css::frame::XDispatchProvider> window(front_window().reference(), css::uno::UNO_QUERY);
    Ref {
        css::frame::DispatchHelper::create(office_context())
        } -> executeDispatch(window, rtl::OUString::createFromAscii(command), {}, 0, {});
}

}  // namespace

TEST_CASE("nothing is told while a dialog of the office is open") {
    const Calc calc;
    const Object book = calc.add_book();
    let_office_work(300ms);
    int ticks = 0;
    int selections = 0;
    HostEvents events;
    events.selection_changed = [&](const SelectionPlace&) { ++selections; };
    const EventSource source(office_context(), events);
    CHECK(!is_dialog_open(office_context()));
    run_command(".uno:FormatCellDialog");
    REQUIRE(office_comes_to([] { return is_dialog_open(office_context()); }));
    let_office_work(300ms);
    const auto timer = source.make_timer([&] { ++ticks; });
    timer->set(10ms);
    book.get(names::Worksheets, 1).get(names::Range, u"C5").call(names::Select);
    let_office_work(300ms);
    CHECK(ticks == 0);
    CHECK(selections == 0);
    press_key("Escape");
    CHECK(office_comes_to([] { return !is_dialog_open(office_context()); }));
    CHECK(office_comes_to([&] { return ticks >= 2 && selections == 1; }));
}

TEST_CASE("the keyboard moves the selection, and another window comes to the front") {
    const Calc calc;
    const Object first = calc.add_book();
    let_office_work(300ms);
    std::vector<std::u16string> addresses;
    std::vector<std::u16string> windows;
    HostEvents events;
    events.selection_changed = [&](const SelectionPlace& place) { addresses.push_back(place.address); };
    events.window_activated = [&](const std::u16string& name) { windows.push_back(name); };
    const EventSource source(office_context(), events);
    press_key("Down");
    press_key("shift+Right");
    CHECK(office_comes_to([&] { return addresses.size() >= 2; }));
    CHECK(addresses == std::vector<std::u16string>{u"$A$2", u"$A$2:$B$2"});

    windows.clear();
    const Object second = calc.add_book();
    const std::u16string name = *second.get(names::Name).get_if<std::u16string>();
    CHECK(office_comes_to([&] { return !windows.empty() && windows.back() == name; }));
    second.call(names::Close, false);
}

}  // namespace qor::calc::tests
