#include <doctest/doctest.h>

#include "reports/report_forms.hpp"
#include "tests/fakes/tree_hand.hpp"
#include "tests/reports/report_host.hpp"

using namespace qor;
using fakes::box_of;
using fakes::click;
using fakes::held;
using fakes::text_of;

namespace {

struct Dialog : fakes::ReportHost {
    Dialog() {
        add_sheet(u"Inputs", 1.0, u"1");
        start();
    }
    static void check_sheet(frmWKSum& form) {
        TreeView& tree = form.ctlTreeView.treQOR;
        tree.find(u"model.xls")->set_expanded(true);
        click(tree, box_of(tree, u"model.xls*Inputs"));
    }
    static void click_box(frmWKSum& form, std::u16string_view key) {
        click(form.treCellInfo, box_of(form.treCellInfo, key));
    }
    static void drag(frmWKSum& form, std::u16string_view from, std::u16string_view onto, int shift = 0) {
        TreeView& list = form.treCellInfo;
        const Pointer start = text_of(list, from);
        const Pointer target = held(text_of(list, onto), MouseButton::left, shift);
        list.press_pointer(held(start));
        list.move_pointer(held({.x = start.x + 300, .y = start.y}, MouseButton::left, shift));
        list.move_pointer(target);
        list.release_pointer(target);
    }
    static std::u16string first_row(frmWKSum& form) { return form.treCellInfo.visible_rows().front()->text(); }
};

}  // namespace

TEST_CASE_FIXTURE(Dialog, "the dialog opens with the tree, all fields checked and OK disabled") {
    frmWKSum form;
    form.AppTitle = u"QOR Plus: Worksheet Summary";
    form.HelpFileId = 170190;
    form.load();
    CHECK(form.name() == u"frmWKSum");
    CHECK(form.caption() == u"QOR Plus: Worksheet Summary");
    CHECK(form.help_id() == 170190);
    CHECK(form.ctlTreeView.treQOR.count() == 3);
    REQUIRE(form.treCellInfo.count() == 12);
    for (std::size_t index = 1; index <= 12; ++index) {
        CHECK(form.treCellInfo.node(index).image() == 2);
        CHECK(form.treCellInfo.node(index).level() == 1);
    }
    CHECK(form.treCellInfo.node(6).key() == u"Hidden");
    CHECK(form.treCellInfo.node(6).text() == u"Hidden");
    CHECK_FALSE(form.cmdButton(0).enabled());
    CHECK(form.cmdButton(1).enabled());
    CHECK(form.cmdButton(4).enabled());
}

TEST_CASE_FIXTURE(Dialog, "OK is enabled while something is checked") {
    frmWKSum form;
    form.load();
    check_sheet(form);
    CHECK(form.cmdButton(0).enabled());
    check_sheet(form);
    CHECK_FALSE(form.cmdButton(0).enabled());
}

TEST_CASE_FIXTURE(Dialog, "a click on a field's box toggles it, a click on its text does not") {
    frmWKSum form;
    form.load();
    TreeNode& hidden = *form.treCellInfo.find(u"Hidden");
    click(form.treCellInfo, text_of(form.treCellInfo, u"Hidden"));
    CHECK(hidden.image() == 2);
    click_box(form, u"Hidden");
    CHECK(hidden.image() == 1);
    hidden.set_image(3);
    click_box(form, u"Hidden");
    CHECK(hidden.image() == 2);
}

TEST_CASE_FIXTURE(Dialog, "a field is moved by dragging, with its check state") {
    frmWKSum form;
    form.load();
    click_box(form, u"Hidden");
    drag(form, u"Hidden", u"WorkbookName");
    CHECK(first_row(form) == u"Hidden");
    CHECK(form.treCellInfo.find(u"Hidden")->image() == 1);
    CHECK(form.treCellInfo.find(u"WorkbookName")->index() == 2);
    CHECK(form.treCellInfo.drop_highlight() == nullptr);
    CHECK(form.treCellInfo.drag_icon() == 0);
    drag(form, u"Hidden", u"NumberOfHyperlinks");
    CHECK(form.treCellInfo.find(u"Hidden")->index() == 12);
    CHECK(first_row(form) == u"Workbook Name");
}

