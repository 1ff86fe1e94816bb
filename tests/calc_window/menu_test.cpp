#include <com/sun/star/frame/Desktop.hpp>

#include "hosts/calc/bars/office_faces.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/calc/support/office_loop.hpp"
#include "tests/calc_window/menu_steps.hpp"
#include "tests/calc_window/pointer.hpp"
#include "tests/calc_window/toolbar_window.hpp"

namespace qor::calc::tests {
namespace {

using namespace std::chrono_literals;

std::shared_ptr<Bars> bars() {
    return Bars::of(office_context());
}

std::u16string url_of(const ToolGroup& group) {
    for (const BarPointer& bar : bars()->all()) {
        if (bar->name == name_of_bar(group)) return bar->url;
    }
    return {};
}

// The macros that were run.
class Macros {
  public:
    Macros() {
        bars()->set_macro_runner([this](const std::u16string& macro) { run.push_back(macro); });
    }
    ~Macros() { bars()->set_macro_runner({}); }

    bool come_to(const std::vector<std::u16string>& expected) {
        office_comes_to([&] { return run.size() >= expected.size(); });
        return run == expected;
    }

    std::vector<std::u16string> run;
};

// A menu in a window, and nothing of it afterwards.
struct ShownMenu {
    ShownMenu() {
        create_menu(calc.application, faces);
        let_office_work(500ms);
    }
    ~ShownMenu() {
        delete_menu(calc.application);
        let_office_work(200ms);
    }

