#pragma once

#include <doctest/doctest.h>

#include <algorithm>

#include "tests/fakes/fake_host.hpp"
#include "tests/fakes/form_with.hpp"
#include "tests/fakes/tree_hand.hpp"
#include "tree/ctlTree.hpp"

// A host that writes down what is done to its workbooks, and a form with nothing but a tree of them.
namespace qor::tests {

using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;

struct TreeHost : fakes::FakeHost {
    struct Book {
        std::u16string name;
        std::vector<std::u16string> windows;
        std::vector<std::u16string> sheets;
        std::u16string path = u"C:\\Books";
        bool saved = false;
    };

    fakes::FormWith<ctlTree> form{screen, u"frmTree", u"ctlTreeView"};
    ctlTree& tree = form.control;
    std::vector<bool> closing;
    std::vector<bool> check_states;

    TreeHost() {
        tree.RequestClose = [this](bool close) { closing.push_back(close); };
        tree.CheckStateChanged = [this](bool any) { check_states.push_back(any); };
    }

    // Fills the tree and opens all branches.
    void load() {
        tree.LoadExcel();
        fakes::open_branches(tree.treQOR);
    }
    void open(const std::vector<Book>& books) {
        std::vector<Object> objects;
        for (const Book& book : books) objects.push_back(make_book(book));
        application.answers(names::Workbooks, finds(u"Workbooks", objects));
        application.answers(names::DisplayAlerts, [this](Access access, Values values) -> Variant {
            if (access == Access::put) done.push_back(to_boolean(values[0]) ? u"alerts on" : u"alerts off");
            return true;
        });
        application.answers(names::GetSaveAsFilename, writes(u"ask", false));
        application.answers(names::Help, writes(u"help"));
        begin_command();
        load();
    }

    TreeNode& node(std::u16string_view key) { return *tree.treQOR.find(key); }
    Pointer on(std::u16string_view key) { return fakes::text_of(tree.treQOR, key); }
    Lines keys() {
        Lines all;
        for (std::size_t index = 1; index <= tree.treQOR.count(); ++index) all.push_back(tree.treQOR.node(index).key());
        return all;
    }
    void check(std::u16string_view key) { press(fakes::box_of(tree.treQOR, key), MouseButton::left); }
    void press(const Pointer& place, MouseButton button) { fakes::click(tree.treQOR, place, button); }
    void choose(std::u16string_view caption) {
        const auto& commands = tree.treQOR.popup()->commands();
        const auto command = std::ranges::find(commands, caption, &PopupMenu::Command::caption);
        REQUIRE(command != commands.end());
        tree.treQOR.leave_popup(static_cast<std::size_t>(command - commands.begin()));
    }
    // From the menu on that node.
    void choose_on(std::u16string_view key, std::u16string_view caption) {
        press(on(key), MouseButton::right);
        choose(caption);
    }

  private:
    Object make_sheet(const std::u16string& name, std::int32_t index) {
        return make(u"Worksheet", [&](FakeObject& fake) {
            fake.answers(names::Name, keeps(name + u" name", name)).holds(names::Index, index);
            fake.answers(names::Visible, keeps(name + u" visible", name.starts_with(u"Hidden") ? 0 : -1));
            for (const auto& [member, word] : {std::pair{names::Delete, u" delete"},
                                               {names::PrintOut, u" print"},
                                               {names::Activate, u" activate"},
                                               {names::CheckSpelling, u" spelling"},
                                               {names::Move, u" move"},
                                               {names::Copy, u" copy"}}) {
                fake.answers(member, writes(name + word));
            }
            fake.holds(names::Cells, make(u"Range", [&](FakeObject& cells) {
                           cells.answers(names::CheckSpelling, writes(name + u" cells spelling"));
                       }));
        });
    }
    Object make_window(const std::u16string& caption) {
        return make(u"Window", [&](FakeObject& fake) {
            fake.holds(names::Caption, caption);
            fake.answers(names::Visible, keeps(caption + u" visible", !caption.starts_with(u"Hidden")));
            fake.answers(names::Activate, writes(caption + u" activate"));
        });
    }
    Object make_book(const Book& book) {
        std::vector<Object> windows;
        std::vector<Object> sheets;
        for (const auto& caption : book.windows) windows.push_back(make_window(caption));
        for (const auto& name : book.sheets) {
            sheets.push_back(make_sheet(name, static_cast<std::int32_t>(sheets.size()) + 1));
        }
        return make(u"Workbook", [&](FakeObject& fake) {
            fake.holds(names::Name, book.name).holds(names::Path, book.path).holds(names::FileFormat, -4143);
            fake.holds(names::Saved, book.saved);
            fake.answers(names::Windows, finds(u"Windows", windows, names::Caption));
            fake.answers(names::Worksheets, finds(u"Worksheets", sheets));
            fake.answers(names::Close, writes(book.name + u" close"))
                .answers(names::Save, writes(book.name + u" save"));
        });
    }
};

// Two windows of plan.xls and one of a workbook without a file.
struct TwoBooks : TreeHost {
    TwoBooks() {
        open({{u"plan.xls", {u"plan.xls:1", u"plan.xls:2"}, {u"Inputs", u"Loan", u"Ratios"}},
              {u"Book2", {u"Book2"}, {u"Notes", u"Draft"}, u""}});
    }
};

}  // namespace qor::tests
