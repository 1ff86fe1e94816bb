#include <wx/bookctrl.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/dataview.h>
#include <wx/datectrl.h>
#include <wx/dateevt.h>
#include <wx/gauge.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>

#include "tests/wx/fixture.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

// A point on the tab of that place.
wxPoint tab_point(const std::string& control, int place) {
    const auto& tabs = window_of<wxNotebook>(control);
    for (int x = 0; x < tabs.GetSize().x; x += 4) {
        if (tabs.HitTest({x, 12}) == place) return {x + 8, 12};
    }
    throw std::runtime_error("the tab is not to be seen");
}

}  // namespace

TEST_CASE_FIXTURE(EveryKind, "a check box follows its form and its form follows it") {
    show([&](User& user) {
        user.click("chkPath");
        CHECK(form.chkPath.checked());
        user.on_screen([&] { form.chkPath.set_checked(false); });
        user.settle();
        user.on_screen([&] { CHECK_FALSE(window_of<wxCheckBox>("chkPath").GetValue()); });
        user.key("alt+p");
        CHECK(form.chkPath.checked());
    });
}

TEST_CASE_FIXTURE(EveryKind, "of a group of options none is chosen until one is") {
    show([&](User& user) {
        const auto chosen = [&] {
            std::string captions;
            user.on_screen([&] {
                for (const wxWindow* child : window_of<wxWindow>("optOrder").GetChildren()) {
                    const auto* button = dynamic_cast<const wxRadioButton*>(child);
                    if (button && button->IsShown() && button->GetValue()) captions += button->GetLabelText();
                }
            });
            return captions;
        };
        CHECK(chosen().empty());
        CHECK(form.optOrder.chosen() == Options::none);
        user.click_in("optOrder", {8, 8});
        CHECK(form.optOrder.chosen() == 0);
        user.key("Down");
        CHECK(form.optOrder.chosen() == 1);
        user.on_screen([&] { form.optOrder.choose(0); });
        user.settle();
        CHECK(chosen() == "Beginning");
        user.key("alt+e");
        CHECK(form.optOrder.chosen() == 1);
    });
}

TEST_CASE_FIXTURE(EveryKind, "a list that drops down is chosen from by keyboard, and gets new entries") {
    show([&](User& user) {
        user.on_screen([] { window_of<wxChoice>("cboPlace").SetFocus(); });
        user.key("space");
        user.key("Down");
        user.key("Return");
        CHECK(form.cboPlace.chosen() == 1);
        user.on_screen([&] {
            form.cboPlace.clear();
            form.cboPlace.add_entry(u"Above");
            form.cboPlace.choose(0);
        });
        user.settle();
        user.on_screen([&] { CHECK(window_of<wxChoice>("cboPlace").GetStringSelection() == "Above"); });
    });
}

TEST_CASE_FIXTURE(EveryKind, "a day is shown and picked") {
    show([&](User& user) {
        user.on_screen([&] {
            CHECK(window_of<wxDatePickerCtrl>("txtDate").GetValue().FormatISODate() == "2004-03-15");
            form.txtDate.set_day(Date{1});
        });
        user.settle();
        user.on_screen([&] {
            auto& picker = window_of<wxDatePickerCtrl>("txtDate");
            CHECK(picker.GetValue().FormatISODate() == "1899-12-31");
            wxDateEvent picked(&picker, wxDateTime(21, wxDateTime::Nov, 2026), wxEVT_DATE_CHANGED);
            picker.ProcessWindowEvent(picked);
        });
        CHECK(form.txtDate.day().serial == 46347);
    });
}

TEST_CASE_FIXTURE(EveryKind, "a swatch shows its colours and is pressed") {
    form.cmdColor.set_back_color(0xFF8000);  // blue, some green
    show([&](User& user) {
        user.on_screen(
            [] { CHECK(window_of<wxWindow>("cmdColor").GetBackgroundColour() == wxColour(0x00, 0x80, 0xFF)); });
        user.on_screen([&] {
            form.cmdColor.set_back_color(0xFFFFFF);
            form.cmdColor.set_fore_color(0x0000C0);  // red
        });
        user.settle();
        user.on_screen(
            [] { CHECK(window_of<wxWindow>("cmdColor").GetForegroundColour() == wxColour(0xC0, 0x00, 0x00)); });
        form.log.clear();
        user.click("cmdColor");
        CHECK((form.log.find(u"color ") != std::u16string::npos));
    });
}

TEST_CASE_FIXTURE(EveryKind, "tabs turn by the pointer, the keyboard and the form") {
    show([&](User& user) {
        wxPoint second;
        user.on_screen([&] { second = tab_point("tabMain", 1); });
        user.click_in("tabMain", second);
        CHECK(form.tabMain.current() == 1);
        user.key("ctrl+Page_Up");
        CHECK(form.tabMain.current() == 0);
        user.on_screen([&] { form.tabMain.turn_to(1); });
        user.settle();
        user.on_screen([] { CHECK(window_of<wxNotebook>("tabMain").GetSelection() == 1); });
    });
}

TEST_CASE_FIXTURE(EveryKind, "nothing in a disabled frame is reached") {
    form.fraBox.set_enabled(false);
    show([&](User& user) {
        user.click("chkInside");
        CHECK_FALSE(form.chkInside.checked());
        user.on_screen([&] { form.fraBox.set_enabled(true); });
        user.settle();
        user.click("chkInside");
        CHECK(form.chkInside.checked());
    });
}

TEST_CASE_FIXTURE(EveryKind, "a panel is flooded as the form says") {
    show([&](User& user) {
        user.on_screen([&] { form.SSPanel1.set_flood_percent(42); });
        user.settle();
        user.on_screen([] { CHECK(window_of<wxGauge>("SSPanel1").GetValue() == 42); });
    });
}

TEST_CASE_FIXTURE(EveryKind, "rows of a list are selected, double-clicked and sorted; a hidden column stays hidden") {
    show([&](User& user) {
        wxPoint second_row;
        wxPoint caption;
        user.on_screen([&] {
            auto& list = window_of<wxDataViewCtrl>("lstMain");
            CHECK(list.GetColumn(1)->IsHidden());
            const auto* model = dynamic_cast<wxDataViewVirtualListModel*>(list.GetModel());
            const wxRect row = list.GetItemRect(model->GetItem(1), list.GetColumn(0));
            second_row = {20, row.y + row.height / 2};
            caption = {20, 8};
        });
        user.click_in("lstMain", second_row);
        CHECK(form.lstMain.selected_row() == std::size_t{1});
        CHECK((form.log.find(u"click Rent ") != std::u16string::npos));
        user.key("Up");
        CHECK(form.lstMain.selected_row() == std::size_t{0});
        user.click_in("lstMain", caption);
        CHECK((form.lstMain.text(0, 0) == u"Rent"));
        CHECK(form.lstMain.selected_row() == std::size_t{1});
        user.click_in("lstMain", caption);
        CHECK((form.lstMain.text(0, 0) == u"Tax"));
    });
}
