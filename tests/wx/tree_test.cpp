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
