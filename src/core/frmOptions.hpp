#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "ground/option_table.hpp"
#include "ground/tool_form.hpp"
#include "services/ctlBrowse.hpp"
#include "services/ctlDiag.hpp"
#include "services/ctlSpinner.hpp"
#include "ui/button.hpp"
#include "ui/check_box.hpp"
#include "ui/frame.hpp"
#include "ui/label.hpp"
#include "ui/options.hpp"
#include "ui/swatch.hpp"
#include "ui/tabs.hpp"

namespace qor {

// The dialog in which the user sets the options. It shows them, and stores those that the user has touched; what they
// do is with those who read them.
class frmOptions final : public ToolForm {
  public:
    frmOptions();

    std::int32_t GetCurrentTab = 0;  // the one to open on

    Tabs tabOptions{*this,
                    u"tabOptions",
                    {u"General", u"Workbook 1", u"Workbook 2", u"Worksheets", u"Reports", u"Utility Settings"}};
    std::array<Frame, 6> fraOptions{{
        {*this, u"fraOptions(0)", u"General"},
        {*this, u"fraOptions(1)", u"Workbook 1"},
        {*this, u"fraOptions(2)", u"Workbook 2"},
        {*this, u"fraOptions(3)", u"Worksheet"},
        {*this, u"fraOptions(4)", u"Reports"},
        {*this, u"fraOptions(5)", u"Utility Settings"},
    }};

    CheckBox chkT1AutoAdjWin{*this, u"chkT1AutoAdjWin", u"Automatically arrange windows when opening workbooks."};
    CheckBox chkT1AutoAdjWinWorkbookOnly{*this, u"chkT1AutoAdjWinWorkbookOnly", u"Windows of Active Workbook"};
    Options rdoT1AutoAdjWin{*this, u"rdoT1AutoAdjWin", {u"Tile", u"Horizontal", u"Vertical", u"Cascade"}};
    CheckBox chkT1AddFullFilePath{*this, u"chkT1AddFullFilePath",
                                  u"Add the full path to the workbook file name in the Window's title bar."};
    CheckBox chkT1DeleteRecentFiles{*this, u"chkT1DeleteRecentFiles",
                                    u"Delete recent file list upon application exit."};

    CheckBox chkT2AlternateTemplate{*this, u"chkT2AlternateTemplate", u"New File - Alternate Template"};
    ctlDiag txtT2AlternateTemplateFile{*this, u"txtT2AlternateTemplateFile"};
    CheckBox chkT2DefaultSave{*this, u"chkT2DefaultSave",
                              u"Default save file folder location.  Identify file folder below:"};
    ctlBrowse txtT2DefaultSaveFolder{*this, u"txtT2DefaultSaveFolder"};
    CheckBox chkT2AlwaysCreateBackupUponSave{*this, u"chkT2AlwaysCreateBackupUponSave",
                                             u"Always Create Backup Upon Save.  Identify backup folder below:"};
    ctlBrowse txtT2AlwaysCreateBackupUponSave{*this, u"txtT2AlwaysCreateBackupUponSave"};
    CheckBox chkT2WarnBackupExists{*this, u"chkT2WarnBackupExists", u"Warn if Backup Exists."};

    CheckBox chkT3SaveWorkbooksEvery{*this, u"chkT3SaveWorkbooksEvery", u"Save workbooks every"};
    ctlSpinner txtT3SaveWorkbooksEvery{*this, u"txtT3SaveWorkbooksEvery", u"10", 1, 60};
    Label lblT3SaveWorkbooksEvery{*this, u"lblT3SaveWorkbooksEvery", u"minutes."};
    CheckBox chkT3AutoDeleteEmptyWorksheets{*this, u"chkT3AutoDeleteEmptyWorksheets",
                                            u"Delete empty worksheets when opening workbook."};
    CheckBox chkT3AutoSaveB4Close{*this, u"chkT3AutoSaveB4Close", u"Save workbook upon close without question."};
    CheckBox chkT3ShowHiddenWorkbooks{*this, u"chkT3ShowHiddenWorkbooks",
                                      u"Show hidden workbook windows in common treeview."};

