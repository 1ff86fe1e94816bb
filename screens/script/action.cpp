#include "screens/script/action.hpp"

#include <fmt/format.h>

#include <array>
#include <cstdlib>
#include <set>

#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "screens/script/script_error.hpp"
#include "screens/script/step.hpp"
#include "screens/script/tree_action.hpp"
#include "ui/button.hpp"
#include "ui/check_box.hpp"
#include "ui/combo_box.hpp"
#include "ui/date_picker.hpp"
#include "ui/list_box.hpp"
#include "ui/options.hpp"
#include "ui/pick_box.hpp"
#include "ui/spin_box.hpp"
#include "ui/swatch.hpp"
#include "ui/tabs.hpp"

namespace qor {
namespace {

using nlohmann::json;

TreeView& tree_of(const Step& step, const char* otherwise) {
    auto* tree = step.as<TreeView>();
    if (!tree) step.refuse(otherwise);
    return *tree;
}

void press(const Step& step) {
    if (const auto* button = step.as<Button>()) {
        button->press();
    } else if (const auto* box = step.as<PickBox>()) {
        box->pick();
    } else if (const auto* swatch = step.as<Swatch>()) {
        swatch->press();
    } else {
        step.refuse("this is no button");
    }
}

void check(const Step& step) {
    if (auto* box = step.as<CheckBox>()) {
        box->set_checked(step.truth("to").value_or(!box->checked()));
    } else if (auto* tree = step.as<TreeView>()) {
        check_node(step, *tree);
    } else {
        step.refuse("nothing can be checked here");
    }
}

// A place among `count`, from 0.
int place_in(const Step& step, const json& place, std::size_t count) {
    if (!place.is_number_integer() || place < 0 || place >= count) {
        step.refuse(count == 0 ? "there is nothing to choose from"
                               : fmt::format("a place must be a whole number from 0 to {}", count - 1));
    }
    return place.get<int>();
}

// As a user does it: what has the focus before leaves it, and it is left at the end.
void type(const Step& step, TextEntry& entry) {
    entry.on_enter();
    entry.set_text(from_utf8(step.text("to")));
    if (step.form.visible()) entry.on_leave();
}

// The selection becomes the rows in "to"; the last of them is the one that is clicked.
void select_rows(const Step& step, ListBox& list, const json& to) {
    const json rows = to.is_array() ? to : json::array({to});
    std::set<std::size_t> wanted;
    for (const json& row : rows) wanted.insert(static_cast<std::size_t>(place_in(step, row, list.count())));
    if (list.selecting() == ListBox::Selecting::one_row && wanted.size() > 1) step.refuse("one row can be selected");
    for (std::size_t row = 0; row < list.count(); ++row) list.set_selected(row, wanted.contains(row));
    if (!wanted.empty()) list.click_row(*wanted.rbegin());
}

Date day_of(const Step& step) {
    Date day{};
    if (attempt([&] { day = to_date(Variant(from_utf8(step.text("to")))); }) != 0) step.refuse("this is no date");
    return day;
}

void set(const Step& step) {
    const auto to = step.action.find("to");
    if (to == step.action.end()) step.refuse("\"to\" must say the value");
    if (auto* entry = step.as<TextEntry>()) {
        if (entry->locked()) step.refuse("it takes no typing");
        type(step, *entry);
    } else if (step.as<CheckBox>()) {
        check(step);
    } else if (auto* options = step.as<Options>()) {
        options->choose(place_in(step, *to, options->captions().size()));
    } else if (auto* combo = step.as<ComboBox>()) {
        combo->choose(place_in(step, *to, combo->entries().size()));
    } else if (auto* tabs = step.as<Tabs>()) {
        tabs->turn_to(place_in(step, *to, tabs->captions().size()));
    } else if (auto* list = step.as<ListBox>()) {
        select_rows(step, *list, *to);
    } else if (auto* picker = step.as<DatePicker>()) {
        picker->set_day(day_of(step));
    } else if (auto* tree = step.as<TreeView>()) {
        type_over_label(step, *tree);
    } else {
        step.refuse("this has no value that can be set");
    }
}

ListBox& list_of(const Step& step) {
    auto* list = step.as<ListBox>();
    if (!list) step.refuse("this is no list");
    return *list;
}

void double_click(const Step& step) {
    if (auto* tree = step.as<TreeView>()) {
        double_click_node(step, *tree);
        return;
    }
    ListBox& list = list_of(step);
    const auto row = step.action.find("row");
    if (row == step.action.end()) step.refuse("\"row\" must say the place");
    list.double_click_row(static_cast<std::size_t>(place_in(step, *row, list.count())));
}

void sort(const Step& step) {
    ListBox& list = list_of(step);
    const auto column = step.action.find("column");
    if (column == step.action.end()) step.refuse("\"column\" must say the place");
    list.click_caption(static_cast<std::size_t>(place_in(step, *column, list.columns().size())));
}

void spin(const Step& step) {
    auto* box = step.as<SpinBox>();
    if (!box) step.refuse("this has no arrows");
    const auto by = step.action.find("by");
    if (by == step.action.end() || !by->is_number_integer()) step.refuse("\"by\" must be a whole number");
    const int steps = by->get<int>();
    for (int i = 0; i < std::abs(steps); ++i) box->step(steps < 0 ? -1 : 1);
}

void move(const Step& step) {
    drag_node(step, tree_of(step, "there are no rows here to move"));
}

void choose_from_menu(const Step& step) {
    choose_command(step, tree_of(step, "this has no menu"));
}

void delete_with_key(const Step& step) {
    delete_node(step, tree_of(step, "nothing can be deleted here"));
}

struct Verb {
    const char* name;
    void (*perform)(const Step&);
};
constexpr std::array verbs{Verb{"press", press}, Verb{"check", check},           Verb{"set", set},
                           Verb{"move", move},   Verb{"double", double_click},   Verb{"sort", sort},
                           Verb{"spin", spin},   Verb{"menu", choose_from_menu}, Verb{"delete", delete_with_key}};

Control& find_control(const Form& form, const std::string& name) {
    std::vector<std::string> found;
    for (Control* control : form.controls()) {
        found.push_back(to_utf8(control->name()));
        if (found.back() == name) return *control;
    }
    throw ScriptError(fmt::format("{} has no control {}; it has {}", to_utf8(form.name()), name, join(found)));
}

}  // namespace

void perform(Form& form, const json& action) {
    for (const Verb& verb : verbs) {
        if (!action.is_object() || !action.contains(verb.name)) continue;
        const json& target = action[verb.name];
        if (!target.is_string()) break;
        Control& control = find_control(form, target.get<std::string>());
        const Step step{form, control, action};
        if (!control.enabled()) step.refuse("it is disabled");
        verb.perform(step);
        return;
    }
    throw ScriptError(fmt::format(
        "{}: {}: an action presses, checks, sets, moves, doubles, sorts, spins, deletes in or chooses from the "
        "menu of a control named as a text",
        to_utf8(form.name()), action.dump()));
}

}  // namespace qor
