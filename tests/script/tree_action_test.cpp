#include <doctest/doctest.h>

#include "platform/text.hpp"
#include "screens/script/script_screen.hpp"
#include "ui/form.hpp"
#include "ui/tree_view.hpp"

using namespace qor;
using nlohmann::json;

namespace {

// A tree that writes down what is done in it.
class frmTree final : public Form {
  public:
    explicit frmTree(Screen& screen) : Form(u"frmTree", screen) {
        TreeNode& root = tree.add(nullptr, Relationship::child, u"ROOT", u"All", 1);
        TreeNode& window = tree.add(&root, Relationship::child, u"a.xls", u"a.xls", 1);
        tree.add(&window, Relationship::child, u"a.xls*One", u"One", 1);
        tree.add(&window, Relationship::child, u"a.xls*Two", u"Two", 1);
        tree.on_mouse_move = [this](const Pointer& at) {
            if (at.button == MouseButton::left) tree.begin_drag(at.shift == 2 ? 4 : 3);
        };
        tree.on_drop = [this](const Pointer& at) { tell(tree.drag_icon() == 4 ? "copied on " : "moved on ", at); };
        tree.on_mouse_up = [this](const Pointer& at) {
            if (at.button != MouseButton::right) return;
            tell("menu on ", at);
            if (has_menu) tree.show_popup(menu);
        };
        tree.on_double_click = [this] { events.emplace_back("double " + to_utf8(tree.selected()->text())); };
        tree.on_after_label_edit = [this](const std::u16string& text, bool&) { events.push_back(to_utf8(text)); };
        menu.on_command = [this](std::u16string_view id) {
            events.push_back(to_utf8(id));
            tree.select(tree.find(u"a.xls*One"));
            tree.start_label_edit();
        };
        menu.set_enabled(u"ID_Off", false);
    }
    std::u16string_view caption() const noexcept override { return u"Tree"; }

    TreeView tree{*this, u"tree"};
    PopupMenu menu{{u"ID_Rename", u"Rename"}, {u"ID_Off", u"Off"}};
    bool has_menu = true;
    std::vector<std::string> events;

  private:
    void tell(std::string text, const Pointer& at) {
        const TreeNode* node = tree.node_at(at.x, at.y);
        events.push_back(std::move(text) + (node ? to_utf8(node->key()) : "nothing"));
    }
};

struct Script {
    ScriptScreen screen;
    frmTree form{screen};

    std::vector<std::string> play(const json& actions) {
        screen.begin_call({{"forms", json::array({actions})}});
        form.show_modal();
        screen.end_call();
        return form.events;
    }
    std::string refusal(const json& action) {
        try {
            play(json::array({action}));
        } catch (const ScriptError& error) {
            const std::string text = error.what();
            return text.substr(text.rfind("}: ") + 3);
        }
        return "none";
    }
};

using Events = std::vector<std::string>;

}  // namespace

TEST_CASE_FIXTURE(Script, "a node is dragged by its key or its text, with Ctrl for a copy") {
    CHECK(play({{{"move", "tree"}, {"node", "a.xls*One"}, {"onto", "a.xls"}},
                {{"move", "tree"}, {"row", "One"}, {"onto", "Two"}, {"copy", true}}}) ==
          Events{"moved on a.xls", "copied on a.xls*Two"});
}

TEST_CASE_FIXTURE(Script, "a node is double-clicked") {
    CHECK(play({{{"double", "tree"}, {"node", "a.xls*Two"}}}) == Events{"double Two"});
}

TEST_CASE_FIXTURE(Script, "a command is chosen from the menu of a node, or of the place below all of them") {
    CHECK(play({{{"menu", "tree"}, {"node", "a.xls*Two"}, {"choose", "Rename"}},
                {{"menu", "tree"}, {"choose", "Rename"}}}) ==
          Events{"menu on a.xls*Two", "ID_Rename", "menu on nothing", "ID_Rename"});
}

TEST_CASE_FIXTURE(Script, "a text is typed over, or left as it is") {
    const json rename = {{"menu", "tree"}, {"choose", "Rename"}};
    play({rename, {{"set", "tree"}, {"to", "Uno"}}, rename, {{"set", "tree"}, {"to", nullptr}}});
    CHECK(form.events == Events{"menu on nothing", "ID_Rename", "Uno", "menu on nothing", "ID_Rename"});
    CHECK(form.tree.node(3).text() == u"Uno");
}

TEST_CASE_FIXTURE(Script, "a node is deleted where the tree may be edited") {
    CHECK(refusal({{"delete", "tree"}, {"node", "a.xls*Two"}}) == "nothing can be deleted here");
    form.tree.set_editable(true);
    play({{{"delete", "tree"}, {"node", "a.xls*Two"}}});
    CHECK(form.tree.count() == 3);
    CHECK(form.tree.find(u"a.xls*Two") == nullptr);
}

TEST_CASE_FIXTURE(Script, "what does not fit a tree is refused with what there is") {
    CHECK(refusal({{"menu", "tree"}, {"choose", "Copy"}}) == "the menu has no \"Copy\"; it has Rename, Off");
    CHECK(refusal({{"menu", "tree"}, {"choose", "Off"}}) == "\"Off\" is disabled");
    CHECK(refusal({{"set", "tree"}, {"to", "x"}}) == "no text is being edited");
    CHECK(refusal({{"double", "tree"}, {"node", "b"}}) ==
          "there is no node \"b\"; there is ROOT, a.xls, a.xls*One, a.xls*Two");
    CHECK(refusal({{"move", "tree"}, {"node", "a.xls"}, {"onto", "All"}}) ==
          "there is no node \"All\"; there is ROOT, a.xls, a.xls*One, a.xls*Two");
    CHECK(refusal({{"move", "tree"}, {"row", "One"}, {"onto", "Two"}, {"copy", 1}}) ==
          "\"copy\" must be true or false");
}

TEST_CASE_FIXTURE(Script, "a tree without a menu has no commands") {
    form.has_menu = false;
    CHECK(refusal({{"menu", "tree"}, {"choose", "Rename"}}) == "no menu comes up");
}
