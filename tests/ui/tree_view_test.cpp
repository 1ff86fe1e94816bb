#include "ui/tree_view.hpp"

#include <doctest/doctest.h>

#include "automation/error.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/form_with.hpp"
#include "tests/fakes/tree_hand.hpp"

using namespace qor;

namespace {

struct Fixture {
    fakes::FakeScreen screen;
    fakes::FormWith<TreeView> form{screen, u"frmTree", u"tree"};
    TreeView& tree = form.control;

    TreeNode& add(TreeNode* relative, Relationship relationship, const std::u16string& key) {
        return tree.add(relative, relationship, key, key, 1);
    }
    // The rows from above as one text, whatever is closed.
    std::u16string all_rows() {
        fakes::open_branches(tree);
        std::u16string text;
        for (const TreeNode* row : tree.visible_rows()) text += row->text() + u' ';
        return text;
    }
    static Pointer left(double x, double y) { return {.x = x, .y = y, .button = MouseButton::left}; }
    void click(double x, double y) {
        tree.press_pointer(left(x, y));
        tree.release_pointer(left(x, y));
    }
};

// root
//   a
//     a1
//   b
struct SmallTree : Fixture {
    TreeNode& root = add(nullptr, Relationship::child, u"root");
    TreeNode& a = add(&root, Relationship::child, u"a");
    TreeNode& a1 = add(&a, Relationship::child, u"a1");
    TreeNode& b = add(&root, Relationship::child, u"b");
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "a node is added as child, as the last or as the next sibling of its relative") {
    TreeNode& root = add(nullptr, Relationship::child, u"root");
    TreeNode& a = add(&root, Relationship::child, u"a");
    add(&a, Relationship::last_sibling, u"c");
    add(&a, Relationship::next_sibling, u"b");
    add(&root, Relationship::last_sibling, u"second");
    add(&root, Relationship::next_sibling, u"between");
    CHECK(all_rows() == u"root a b c between second ");
    CHECK(a.next_sibling()->text() == u"b");
    CHECK(a.last_sibling()->text() == u"c");
    CHECK(tree.find(u"c")->first_sibling() == &a);
    CHECK(root.last_sibling()->text() == u"second");
    CHECK(root.child_count() == 3);
    CHECK(a.level() == 2);
    CHECK(tree.find(u"second")->level() == 1);
}

TEST_CASE_FIXTURE(Fixture, "nodes are numbered in the order in which they were added") {
    TreeNode& root = add(nullptr, Relationship::child, u"root");
    TreeNode& last = add(&root, Relationship::child, u"last");
    TreeNode& next = add(&root, Relationship::next_sibling, u"next");
    CHECK(root.index() == 1);
    CHECK(last.index() == 2);
    CHECK(next.index() == 3);
    CHECK(&tree.node(3) == &next);
}

TEST_CASE_FIXTURE(SmallTree, "a key that is there already is refused and changes nothing") {
    CHECK_THROWS_AS(add(&root, Relationship::child, u"a1"), Error);
    CHECK(tree.count() == 4);
    CHECK(all_rows() == u"root a a1 b ");
    CHECK_NOTHROW(add(&root, Relationship::child, u"A1"));
}

TEST_CASE_FIXTURE(SmallTree, "removing a node takes all below it, and the others move up") {
    tree.select(&a1);
    tree.set_drop_highlight(&b);
    tree.remove(a.index());
    CHECK(all_rows() == u"root b ");
    CHECK(tree.count() == 2);
    CHECK(b.index() == 2);
    CHECK(root.first_child() == &b);
    CHECK(root.child_count() == 1);
    CHECK(tree.find(u"a1") == nullptr);
    CHECK(tree.selected() == nullptr);
    CHECK(tree.drop_highlight() == &b);
    CHECK_NOTHROW(add(&b, Relationship::child, u"a1"));
}

TEST_CASE_FIXTURE(SmallTree, "an emptied tree can be filled again with the same keys") {
    tree.select(&a);
    tree.clear();
    CHECK(tree.count() == 0);
    CHECK(tree.selected() == nullptr);
    CHECK(tree.visible_rows().empty());
    CHECK(add(nullptr, Relationship::child, u"root").index() == 1);
}

TEST_CASE_FIXTURE(SmallTree, "a closed branch hides what is below it") {
    CHECK(tree.visible_rows().size() == 1);
    root.set_expanded(true);
    CHECK(tree.visible_rows() == std::vector<TreeNode*>{&root, &a, &b});
    CHECK(tree.node_at(10, 0) == &root);
    CHECK(tree.node_at(10, 254.9) == &root);
    CHECK(tree.node_at(10, 255) == &a);
    CHECK(tree.node_at(10, 510) == &b);
    CHECK(tree.node_at(10, 765) == nullptr);
    CHECK(tree.node_at(10, -1) == nullptr);
    CHECK_FALSE(tree.picture_point(a1).has_value());
    a.set_expanded(true);
    CHECK(tree.node_at(10, 510) == &a1);
    CHECK(tree.picture_point(a1)->x == 937.5);  // 3 * 285 + 165 / 2
    CHECK(tree.picture_point(a1)->y == 637.5);
}

TEST_CASE_FIXTURE(SmallTree, "a click on a picture is told as such and then as a click on the node") {
    root.set_expanded(true);
    std::u16string events;
    tree.on_picture_click = [&](const TreeNode& node) { events += u"picture " + node.text() + u"; "; };
    tree.on_node_click = [&](const TreeNode& node) { events += u"node " + node.text() + u"; "; };
    click(600, 300);
    click(800, 300);
    CHECK(events == u"picture a; node a; node a; ");
    CHECK(tree.selected() == &a);
}

TEST_CASE_FIXTURE(SmallTree, "a click on the lines opens and closes a branch and clicks no node") {
    bool clicked = false;
    tree.on_node_click = [&](const TreeNode&) { clicked = true; };
    click(100, 100);
    CHECK(root.expanded());
    click(300, 300);
    CHECK(a.expanded());
    click(100, 300);  // left of the column that belongs to the node
    CHECK(a.expanded());
    click(300, 300);
    CHECK_FALSE(a.expanded());
    CHECK_FALSE(clicked);
}

TEST_CASE_FIXTURE(SmallTree, "only the left button, down and up on one node, clicks it") {
    root.set_expanded(true);
    int clicks = 0;
    tree.on_node_click = [&](const TreeNode&) { ++clicks; };
    tree.press_pointer(left(800, 300));
    tree.release_pointer(left(800, 600));
    Pointer right{.x = 800, .y = 300, .button = MouseButton::right};
    tree.press_pointer(right);
    tree.release_pointer(right);
    CHECK(clicks == 0);
    click(800, 300);
    CHECK(clicks == 1);
}

TEST_CASE_FIXTURE(SmallTree, "a picture's handler may empty the tree") {
    int clicks = 0;
    tree.on_picture_click = [&](const TreeNode&) { tree.clear(); };
    tree.on_node_click = [&](const TreeNode&) { ++clicks; };
    click(300, 100);
    CHECK(tree.count() == 0);
    CHECK(clicks == 0);
}

TEST_CASE_FIXTURE(SmallTree, "a drag turns moves into drag-overs and the release into a drop") {
    root.set_expanded(true);
    std::u16string events;
    tree.on_mouse_move = [&](const Pointer& pointer) {
        events += u"move ";
        if (pointer.button == MouseButton::left) tree.begin_drag(3);
    };
    tree.on_mouse_up = [&](const Pointer&) { events += u"up "; };
    tree.on_drag_over = [&](const Pointer&) { events += u"over "; };
    tree.on_drop = [&](const Pointer&) { events += u"drop "; };
    tree.on_node_click = [&](const TreeNode&) { events += u"click "; };

    tree.move_pointer({.x = 800, .y = 300});
    tree.press_pointer(left(800, 300));
    tree.move_pointer(left(810, 300));  // a trembling hand
    CHECK(tree.drag_icon() == 0);
    tree.move_pointer(left(800, 400));
    CHECK(tree.drag_icon() == 3);
    tree.move_pointer(left(800, 600));
    tree.release_pointer(left(800, 600));
    CHECK(tree.drag_icon() == 0);
    click(800, 300);
    CHECK(events == u"move move over drop up click ");
}

TEST_CASE_FIXTURE(SmallTree, "a drag that is taken away drops over no node") {
    root.set_expanded(true);
    std::u16string events;
    tree.on_mouse_move = [&](const Pointer&) { tree.begin_drag(3); };
    tree.on_drag_over = [&](const Pointer& at) {
        events += tree.node_at(at.x, at.y) ? u"over node " : u"over nothing ";
    };
    tree.on_drop = [&](const Pointer& at) { events += tree.node_at(at.x, at.y) ? u"on node " : u"on nothing "; };
    tree.press_pointer(left(800, 300));
    tree.move_pointer(left(800, 400));
    tree.move_pointer(left(800, 600));
    tree.begin_drag(4);
    CHECK(tree.drag_icon() == 4);
    tree.cancel_drag();
    CHECK(events == u"over node over nothing on nothing ");
    CHECK(tree.drag_icon() == 0);
}
