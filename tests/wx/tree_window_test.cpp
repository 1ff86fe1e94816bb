#include "screens/wx/tree/tree_window.hpp"
#include "tests/wx/fixture.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

struct Tree : EveryKind {
    TreeView& tree = form.treMain;
    TreeNode& node(std::u16string_view key) const { return *tree.find(key); }
    static wxPoint picture(User& user, const TreeNode& node) {
        wxPoint place;
        user.on_screen([&] { place = window_of<wx::TreeWindow>("treMain").picture_of(node); });
        return place;
    }
    static wxPoint text(User& user, const TreeNode& node) {
        wxPoint place;
        user.on_screen([&] { place = window_of<wx::TreeWindow>("treMain").text_of(node); });
        return place;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Tree, "a click on a picture toggles it, a click on the text only selects") {
    show([&](User& user) {
        user.click_in("treMain", picture(user, node(u"book")));
        CHECK(node(u"book").image() == 2);
        user.click_in("treMain", text(user, node(u"ROOT")));
        CHECK(node(u"ROOT").image() == 1);
        CHECK(tree.selected() == &node(u"ROOT"));
    });
}

TEST_CASE_FIXTURE(Tree, "a branch opens by its triangle and by the keyboard") {
    show([&](User& user) {
        wxPoint place = picture(user, node(u"book"));
        int indentation = 0;
        user.on_screen(
            [&] { indentation = place.x - window_of<wx::TreeWindow>("treMain").picture_of(node(u"ROOT")).x; });
        user.click_in("treMain", {place.x - indentation + 2, place.y});
        CHECK(node(u"book").expanded());
        user.click_in("treMain", text(user, node(u"book")));
        user.key("Left");
        CHECK_FALSE(node(u"book").expanded());
        user.key("Right");
        CHECK(node(u"book").expanded());
        user.key("Right");
        CHECK(tree.selected() == &node(u"sheet"));
        user.key("space");
        CHECK(node(u"sheet").image() == 1);
        user.key("Home");
        CHECK(tree.selected() == &node(u"ROOT"));
        user.key("Down");
        CHECK(tree.selected() == &node(u"book"));
    });
}

TEST_CASE_FIXTURE(Tree, "a row is dragged with a picture, over a highlighted row, and dropped") {
    std::u16string dropped_on;
    tree.on_mouse_move = [&](const Pointer& pointer) {
        if (pointer.button == MouseButton::left) tree.begin_drag(3);
    };
    tree.on_drag_over = [&](const Pointer& pointer) { tree.set_drop_highlight(tree.node_at(pointer.x, pointer.y)); };
    tree.on_drop = [&](const Pointer&) {
        if (tree.drop_highlight()) dropped_on = tree.drop_highlight()->text();
    };
    show([&](User& user) {
        user.drag("treMain", text(user, node(u"book")), text(user, node(u"ROOT")));
        CHECK((dropped_on == u"Windows"));
        CHECK(tree.drag_icon() == 0);
    });
}

TEST_CASE_FIXTURE(Tree, "a double click is told once, behind two clicks") {
    std::u16string told;
    tree.on_node_click = [&](const TreeNode&) { told += u"click "; };
    tree.on_double_click = [&] { told += u"double "; };
    show([&](User& user) {
        user.click_in("treMain", text(user, node(u"book")));
        user.click_again();
        CHECK((told == u"click click double "));
    });
}

TEST_CASE_FIXTURE(Tree, "a text is typed over in place, taken by Return, and left by Escape") {
    std::u16string told;
    tree.set_editable(true);
    tree.on_after_label_edit = [&](const std::u16string& text, bool&) { told += text + u"; "; };
    show([&](User& user) {
        user.click_in("treMain", text(user, node(u"book")));
        user.key("F2");
        CHECK(user.sees([] { return window_of<wx::TreeWindow>("treMain").label_box() != nullptr; }));
        user.type("plan.xls");
        user.key("Return");
        CHECK((node(u"book").text() == u"plan.xls"));
        user.on_screen([] { CHECK(window_of<wx::TreeWindow>("treMain").label_box() == nullptr); });
        user.key("F2");
        user.type("other");
        user.key("Escape");
        CHECK((node(u"book").text() == u"plan.xls"));
        CHECK(user.focus(form) == "treMain");
        user.key("F2");
        user.type("left");
        user.click_in("treMain", text(user, node(u"ROOT")));
        user.settle();
        CHECK((node(u"book").text() == u"left"));
        CHECK((told == u"plan.xls; left; "));
    });
}

TEST_CASE_FIXTURE(Tree, "the Delete key removes the selected node") {
    tree.set_editable(true);
    show([&](User& user) {
        user.click_in("treMain", text(user, node(u"book")));
        user.key("Delete");
        CHECK(tree.find(u"book") == nullptr);
        CHECK(tree.count() == 1);
    });
}

TEST_CASE_FIXTURE(Tree, "a menu comes up by the right button and by the keyboard, and its commands are chosen") {
    PopupMenu menu{{u"ID_First", u"First"}, {u"ID_Second", u"Second"}, {u"ID_Third", u"Third", true}};
    menu.set_enabled(u"ID_First", false);
    std::u16string told;
    menu.on_command = [&](std::u16string_view id) { told += std::u16string(id) + u' '; };
    tree.on_mouse_up = [&](const Pointer& pointer) {
        if (pointer.button == MouseButton::right) tree.show_popup(menu);
    };
    show([&](User& user) {
        const auto gone = [&] { return tree.popup() == nullptr; };
        user.click_in("treMain", text(user, node(u"book")), 3);
        user.key("Escape");
        CHECK(user.sees(gone));
        CHECK(told.empty());
        user.click_in("treMain", text(user, node(u"book")), 3);
        user.key("Up");  // the last one
        user.key("Return");
        CHECK(user.sees(gone));
        CHECK((told == u"ID_Third "));
        user.click_in("treMain", text(user, node(u"book")));
        user.key("shift+F10");
        user.key("Down");
        user.key("Down");
        user.key("Return");
        CHECK(user.sees(gone));
        CHECK((told.starts_with(u"ID_Third ID_")));
    });
}

TEST_CASE_FIXTURE(Tree, "Ctrl is told as it goes down and up, and Escape ends a drag but not the dialog") {
    std::vector<int> told;
    int drops = 0;
    tree.on_key_down = [&](int shift) { told.push_back(shift); };
    tree.on_key_up = [&](int shift) { told.push_back(100 + shift); };
    tree.on_mouse_move = [&](const Pointer& pointer) {
        if (pointer.button == MouseButton::left) tree.begin_drag(3);
    };
    tree.on_drop = [&](const Pointer& at) { drops += tree.node_at(at.x, at.y) ? 100 : 1; };
    show([&](User& user) {
        user.click_in("treMain", text(user, node(u"book")));
        told.clear();
        user.key("ctrl");
        CHECK(told == std::vector<int>{2, 100});
        user.begin_drag("treMain", text(user, node(u"book")), text(user, node(u"ROOT")));
        user.on_screen([&] { CHECK(tree.drag_icon() == 3); });
        told.clear();
        user.key("ctrl");
        CHECK(told == std::vector<int>{2, 100});
        user.key("Escape");
        user.on_screen([&] { CHECK(tree.drag_icon() == 0); });
        CHECK(drops == 1);
        CHECK(form.visible());
        user.end_drag();
        CHECK(drops == 1);
    });
}
