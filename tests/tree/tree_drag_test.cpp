#include "tests/support/failing_object.hpp"
#include "tests/tree/tree_host.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

constexpr int ctrl = 2;

struct Drag : TwoBooks {
    static Pointer held(const Pointer& place, int shift = 0) { return fakes::held(place, MouseButton::left, shift); }
    void press_on(std::u16string_view key) {
        tree.treQOR.move_pointer(on(key));
        tree.treQOR.press_pointer(held(on(key)));
    }
    // As far as over the target.
    void drag(std::u16string_view key, std::u16string_view target, int shift = 0) {
        press_on(key);
        tree.treQOR.move_pointer(held({.x = on(key).x + 100, .y = on(key).y}, shift));
        tree.treQOR.move_pointer(held(on(target), shift));
    }
    void drop(std::u16string_view key, std::u16string_view target, int shift = 0) {
        drag(key, target, shift);
        tree.treQOR.release_pointer(held(on(target), shift));
    }
};

}  // namespace

TEST_CASE_FIXTURE(Drag, "a worksheet is moved in front of all sheets of a window, or behind a worksheet") {
    drop(u"plan.xls:1*Ratios", u"plan.xls:2");
    CHECK(done == Lines{u"Ratios move Inputs"});
    load();
    drop(u"plan.xls:1*Inputs", u"plan.xls:1*Loan");
    load();
    drop(u"plan.xls:1*Inputs", u"Book2");
    load();
    drop(u"plan.xls:1*Inputs", u"Book2*Draft");
    CHECK(done == Lines{u"Ratios move Inputs", u"Inputs move Loan", u"Inputs move Notes", u"Inputs move Draft"});
}

TEST_CASE_FIXTURE(Drag, "a move to where the worksheet stands is skipped, but the tree is loaded again") {
    check(u"Book2*Draft");
    drop(u"plan.xls:1*Inputs", u"plan.xls:1");
    CHECK(tree.CountCheckBoxes(3) == 0);
    load();
    drop(u"plan.xls:1*Loan", u"plan.xls:2*Inputs");
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(Drag, "with Ctrl the worksheet is copied, also to where it stands") {
    drop(u"plan.xls:1*Inputs", u"plan.xls:1", ctrl);
    load();
    drop(u"plan.xls:1*Loan", u"plan.xls:1*Inputs", ctrl);
    load();
    drop(u"plan.xls:1*Loan", u"Book2*Notes", ctrl);
    CHECK(done == Lines{u"Inputs copy Inputs", u"Loan copy Inputs", u"Loan copy Notes"});
}

TEST_CASE_FIXTURE(Drag, "pressing and releasing Ctrl changes between move and copy while dragging") {
    drag(u"plan.xls:1*Loan", u"Book2");
    CHECK(tree.treQOR.drag_icon() == 3);
    tree.treQOR.press_key(ctrl);
    CHECK(tree.treQOR.drag_icon() == 4);
    tree.treQOR.release_key(0);
    CHECK(tree.treQOR.drag_icon() == 3);
    tree.treQOR.press_key(ctrl);
    tree.treQOR.release_pointer(held(on(u"Book2"), ctrl));
    CHECK(done == Lines{u"Loan copy Notes"});
    load();
    press_on(u"plan.xls:1*Loan");
    tree.treQOR.press_key(ctrl);  // nothing is dragged yet
    CHECK(tree.treQOR.drag_icon() == 0);
}

TEST_CASE_FIXTURE(Drag, "after a drop nothing is checked, and the window of the target is open") {
    tree.LoadExcel();
    node(u"ROOT").set_expanded(true);
    node(u"plan.xls:1").set_expanded(true);
    check(u"Book2");
    drop(u"plan.xls:1*Loan", u"Book2");
    CHECK(node(u"Book2").expanded());
    CHECK_FALSE(node(u"plan.xls:1").expanded());
    CHECK(tree.CountCheckBoxes(2) == 0);
    CHECK(tree.treQOR.drag_icon() == 0);
    CHECK(tree.treQOR.drop_highlight() == nullptr);
}

TEST_CASE_FIXTURE(Drag, "what may take the worksheet is highlighted: neither the root nor the worksheet itself") {
    drag(u"plan.xls:1*Loan", u"Book2");
    CHECK(tree.treQOR.drop_highlight() == &node(u"Book2"));
    for (const auto* key : {u"ROOT", u"plan.xls:1*Loan"}) {
        tree.treQOR.move_pointer(held(on(key)));
        CHECK(tree.treQOR.drop_highlight() == nullptr);
    }
    tree.treQOR.move_pointer(held({.x = 900, .y = 5000}));
    CHECK(tree.treQOR.drop_highlight() == nullptr);
    check_states.clear();
    tree.treQOR.release_pointer(held({.x = 900, .y = 5000}));
    CHECK(done.empty());
    CHECK(tree.treQOR.count() == 12);
}

TEST_CASE_FIXTURE(Drag, "neither a window nor a check box begins a drag, nor do Shift and Alt") {
    drag(u"Book2", u"plan.xls:1");
    CHECK(tree.treQOR.drag_icon() == 0);
    tree.treQOR.release_pointer(held(on(u"plan.xls:1")));
    for (const int shift : {1, 3, 4}) {
        drag(u"plan.xls:1*Loan", u"Book2", shift);
        CHECK(tree.treQOR.drag_icon() == 0);
        tree.treQOR.release_pointer(held(on(u"Book2"), shift));
    }
    const Pointer box = *tree.treQOR.picture_point(node(u"plan.xls:1*Loan"));
    tree.treQOR.move_pointer(box);
    tree.treQOR.press_pointer(held(box));
    tree.treQOR.move_pointer(held(on(u"Book2")));
    CHECK(tree.treQOR.drag_icon() == 0);
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(Drag, "whatever the host refuses of a drop, the drag is over and the tree loaded again") {
    const auto drag_it = [&] {
        begin_command();
        load();
        drag(u"plan.xls:1*Ratios", u"Book2*Notes");
        return host;
    };
    const auto drop_it = [&](const Object& failing) {
        gExcel = failing;
        tree.treQOR.release_pointer(held(on(u"Book2*Notes")));
    };
    support::fail_each_access(drag_it, drop_it, [&](std::int32_t error) {
        CHECK(error == 0);
        CHECK(tree.treQOR.drag_icon() == 0);
        CHECK(node(u"ROOT").text() == u"Excel Workbook Windows");
        CHECK((done.empty() || done.back() == u"Ratios move Notes"));
    });
}
