#pragma once

#include <doctest/doctest.h>

#include <algorithm>

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"
#include "tests/fakes/fake_object.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/fake_settings.hpp"
#include "tree/ctlTree.hpp"

// A host that writes down what is done to its workbooks, and a form with nothing but a tree of them.
namespace qor::tests {

class frmTree final : public Form {
  public:
    explicit frmTree(Screen& screen) : Form(u"frmTree", screen) {}
    ctlTree ctlTreeView{*this, u"ctlTreeView"};
    std::u16string_view caption() const noexcept override { return u"Tree"; }
};

struct TreeHost {
    struct Book {
        std::u16string name;
        std::vector<std::u16string> windows;
        std::vector<std::u16string> sheets;
        std::u16string path = u"C:\\Books";
        bool saved = false;
    };

    fakes::HostLog host_log;
    fakes::FakeScreen screen;
    fakes::FakeSettings settings;
    std::vector<std::u16string> done;
    frmTree form{screen};
    ctlTree& tree = form.ctlTreeView;
    std::vector<bool> closing;
    std::vector<bool> check_states;

    TreeHost() {
        set_environment({screen, settings});
        tree.RequestClose = [this](bool close) { closing.push_back(close); };
        tree.CheckStateChanged = [this](bool any) { check_states.push_back(any); };
    }
    ~TreeHost() { gExcel = {}; }
    TreeHost(const TreeHost&) = delete;
    TreeHost& operator=(const TreeHost&) = delete;

    // Fills the tree and opens all branches.
    void load() {
        tree.LoadExcel();
        for (std::size_t index = 1; index <= tree.treQOR.count(); ++index) tree.treQOR.node(index).set_expanded(true);
    }
    void open(std::vector<Book> books) {
        std::vector<Object> objects;
        for (const Book& book : books) objects.push_back(make_book(book));
        gExcel = make(u"Application", [&](fakes::FakeObject& fake) {
            fake.answers(names::Workbooks, found(u"Workbooks", objects));
            fake.answers(names::DisplayAlerts, [this](Access access, std::span<Variant> values) -> Variant {
                if (access == Access::put) done.push_back(to_boolean(values[0]) ? u"alerts on" : u"alerts off");
                return true;
            });
            fake.answers(names::GetSaveAsFilename, writes(u"ask", false));
            fake.answers(names::Help, writes(u"help"));
        });
        load();
    }

    TreeNode& node(std::u16string_view key) { return *tree.treQOR.find(key); }
    Pointer on(std::u16string_view key) { return *tree.treQOR.text_point(node(key)); }
    std::vector<std::u16string> keys() {
        std::vector<std::u16string> all;
        for (std::size_t index = 1; index <= tree.treQOR.count(); ++index) all.push_back(tree.treQOR.node(index).key());
        return all;
    }
    void check(std::u16string_view key) { press(*tree.treQOR.picture_point(node(key)), MouseButton::left); }
    void press(Pointer place, MouseButton button) {
        tree.treQOR.move_pointer(place);
        place.button = button;
        tree.treQOR.press_pointer(place);
        tree.treQOR.release_pointer(place);
    }
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
    Object make(std::u16string type, const std::function<void(fakes::FakeObject&)>& fill) {
        return fakes::make_fake(host_log, std::move(type), fill);
    }
    fakes::FakeObject::Answer writes(const std::u16string& line, Variant answer = {}) {
        return [this, line, answer](Access, std::span<Variant> arguments) -> Variant {
            std::u16string text = line;
            for (const Variant& argument : arguments) {
                text += u' ' +
                        (argument.is(Variant::Kind::object) ? to_text(argument.get(names::Name)) : to_text(argument));
            }
            done.push_back(text);
            return answer;
        };
    }
    // A property that is written down when it is put.
    fakes::FakeObject::Answer keeps(const std::u16string& line, Variant value) {
        return [this, line, held = std::move(value)](Access access, std::span<Variant> arguments) mutable -> Variant {
            if (access == Access::put) {
                held = arguments.back();
                done.push_back(line + u' ' + to_text(held));
            }
            return held;
        };
    }
    // The collection, or the element of that name.
    fakes::FakeObject::Answer found(const std::u16string& type, std::vector<Object> elements) {
        return [this, type, elements](Access, std::span<Variant> arguments) -> Variant {
            if (arguments.empty()) return fakes::make_collection(host_log, type, elements);
            if (arguments[0].is(Variant::Kind::long_integer)) {
                return elements.at(static_cast<std::size_t>(to_long(arguments[0])) - 1);
            }
            for (const Object& element : elements) {
                const auto& key = type == u"Windows" ? names::Caption : names::Name;
                if (to_text(element.get(key)) == to_text(arguments[0])) return element;
            }
            throw Error(ErrorNumber::subscript_out_of_range);
        };
    }
    Object make_sheet(const std::u16string& name, std::int32_t index) {
        return make(u"Worksheet", [&](fakes::FakeObject& fake) {
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
            fake.holds(names::Cells, make(u"Range", [&](fakes::FakeObject& cells) {
                           cells.answers(names::CheckSpelling, writes(name + u" cells spelling"));
                       }));
        });
    }
    Object make_window(const std::u16string& caption) {
        return make(u"Window", [&](fakes::FakeObject& fake) {
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
        return make(u"Workbook", [&](fakes::FakeObject& fake) {
            fake.holds(names::Name, book.name).holds(names::Path, book.path).holds(names::FileFormat, -4143);
            fake.holds(names::Saved, book.saved);
            fake.answers(names::Windows, found(u"Windows", windows));
            fake.answers(names::Worksheets, found(u"Worksheets", sheets));
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

using Lines = std::vector<std::u16string>;

}  // namespace qor::tests
