#include "ui/list_box.hpp"

#include <doctest/doctest.h>

#include <stdexcept>

#include "tests/fakes/fake_screen.hpp"
#include "ui/combo_box.hpp"
#include "ui/form.hpp"
#include "ui/pick_box.hpp"
#include "ui/spin_box.hpp"
#include "ui/tabs.hpp"

using namespace qor;

namespace {

class frmSample final : public Form {
  public:
    explicit frmSample(Screen& screen) : Form(u"frmSample", screen) {}
    std::u16string_view caption() const noexcept override { return u"Sample"; }

    ListBox one{*this, u"one", {{u"Name"}, {u"Size"}}};
    ListBox several{*this, u"several", {{u"Name"}}, ListBox::Selecting::several_rows};
    SpinBox spin{*this, u"spin", u"5", 1, 60};
    PickBox folder{*this, u"folder", u"FOLDER"};
    Tabs tabs{*this, u"tabs", {u"General", u"Reports"}};
    ComboBox combo{*this, u"combo", {u"Right", u"Left"}, 0};
};

struct Fixture {
    fakes::FakeScreen screen;
    frmSample form{screen};
};

std::u16string first_column(const ListBox& list) {
    std::u16string all;
    for (std::size_t row = 0; row < list.count(); ++row) all += list.text(row, 0);
    return all;
}

}  // namespace

TEST_CASE_FIXTURE(Fixture, "a row has a text for each column") {
    form.one.add_row({u"b"});
    CHECK((form.one.text(0, 1) == u""));
    form.one.set_text(0, 1, u"12");
    CHECK((form.one.text(0, 1) == u"12"));
    CHECK_THROWS_AS(form.one.text(1, 0), std::out_of_range);
}

TEST_CASE_FIXTURE(Fixture, "one row or several are selected, and the selection goes with its rows") {
    for (const auto* text : {u"a", u"b", u"c"}) {
        form.one.add_row({text});
        form.several.add_row({text});
    }
    form.one.set_selected(0, true);
    form.one.set_selected(2, true);
    CHECK((form.one.selection() == std::set<std::size_t>{2}));
    form.several.set_selected(0, true);
    form.several.set_selected(2, true);
    CHECK((form.several.selection() == std::set<std::size_t>{0, 2}));
    form.several.remove_row(0);
    CHECK((form.several.selection() == std::set<std::size_t>{1}));
    CHECK((form.several.text(*form.several.selected_row(), 0) == u"c"));
    form.several.clear();
    CHECK_FALSE(form.several.selected_row().has_value());
}

TEST_CASE_FIXTURE(Fixture, "a click on a caption sorts, a second one the other way round") {
    for (const auto* text : {u"b", u"C", u"a"}) form.one.add_row({text});
    form.one.set_selected(1, true);
    form.one.click_caption(0);
    CHECK((first_column(form.one) == u"abC"));
    CHECK((form.one.selection() == std::set<std::size_t>{2}));
    form.one.click_caption(0);
    CHECK((first_column(form.one) == u"Cba"));
    form.one.click_caption(1);  // all equal: the order stays
    CHECK((first_column(form.one) == u"Cba"));
    form.one.click_caption(2);
    CHECK((first_column(form.one) == u"Cba"));
}

TEST_CASE_FIXTURE(Fixture, "clicks reach the form only while the list is enabled and has the row") {
    std::vector<std::size_t> clicked;
    form.one.on_click = [&](std::size_t row) { clicked.push_back(row); };
    form.one.on_double_click = [&](std::size_t row) { clicked.push_back(row + 100); };
    form.one.add_row({u"a"});
    form.one.click_row(0);
    form.one.click_row(1);
    form.one.double_click_row(0);
    form.one.set_enabled(false);
    form.one.click_row(0);
    form.one.double_click_row(0);
    CHECK((clicked == std::vector<std::size_t>{0, 100}));
    CHECK(form.one.is_selected(0));
}

TEST_CASE_FIXTURE(Fixture, "the arrows count between the limits, from the least where the text is no number") {
    int changes = 0;
    form.spin.on_change = [&] { ++changes; };
    form.spin.step(1);
    CHECK((form.spin.text() == u"6"));
    form.spin.set_text(u"60");
    form.spin.step(1);
    CHECK((form.spin.text() == u"60"));
    form.spin.set_text(u"1");
    form.spin.step(-1);
    CHECK((form.spin.text() == u"1"));
    form.spin.set_text(u"many");
    form.spin.step(1);
    CHECK((form.spin.text() == u"2"));
    CHECK(changes == 5);
    form.spin.set_enabled(false);
    form.spin.step(1);
    CHECK((form.spin.text() == u"2"));
    CHECK(form.spin.takes(u'7'));
    for (const char16_t unit : u"a-+. \b") CHECK_FALSE(form.spin.takes(unit));
}

TEST_CASE_FIXTURE(Fixture, "a disabled pick box does not pick") {
    int picks = 0;
    form.folder.on_pick = [&] { ++picks; };
    form.folder.pick();
    form.folder.set_enabled(false);
    form.folder.pick();
    CHECK(picks == 1);
}

TEST_CASE_FIXTURE(Fixture, "turning to a tab tells the one that was left") {
    std::vector<int> left;
    form.tabs.on_click = [&](int tab) { left.push_back(tab); };
    form.tabs.turn_to(1);
    form.tabs.turn_to(1);
    form.tabs.turn_to(0);
    CHECK((left == std::vector<int>{0, 1}));
}

TEST_CASE_FIXTURE(Fixture, "a drop-down list tells its choice") {
    std::vector<int> chosen;
    form.combo.on_click = [&](int place) { chosen.push_back(place); };
    form.combo.choose(1);
    form.combo.add_entry(u"Up");
    form.combo.choose(2);
    form.combo.clear();
    CHECK(form.combo.chosen() == ComboBox::none);
    CHECK((chosen == std::vector<int>{1, 2}));
}