    CheckBox chkT4ShowHiddenWorksheets{*this, u"chkT4ShowHiddenWorksheets",
                                       u"Show hidden worksheets in common treeview."};
    CheckBox chkT4UseCellEvents{*this, u"chkT4UseCellEvents", u"Use Cell Events"};
    Label lblT4CheckCellEvents{*this, u"lblT4CheckCellEvents", u"Check cell events every "};
    ctlSpinner txtT4CellEventMinutes{*this, u"txtT4CellEventMinutes", u"1", 1, 60};
    Label lblT4CellEventMinutes{*this, u"lblT4CellEventMinutes", u"minutes."};
    CheckBox chkT4SetScrollArea{*this, u"chkT4SetScrollArea", u"Set Scroll Areas."};
    CheckBox chkT4ResetLastCellUponSave{*this, u"chkT4ResetLastCellUponSave", u"Reset Last Cell Upon Save."};
    CheckBox chkT4ViewCellCommentsUponEntry{*this, u"chkT4ViewCellCommentsUponEntry", u"View Cell Comments Upon Entry"};

    CheckBox chkT5ReportNewWorkbook{*this, u"chkT5ReportNewWorkbook", u"Make report in new workbook."};
    Options rdoT5ReportLocation{*this,
                                u"rdoT5ReportLocation",
                                {u"Place report as first worksheet (Existing Workbook)",
                                 u"Place report as last worksheet (Existing Workbook)"}};

    // In the pairs of colours, 0 is the background and 1 the text.
    Frame fraT6InsSinRow{*this, u"fraT6InsSinRow", u"Insert Quick Rows"};
    Label lblT6InsRow{*this, u"lblT6InsRow", u"Insert Rows"};
    ctlSpinner txtT6InsRow{*this, u"txtT6InsRow"};
    CheckBox chkT6InsSinRow{*this, u"chkT6InsSinRow", u"Color"};
    std::array<Swatch, 2> cmdT6InsSinRow{{{*this, u"cmdT6InsSinRow(0)", u"BG"}, {*this, u"cmdT6InsSinRow(1)", u"FG"}}};
    CheckBox chkT6InsSinRowARH{*this, u"chkT6InsSinRowARH", u"Adjust Row Height"};
    Label lblT6InsSinRow{*this, u"lblT6InsSinRow", u"Row Height"};
    ctlSpinner txtT6InsSinRow{*this, u"txtT6InsSinRow"};

    Frame fraT6InsSinCol{*this, u"fraT6InsSinCol", u"Insert Quick Columns"};
    Label lblT6InsCol{*this, u"lblT6InsCol", u"Insert Columns"};
    ctlSpinner txtT6InsCol{*this, u"txtT6InsCol"};
    CheckBox chkT6InsSinCol{*this, u"chkT6InsSinCol", u"Color"};
    std::array<Swatch, 2> cmdT6InsSinCol{{{*this, u"cmdT6InsSinCol(0)", u"BG"}, {*this, u"cmdT6InsSinCol(1)", u"FG"}}};
    CheckBox chkT6InsSinColACW{*this, u"chkT6InsSinColACW", u"Adjust Column Width"};
    Label lblT6InsSinCol{*this, u"lblT6InsSinCol", u"Column Width"};
    ctlSpinner txtT6InsSinCol{*this, u"txtT6InsSinCol"};

    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {2, u"Apply"}, {3, u"Help"}}};

    // OK and Apply are there only after a change.
    bool IsDirty() const noexcept { return is_dirty_; }
    void IsDirty(bool dirty);

  protected:
    void on_load() override;
    void on_unload() override;

  private:
    // What the user sets, and how it is read and written.
    struct Setting {
        const OptionRow& row;  // of option buttons, that of the first one
        std::function<void()> load;
        std::function<void()> store;
        bool touched = false;  // by the user
    };
    struct Master {
        CheckBox* box;
        std::vector<Control*> dependants;
        bool enabled_by = true;  // the state of the box
    };
    // A switch without its path is switched off.
    struct Switch {
        CheckBox* box;
        TextEntry* path;
    };

    void add(CheckBox& box, const TruthOption& row);
    void add(Options& options, std::span<const ButtonOption> buttons);
    template <class Box, OptionKind kind>
    requires(kind == OptionKind::text || kind == OptionKind::number) void add(Box& box, const Option<kind>& row);
    // The members of the swatch are those of the colour that the option sets.
    void add(Swatch& swatch, const ColorOption& row, std::int32_t (Swatch::*color)() const,
             void (Swatch::*set_color)(std::int32_t));
    void add_settings();

    void touch(std::size_t setting);
    void follow(const CheckBox& box);
    std::optional<std::int32_t> pick_color();
    void switch_off_what_lacks_its_path();
    void apply();
    void press(int index);

    std::vector<Setting> settings_;  // in the order of the tabs
    std::vector<Master> masters_;
    std::vector<Switch> switches_;
    bool is_dirty_ = false;
    bool answers_changes_ = false;
};

}  // namespace qor