TEST_CASE_FIXTURE(Dialog,
                  "a field stays where it is when it is dropped on itself, beside the rows or with a key held") {
    frmWKSum form;
    form.load();
    drag(form, u"Hidden", u"Hidden");
    drag(form, u"Hidden", u"WorkbookName", 1);
    drag(form, u"Hidden", u"WorkbookName", 2);
    const Pointer start = text_of(form.treCellInfo, u"Hidden");
    form.treCellInfo.press_pointer(held(start));
    for (const double y : {start.y + 300, 9000.0}) {
        form.treCellInfo.move_pointer({.x = start.x, .y = y, .button = MouseButton::left});
    }
    form.treCellInfo.release_pointer(held({.x = start.x, .y = 9000}));
    CHECK(form.treCellInfo.find(u"Hidden")->index() == 6);
    CHECK(first_row(form) == u"Workbook Name");
    // Nothing is left over of the drag.
    click_box(form, u"Hidden");
    CHECK(form.treCellInfo.find(u"Hidden")->image() == 1);
}

TEST_CASE_FIXTURE(Dialog, "a drag needs the left button and a row to start from") {
    frmWKSum form;
    form.load();
    TreeView& list = form.treCellInfo;
    const Pointer start = text_of(list, u"Hidden");
    list.press_pointer(held(start, MouseButton::right));
    list.move_pointer({.x = start.x, .y = 10, .button = MouseButton::right});
    CHECK(list.drag_icon() == 0);
    list.release_pointer({.x = start.x, .y = 10, .button = MouseButton::right});
    list.press_pointer({.x = 300, .y = 9000, .button = MouseButton::left});
    list.move_pointer({.x = 300, .y = 10, .button = MouseButton::left});
    CHECK(list.drag_icon() == 0);
}

TEST_CASE_FIXTURE(Dialog, "OK hides the dialog, writes the report under the progress window and unloads both") {
    frmWKSum form;
    screen.while_modal = [&](Form&) {
        check_sheet(form);
        click_box(form, u"WorkbookName");
        drag(form, u"Hidden", u"WorkbookName");
        form.cmdButton(0).press();
    };
    form.show_modal();
    CHECK(screen.log == fakes::Lines{u"modal frmWKSum", u"hide frmWKSum", u"modeless frmComplete over frmWKSum",
                                     u"progress frmComplete", u"unload frmComplete", u"unload frmWKSum"});
    CHECK(*value(5, 1).get_if<std::u16string>() == u"Hidden");
    CHECK(*value(5, 2).get_if<std::u16string>() == u"Worksheet Name");
    CHECK(*value(6, 2).get_if<std::u16string>() == u"Inputs");
    CHECK(value(5, 12).is_missing());
}

TEST_CASE_FIXTURE(Dialog, "Cancel unloads the dialog and nothing is added") {
    frmWKSum form;
    screen.while_modal = [&](Form&) {
        check_sheet(form);
        form.cmdButton(1).press();
    };
    form.show_modal();
    CHECK_FALSE(form.loaded());
    CHECK(done.empty());
    CHECK(grid.empty());
}

TEST_CASE_FIXTURE(Dialog, "each opening starts again from the fixed list") {
    frmWKSum form;
    form.load();
    click_box(form, u"Hidden");
    drag(form, u"Hidden", u"WorkbookName");
    form.unload();
    form.load();
    CHECK(first_row(form) == u"Workbook Name");
    CHECK(form.treCellInfo.find(u"Hidden")->image() == 2);
}

TEST_CASE_FIXTURE(Dialog, "the tree may ask the dialog to close") {
    frmWKSum form;
    form.load();
    form.ctlTreeView.RequestClose(false);
    CHECK(form.loaded());
    form.ctlTreeView.RequestClose(true);
    CHECK_FALSE(form.loaded());
}

TEST_CASE_FIXTURE(Dialog, "Help asks the host, with the form's help file and id, and raises what the host refuses") {
    std::vector<Variant> asked;
    application.answers(names::Help, [&](Access, fakes::Values arguments) -> Variant {
        asked.assign(arguments.begin(), arguments.end());
        return {};
    });
    frmWKSum form;
    form.HelpFile = u"QOR.hlp";
    form.HelpFileId = 170190;
    form.cmdButton(4).press();
    REQUIRE(asked.size() == 2);
    CHECK(*asked[0].get_if<std::u16string>() == u"QOR.hlp");
    CHECK(*asked[1].get_if<std::int32_t>() == 170190);
    gExcel = {};
    CHECK_THROWS_AS(form.cmdButton(4).press(), Error);
}
