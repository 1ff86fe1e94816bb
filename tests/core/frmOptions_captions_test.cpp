#include <doctest/doctest.h>

#include <map>

#include "core/frmOptions.hpp"
#include "platform/text.hpp"
#include "tests/fakes/fake_host.hpp"

using namespace qor;

namespace {

std::string joined(const std::vector<std::u16string>& captions) {
    std::string text;
    for (const std::u16string& caption : captions) text += (text.empty() ? "" : "|") + to_utf8(caption);
    return text;
}

std::string caption_of(const Control& control) {
    if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return to_utf8(box->caption());
    if (const auto* options = dynamic_cast<const Options*>(&control)) return joined(options->captions());
    if (const auto* label = dynamic_cast<const Label*>(&control)) return to_utf8(label->text());
    if (const auto* frame = dynamic_cast<const Frame*>(&control)) return to_utf8(frame->caption());
    if (const auto* swatch = dynamic_cast<const Swatch*>(&control)) return to_utf8(swatch->caption());
    if (const auto* button = dynamic_cast<const Button*>(&control)) return to_utf8(button->caption());
    if (const auto* tabs = dynamic_cast<const Tabs*>(&control)) return joined(tabs->captions());
    return {};
}

}  // namespace

TEST_CASE_FIXTURE(fakes::FakeHost, "every caption of the options stands as it is known") {
    const frmOptions form;
    std::map<std::string, std::string> captions;
    for (const Control* control : form.controls()) {
        const std::string caption = caption_of(*control);
        if (!caption.empty()) captions[to_utf8(control->name())] = caption;
    }
    const std::map<std::string, std::string> known{
        {"tabOptions", "General|Workbook 1|Workbook 2|Worksheets|Reports|Utility Settings"},
        {"fraOptions(0)", "General"},
        {"fraOptions(1)", "Workbook 1"},
        {"fraOptions(2)", "Workbook 2"},
        {"fraOptions(3)", "Worksheet"},
        {"fraOptions(4)", "Reports"},
        {"fraOptions(5)", "Utility Settings"},
        {"chkT1AutoAdjWin", "Automatically arrange windows when opening workbooks."},
        {"chkT1AutoAdjWinWorkbookOnly", "Windows of Active Workbook"},
        {"rdoT1AutoAdjWin", "Tile|Horizontal|Vertical|Cascade"},
        {"chkT1AddFullFilePath", "Add the full path to the workbook file name in the Window's title bar."},
        {"chkT1DeleteRecentFiles", "Delete recent file list upon application exit."},
        {"chkT2AlternateTemplate", "New File - Alternate Template"},
        {"chkT2DefaultSave", "Default save file folder location.  Identify file folder below:"},
        {"chkT2AlwaysCreateBackupUponSave", "Always Create Backup Upon Save.  Identify backup folder below:"},
        {"chkT2WarnBackupExists", "Warn if Backup Exists."},
        {"chkT3SaveWorkbooksEvery", "Save workbooks every"},
        {"lblT3SaveWorkbooksEvery", "minutes."},
        {"chkT3AutoDeleteEmptyWorksheets", "Delete empty worksheets when opening workbook."},
        {"chkT3AutoSaveB4Close", "Save workbook upon close without question."},
        {"chkT3ShowHiddenWorkbooks", "Show hidden workbook windows in common treeview."},
        {"chkT4ShowHiddenWorksheets", "Show hidden worksheets in common treeview."},
        {"chkT4UseCellEvents", "Use Cell Events"},
        {"lblT4CheckCellEvents", "Check cell events every "},
        {"lblT4CellEventMinutes", "minutes."},
        {"chkT4SetScrollArea", "Set Scroll Areas."},
        {"chkT4ResetLastCellUponSave", "Reset Last Cell Upon Save."},
        {"chkT4ViewCellCommentsUponEntry", "View Cell Comments Upon Entry"},
        {"chkT5ReportNewWorkbook", "Make report in new workbook."},
        {"rdoT5ReportLocation",
         "Place report as first worksheet (Existing Workbook)|Place report as last worksheet (Existing Workbook)"},
        {"fraT6InsSinRow", "Insert Quick Rows"},
        {"lblT6InsRow", "Insert Rows"},
        {"chkT6InsSinRow", "Color"},
        {"cmdT6InsSinRow(0)", "BG"},
        {"cmdT6InsSinRow(1)", "FG"},
        {"chkT6InsSinRowARH", "Adjust Row Height"},
        {"lblT6InsSinRow", "Row Height"},
        {"fraT6InsSinCol", "Insert Quick Columns"},
        {"lblT6InsCol", "Insert Columns"},
        {"chkT6InsSinCol", "Color"},
        {"cmdT6InsSinCol(0)", "BG"},
        {"cmdT6InsSinCol(1)", "FG"},
        {"chkT6InsSinColACW", "Adjust Column Width"},
        {"lblT6InsSinCol", "Column Width"},
        {"cmdButton(0)", "OK"},
        {"cmdButton(1)", "Cancel"},
        {"cmdButton(2)", "Apply"},
        {"cmdButton(3)", "Help"},
    };
    CHECK(captions.size() == known.size());
    for (const auto& control : known) {
        CAPTURE(control.first);
        CHECK(captions[control.first] == control.second);
    }
}
