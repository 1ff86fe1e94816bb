#include <doctest/doctest.h>

#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/form_with.hpp"
#include "tests/fakes/tree_hand.hpp"
#include "tree/ctlTree.hpp"

using namespace qor;

namespace {

// Two windows of book.xls and one of other.xls, all open.
struct Books {
    fakes::FakeScreen screen;
    fakes::FormWith<ctlTree> form{screen, u"frmTree", u"ctlTreeView"};
    ctlTree& tree = form.control;
    std::vector<bool> told;

    Books() {
        tree.CheckStateChanged = [this](bool any_checked) { told.push_back(any_checked); };
        add(nullptr, u"ROOT", u"Excel Workbook Windows");
        add_window(u"book.xls:1", u"book.xls", {u"Inputs", u"Sales"});
        add_window(u"book.xls:2", u"book.xls", {u"Inputs", u"Sales"});
        add_window(u"other.xls", u"other.xls", {u"Notes"});
    }
    TreeNode& add(TreeNode* parent, const std::u16string& key, const std::u16string& text) {
        TreeNode& node = tree.treQOR.add(parent, Relationship::child, key, text, ctlTree::unchecked);
        node.set_expanded(true);
        return node;
    }
    void add_window(const std::u16string& caption, const std::u16string& workbook,
                    const std::vector<std::u16string>& sheets) {
        TreeNode& window = add(tree.treQOR.find(u"ROOT"), caption, caption);
        window.set_tag(workbook);
        const std::u16string prefix = caption + u'*';
        for (const auto& sheet : sheets) add(&window, prefix + sheet, sheet);
    }
    TreeNode& node(std::u16string_view key) { return *tree.treQOR.find(key); }
    void click_at(const Pointer& place) { fakes::click(tree.treQOR, place); }
    void click(std::u16string_view key) { click_at(fakes::box_of(tree.treQOR, key)); }
    // The images in index order.
    std::u16string images() {
        std::u16string text;
        for (std::size_t index = 1; index <= tree.treQOR.count(); ++index) {
            text += tree.treQOR.node(index).image() == 2 ? u'2' : u'1';
        }
        return text;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Books, "checking a sheet checks its window and the root; unchecking it clears both") {
    click(u"book.xls:1*Sales");
    CHECK(images() == u"221211111");
    click(u"book.xls:1*Sales");
    CHECK(images() == u"111111111");
    CHECK(told == std::vector<bool>{true, false});
}

TEST_CASE_FIXTURE(Books, "a window stays checked while one of its sheets is, and the root while a window is") {
    click(u"book.xls:1*Inputs");
    click(u"book.xls:1*Sales");
    click(u"other.xls*Notes");
    CHECK(images() == u"222211122");
    click(u"book.xls:1*Inputs");
    CHECK(images() == u"221211122");
    click(u"book.xls:1*Sales");
    CHECK(images() == u"211111122");
    click(u"other.xls*Notes");
    CHECK(images() == u"111111111");
}

TEST_CASE_FIXTURE(Books, "a window gives its state to all its sheets, and the root follows the windows") {
    click(u"book.xls:2");
    CHECK(images() == u"211122211");
    click(u"other.xls");
    CHECK(images() == u"211122222");
    click(u"book.xls:2");
    CHECK(images() == u"211111122");
    click(u"other.xls");
    CHECK(images() == u"111111111");
    CHECK(told == std::vector<bool>{true, true, true, false});
}

TEST_CASE_FIXTURE(Books, "the root gives its state to every node") {
    click(u"book.xls:1*Inputs");
    click(u"ROOT");
    CHECK(images() == u"111111111");
    click(u"ROOT");
    CHECK(images() == u"222222222");
}

TEST_CASE_FIXTURE(Books, "any image that is not checked becomes checked by a click") {
    node(u"other.xls*Notes").set_image(3);
    click(u"other.xls*Notes");
    CHECK(images() == u"211111122");
}

TEST_CASE_FIXTURE(Books, "the walk over siblings ends at the first that bears the text of the last") {
    TreeNode& window = add(tree.treQOR.find(u"ROOT"), u"third", u"third");
    add(&window, u"third*1", u"Same");
    add(&window, u"third*2", u"Between");
    add(&window, u"third*3", u"Same");
    click(u"third");
    CHECK(images() ==
          u"211111111"
          u"2211");
    click(u"third*1");  // no checked sibling is found behind the first
    node(u"third*2").set_image(2);
    CHECK(images() ==
          u"111111111"
          u"1121");
    click(u"third*3");
    click(u"third*3");
    CHECK(images() ==
          u"111111111"
          u"1121");
}

TEST_CASE_FIXTURE(Books, "a window without sheets can be checked") {
    add(tree.treQOR.find(u"ROOT"), u"empty.xls", u"empty.xls");
    click(u"empty.xls");
    CHECK(images() == u"2111111112");
}

TEST_CASE_FIXTURE(Books, "a click on the text only selects the node") {
    click_at(fakes::text_of(tree.treQOR, u"other.xls*Notes"));
    CHECK(images() == u"111111111");
    CHECK(told.empty());
    CHECK(tree.treQOR.selected() == &node(u"other.xls*Notes"));
}

TEST_CASE_FIXTURE(Books, "the edges of the box do not belong to it") {
    const double y = tree.treQOR.picture_point(node(u"other.xls"))->y;
    for (const double edge : {570.0, 735.0}) {  // 2 * 285, and 11 pixels of 15 twips behind it
        tree.treQOR.move_pointer({.x = edge, .y = y});
        tree.treQOR.press_pointer({.x = 600, .y = y, .button = MouseButton::left});
        tree.treQOR.release_pointer({.x = 600, .y = y, .button = MouseButton::left});
        CHECK(told.empty());
    }
    click_at({.x = 570.5, .y = y});
    click_at({.x = 734.5, .y = y});
    CHECK(told == std::vector<bool>{true, false});
}

TEST_CASE_FIXTURE(Books, "a click without a move before it goes by the last move") {
    tree.treQOR.move_pointer(fakes::box_of(tree.treQOR, u"ROOT"));
    const Pointer on_text = fakes::held(fakes::text_of(tree.treQOR, u"other.xls*Notes"));
    tree.treQOR.press_pointer(on_text);
    tree.treQOR.release_pointer(on_text);
    CHECK(images() == u"211111122");
}

TEST_CASE_FIXTURE(Books, "windows are counted by the name of their workbook, with its case") {
    CHECK(tree.CountWorkbooks(u"book.xls") == 2);
    CHECK(tree.CountWorkbooks(u"other.xls") == 1);
    CHECK(tree.CountWorkbooks(u"Book.xls") == 0);
    CHECK(tree.CountWorkbooks(u"") == 0);  // sheets and the root have no tag at all
}

TEST_CASE_FIXTURE(Books, "check boxes are counted by level, a sheet once for each window") {
    click(u"book.xls:1*Sales");
    click(u"book.xls:2*Sales");
    CHECK(tree.CountCheckBoxes(3) == 2);
    CHECK(tree.CountCheckBoxes(2) == 2);
    CHECK(tree.CountCheckBoxes(1) == 1);
    CHECK(tree.CountCheckBoxes(4) == 0);
}

TEST_CASE("the box is 11 pixels wide, rounded to a whole twip") {
    fakes::FakeScreen screen;
    screen.twips = 14.5;  // 159.5, a tie, goes to the even 160
    fakes::FormWith<ctlTree> form(screen, u"frmTree", u"ctlTreeView");
    TreeView& tree = form.control.treQOR;
    tree.add(nullptr, Relationship::child, u"ROOT", u"root", ctlTree::unchecked);
    int told = 0;
    form.control.CheckStateChanged = [&](bool) { ++told; };
    for (const double x : {285 + 159.75, 285 + 160.0}) {
        tree.move_pointer({.x = x, .y = 100});
        tree.press_pointer({.x = x, .y = 100, .button = MouseButton::left});
        tree.release_pointer({.x = x, .y = 100, .button = MouseButton::left});
    }
    CHECK(told == 1);
}