    Calc calc;
    Object book = calc.add_book();
    OfficeFaces faces{office_context()};
};

}  // namespace

TEST_CASE("the steps of the menu give a menu and three floating toolbars") {
    const ShownMenu shown;
    const auto layouts = bars()->ui().layouts();
    REQUIRE(layouts.size() == 1);
    const int buttons[] = {5, 6, 5};
    for (std::size_t place = 0; place < 3; ++place) {
        const ToolGroup& group = tool_groups()[place];
        CAPTURE(place);
        const ToolbarWindow window(layouts[0], url_of(group));
        CHECK(window.visible());
        CHECK(window.floating());
        CHECK(window.buttons() == buttons[place]);
        const Object bar = shown.calc.application.get(names::CommandBars, name_of_bar(group));
        CHECK(bar.get(names::Position) == 4);
        CHECK(bar.get(names::Left) == 65);
        CHECK(bar.get(names::Top) == group.top);
        CHECK(bar.get(names::Height) == 49);
        CHECK(bar.get(names::Width) == group.width);
        CHECK(bar.get(names::Visible) == true);
    }
    take_picture("toolbars");
    press_key("alt+q");
    let_office_work(500ms);
    press_key("Right");
    take_picture("menu");
    press_key("Escape");
    press_key("Escape");
    press_key("Escape");
}

TEST_CASE("a click on a button and a choice in the list run their macros") {
    const ShownMenu shown;
    Macros macros;
    const auto layout = bars()->ui().layouts().at(0);
    const ToolbarWindow reports(layout, url_of(tool_groups()[0]));
    const auto date_review = reports.middle_of(u"Date Review");
    REQUIRE(date_review);
    click_at(date_review->X, date_review->Y);
    CHECK(macros.come_to({u"UTDatRev"}));

    const ToolbarWindow worksheets(layout, url_of(tool_groups()[2]));
    const auto list = worksheets.middle_of_list();
    REQUIRE(list);
    click_at(list->X, list->Y);
    let_office_work(700ms);  // two clicks, not a double one
    take_picture("list");
    constexpr int second_line = 37;  // pixels below the list's middle
    click_at(list->X, list->Y + second_line);
    CHECK(macros.come_to({u"UTDatRev", u"UTBoo"}));
    const Object control = shown.calc.application.get(names::CommandBars, name_of_bar(tool_groups()[2]))
                               .call(names::FindControl, 3, Missing{}, std::u16string(menu_title));
    CHECK(control.get(names::ListIndex) == 2);
    CHECK(control.get(names::Text) == u"Sales of the year");
}

TEST_CASE("an entry of the menu runs its macro") {
    const ShownMenu shown;
    Macros macros;
    for (const char* key : {"alt+q", "r", "i"}) press_key(key);
    CHECK(macros.come_to({u"UTCelInf"}));
}

TEST_CASE("a window opened later has the toolbars too, and none is left when they are deleted") {
    std::vector<std::u16string> urls;
    const Calc calc;
    const Object first = calc.add_book();
    {
        OfficeFaces faces(office_context());
        create_menu(calc.application, faces);
        let_office_work(300ms);
        for (const ToolGroup& group : tool_groups()) urls.push_back(url_of(group));
        const Object second = calc.add_book();
        let_office_work(500ms);
        const auto layouts = bars()->ui().layouts();
        REQUIRE(layouts.size() == 2);
        for (const auto& layout : layouts) {
            for (const std::u16string& url : urls) CHECK(ToolbarWindow(layout, url).floating());
            CHECK(ToolbarWindow(layout, urls[2]).middle_of_list());
        }
        // The office shows them with the window that is in front.
        for (const std::u16string& url : urls) CHECK(ToolbarWindow(layouts[0], url).visible());
        take_picture("second-window");
        second.call(names::Close, false);
        let_office_work(500ms);
        for (const std::u16string& url : urls) CHECK(ToolbarWindow(bars()->ui().layouts().at(0), url).visible());
        delete_menu(calc.application);
        let_office_work(300ms);
    }
    for (const std::u16string& url : urls) {
        CHECK(!bars()->ui().layouts().at(0)->getElement(to_uno(url)).is());
        CHECK(!bars()->ui().manager()->hasSettings(to_uno(url)));
        CHECK(!bars()->ui().window_states()->hasByName(to_uno(url)));
    }
    CHECK(calc.application.get(names::CommandBars, 1).get(names::Controls).get(names::Count) == 11);
    take_picture("deleted");
}

TEST_CASE("toolbars move while they are shown") {
    const ShownMenu shown;
    const auto layout = bars()->ui().layouts().at(0);
    const ToolGroup& group = tool_groups()[0];
    const ToolbarWindow window(layout, url_of(group));
    const Object bar = shown.calc.application.get(names::CommandBars, name_of_bar(group));
    const auto corner = [&] {
        const auto middle = window.middle_of(u"Cell Color");
        return middle ? *middle : css::awt::Point();
    };
    const css::awt::Point before = corner();
    bar.put(names::Left, 165);
    bar.put(names::Top, 339);
    let_office_work(300ms);
    CHECK(corner().X - before.X == 100);
    CHECK(corner().Y - before.Y == 200);
    CHECK(bar.get(names::Width) == 137);

    bar.put(names::Position, 3);
    let_office_work(300ms);
    CHECK(window.visible());
    CHECK(!window.floating());
    CHECK(bar.get(names::Position) == 3);
    bar.put(names::Position, 1);
    bar.put(names::RowIndex, 1);
    bar.put(names::Left, 200);
    let_office_work(300ms);
    CHECK(bar.get(names::RowIndex) == 1);
    CHECK(bar.get(names::Left) == 200);
    take_picture("docked");

    bar.put(names::Position, 4);
    let_office_work(300ms);
    CHECK(window.visible());
    CHECK(window.floating());
    CHECK(corner().X - before.X == 100);
    CHECK(corner().Y - before.Y == 200);
    CHECK(bar.get(names::Left) == 165);
    CHECK(bar.get(names::Top) == 339);
    CHECK(office_comes_to([&] { return bar.get(names::Width) == 137 && bar.get(names::Height) == 49; }));
    bar.put(names::Visible, false);
    let_office_work(300ms);
    CHECK(!window.visible());
    CHECK(bar.get(names::Visible) == false);
    bar.put(names::Visible, true);
    let_office_work(300ms);
    CHECK(window.visible());
    CHECK(window.floating());
}

TEST_CASE("a toolbar that comes again in the same window stands where it is put now") {
    const Calc calc;
    const Object book = calc.add_book();
    let_office_work(300ms);
    const auto layout = bars()->ui().layouts().at(0);
    for (const std::int32_t position : {1, 4, 3, 4}) {
        CAPTURE(position);
        const Object bar = calc.application.get(names::CommandBars).call(names::Add, u"Again");
        const Object control = bar.get(names::Controls).call(names::Add, 1);
        control.put(names::Caption, u"Button");
        bar.put(names::Position, position);
        bar.put(names::Visible, true);
        let_office_work(200ms);
        const ToolbarWindow window(layout, bars()->all().back()->url);
        CHECK(window.visible());
        CHECK(window.floating() == (position == 4));
        CHECK(window.buttons() == 1);
        CHECK(bar.get(names::Position) == position);
        bar.call(names::Delete);
        let_office_work(100ms);
        CHECK(!window.visible());
    }
}

}  // namespace qor::calc::tests
