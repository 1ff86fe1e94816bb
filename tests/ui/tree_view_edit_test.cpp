#include "ui/tree_view.hpp"

#include <doctest/doctest.h>

#include "automation/error.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/form_with.hpp"

using namespace qor;

namespace {

// root
//   a
//     a1
struct SmallTree {
    fakes::FakeScreen screen;
    fakes::FormWith<TreeView> form{screen, u"frmTree", u"tree"};
    TreeView& tree = form.control;
    TreeNode& root = tree.add(nullptr, Relationship::child, u"root", u"Root", 1);
    TreeNode& a = tree.add(&root, Relationship::child, u"a", u"A", 1);
    TreeNode& a1 = tree.add(&a, Relationship::child, u"a1", u"A1", 1);
};

}  // namespace

TEST_CASE_FIXTURE(SmallTree, "a node takes another key, by which it is found from then on") {
    a1.set_key(u"a1, but longer than a text that lies in place");
    CHECK(tree.find(u"a1") == nullptr);
    CHECK(tree.find(u"a1, but longer than a text that lies in place") == &a1);
    CHECK_THROWS_AS(a1.set_key(u"root"), Error);
    CHECK(a1.key() == u"a1, but longer than a text that lies in place");
    CHECK(tree.find(u"root") == &root);
    a1.set_key(u"a1, but longer than a text that lies in place");
    CHECK(tree.find(u"a1, but longer than a text that lies in place") == &a1);
}

TEST_CASE_FIXTURE(SmallTree, "a text is typed over: the handler sees the old one, and may cancel") {
    std::u16string told;
    bool refuses = false;
    tree.on_after_label_edit = [&](const std::u16string& text, bool& cancel) {
        told += tree.edited()->text() + u" to " + text + u"; ";
        cancel = refuses;
    };
    tree.start_label_edit();
    CHECK(tree.edited() == nullptr);  // nothing is selected
    tree.select(&a);
    tree.start_label_edit();
    CHECK(tree.edited() == &a);
    tree.end_label_edit(u"New");
    CHECK(a.text() == u"New");
    CHECK(tree.edited() == nullptr);
    refuses = true;
    tree.start_label_edit();
    tree.end_label_edit(u"Other");
    CHECK(a.text() == u"New");
    tree.start_label_edit();
    tree.end_label_edit({});
    CHECK(tree.edited() == nullptr);
    tree.end_label_edit(u"too late");
    CHECK(a.text() == u"New");
    CHECK(told == u"A to New; New to Other; ");
}

TEST_CASE_FIXTURE(SmallTree, "a handler of a label edit may empty the tree") {
    tree.on_after_label_edit = [&](const std::u16string&, bool&) { tree.clear(); };
    tree.select(&a);
    tree.start_label_edit();
    tree.end_label_edit(u"New");
    CHECK(tree.count() == 0);
}

TEST_CASE_FIXTURE(SmallTree, "the Delete key removes the selected node, where the tree may be edited") {
    std::u16string told;
    bool refuses = true;
    tree.on_before_delete = [&](const TreeNode& node, bool& cancel) {
        told += node.text() + u' ';
        cancel = refuses;
    };
    tree.select(&a);
    tree.delete_selected();
    CHECK(told.empty());
    tree.set_editable(true);
    tree.delete_selected();
    CHECK(tree.count() == 3);
    refuses = false;
    tree.delete_selected();
    CHECK(tree.count() == 1);
    CHECK(tree.selected() == nullptr);
    tree.delete_selected();
    CHECK(told == u"A A ");
}

TEST_CASE_FIXTURE(SmallTree, "a handler of a deletion may empty the tree") {
    tree.set_editable(true);
    tree.on_before_delete = [&](const TreeNode&, bool&) { tree.clear(); };
    tree.select(&a);
    tree.delete_selected();
    CHECK(tree.count() == 0);
}

TEST_CASE_FIXTURE(SmallTree, "a menu stays until a command is chosen or it is left; a disabled command stays silent") {
    PopupMenu menu{{u"ID_First", u"First"}, {u"ID_Second", u"Second", true}};
    std::u16string chosen;
    menu.on_command = [&](std::u16string_view id) {
        CHECK(tree.popup() == nullptr);
        chosen += id;
    };
    CHECK(tree.popup() == nullptr);
    tree.show_popup(menu);
    CHECK(tree.popup() == &menu);
    tree.leave_popup({});
    CHECK(tree.popup() == nullptr);
    CHECK(chosen.empty());
    tree.show_popup(menu);
    tree.leave_popup(1);
    CHECK(chosen == u"ID_Second");
    menu.set_enabled(u"ID_Second", false);
    tree.show_popup(menu);
    tree.leave_popup(1);
    CHECK(chosen == u"ID_Second");
    CHECK(menu.commands()[0].enabled);
    CHECK_FALSE(menu.commands()[0].begins_group);
    CHECK(menu.commands()[1].begins_group);
}

TEST_CASE_FIXTURE(SmallTree, "keys and double clicks are handed on") {
    std::vector<int> told;
    tree.on_key_down = [&](int shift) { told.push_back(shift); };
    tree.on_key_up = [&](int shift) { told.push_back(100 + shift); };
    tree.on_double_click = [&] { told.push_back(1000); };
    tree.press_key(2);
    tree.release_key(0);
    tree.double_click();
    CHECK(told == std::vector<int>{2, 100, 1000});
}
