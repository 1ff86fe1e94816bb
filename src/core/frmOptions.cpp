#include "core/frmOptions.hpp"

#include "ground/CReg.hpp"
#include "runtime/conversion.hpp"
#include "runtime/trim.hpp"
#include "services/CDiag.hpp"
#include "workbooks/window_captions.hpp"

namespace qor {
namespace {

std::u16string read(const OptionRow& row) {
    return CReg(environment().settings).GetSetting(RootKey::current_user, option::section, row.key, row.shown);
}

void write(const OptionRow& row, std::u16string_view value) {
    CReg(environment().settings).SaveSetting(RootKey::current_user, option::section, row.key, value);
}

}  // namespace

frmOptions::frmOptions() : ToolForm(u"frmOptions") {
    add_settings();
    masters_ = {
        {&chkT1AutoAdjWin, {&rdoT1AutoAdjWin, &chkT1AutoAdjWinWorkbookOnly}},
        {&chkT2AlternateTemplate, {&txtT2AlternateTemplateFile.box}},
        {&chkT2DefaultSave, {&txtT2DefaultSaveFolder.box}},
        {&chkT2AlwaysCreateBackupUponSave, {&txtT2AlwaysCreateBackupUponSave.box, &chkT2WarnBackupExists}},
        {&chkT3SaveWorkbooksEvery, {&txtT3SaveWorkbooksEvery.box}},
        {&chkT4UseCellEvents, {&txtT4CellEventMinutes.box}},
        {&chkT6InsSinColACW, {&txtT6InsSinCol.box}},
        {&chkT6InsSinRowARH, {&txtT6InsSinRow.box}},
        {&chkT5ReportNewWorkbook, {&rdoT5ReportLocation}, false},
    };
    switches_ = {
        {&chkT2AlwaysCreateBackupUponSave, &txtT2AlwaysCreateBackupUponSave.box},
        {&chkT2DefaultSave, &txtT2DefaultSaveFolder.box},
        {&chkT2AlternateTemplate, &txtT2AlternateTemplateFile.box},
    };
    for (std::size_t tab = 1; tab < fraOptions.size(); ++tab) fraOptions[tab].set_enabled(false);
    tabOptions.on_click = [this](int left) {
        fraOptions[static_cast<std::size_t>(left)].set_enabled(false);
        fraOptions[static_cast<std::size_t>(tabOptions.current())].set_enabled(true);
    };
    cmdButton.on_click = [this](int index) { press(index); };
    IsDirty(false);
}

void frmOptions::add_settings() {
    add(chkT1AutoAdjWin, option::chkT1AutoAdjWin);
    add(rdoT1AutoAdjWin, option::rdoT1AutoAdjWin);
    add(chkT1AutoAdjWinWorkbookOnly, option::chkT1AutoAdjWinWorkbookOnly);
    add(chkT1AddFullFilePath, option::chkT1AddFullFilePath);
    add(chkT1DeleteRecentFiles, option::chkT1DeleteRecentFiles);
    add(chkT2AlwaysCreateBackupUponSave, option::chkT2AlwaysCreateBackupUponSave);
    add(txtT2AlwaysCreateBackupUponSave, option::txtT2AlwaysCreateBackupUponSave);
    add(chkT2WarnBackupExists, option::chkT2WarnBackupExists);
    add(chkT2DefaultSave, option::chkT2DefaultSave);
    add(txtT2DefaultSaveFolder, option::txtT2DefaultSaveFolder);
    add(chkT2AlternateTemplate, option::chkT2AlternateTemplate);
    add(txtT2AlternateTemplateFile, option::txtT2AlternateTemplateFile);
    add(chkT3AutoDeleteEmptyWorksheets, option::chkT3AutoDeleteEmptyWorksheets);
    add(chkT3SaveWorkbooksEvery, option::chkT3SaveWorkbooksEvery);
    add(txtT3SaveWorkbooksEvery, option::txtT3SaveWorkbooksEvery);
    add(chkT3AutoSaveB4Close, option::chkT3AutoSaveB4Close);
    add(chkT3ShowHiddenWorkbooks, option::chkT3ShowHiddenWorkbooks);
    add(chkT4ResetLastCellUponSave, option::chkT4ResetLastCellUponSave);
    add(chkT4SetScrollArea, option::chkT4SetScrollArea);
    add(chkT4ShowHiddenWorksheets, option::chkT4ShowHiddenWorksheets);
    add(chkT4UseCellEvents, option::chkT4UseCellEvents);
    add(txtT4CellEventMinutes, option::txtT4CellEventMinutes);
    add(chkT4ViewCellCommentsUponEntry, option::chkT4ViewCellCommentsUponEntry);
    add(chkT5ReportNewWorkbook, option::chkT5ReportNewWorkbook);
    add(rdoT5ReportLocation, option::rdoT5ReportLocation);
    add(chkT6InsSinCol, option::chkT6InsSinCol);
    add(cmdT6InsSinCol[0], option::T6BInsSinCol, &Swatch::back_color, &Swatch::set_back_color);
    add(cmdT6InsSinCol[1], option::T6FInsSinCol, &Swatch::fore_color, &Swatch::set_fore_color);
    add(chkT6InsSinColACW, option::chkT6InsSinColACW);
    add(txtT6InsSinCol, option::txtT6InsSinCol);
    add(txtT6InsCol, option::txtT6InsCol);
    add(chkT6InsSinRow, option::chkT6InsSinRow);
    add(cmdT6InsSinRow[0], option::T6BInsSinRow, &Swatch::back_color, &Swatch::set_back_color);
    add(cmdT6InsSinRow[1], option::T6FInsSinRow, &Swatch::fore_color, &Swatch::set_fore_color);
    add(chkT6InsSinRowARH, option::chkT6InsSinRowARH);
    add(txtT6InsSinRow, option::txtT6InsSinRow);
    add(txtT6InsRow, option::txtT6InsRow);
}

void frmOptions::add(CheckBox& box, const TruthOption& row) {
    box.on_click = [this, &box, place = settings_.size()] {
        touch(place);
        follow(box);
    };
    settings_.push_back({row,
                         [this, &box, &row] {
                             attempt([&] { box.set_checked(to_boolean(read(row))); });
                             follow(box);
                         },
                         [&box, &row] { write(row, box.checked() ? u"-1" : u"0"); }});
}

// Each button has a key of its own. They are written together, since those who read them have defaults of their own.
void frmOptions::add(Options& options, std::span<const ButtonOption> buttons) {
    options.on_click = [this, place = settings_.size()](int) { touch(place); };
    settings_.push_back({buttons.front(),
                         [&options, buttons] {
                             for (std::size_t place = 0; place < buttons.size(); ++place) {
                                 attempt([&] {
                                     if (to_boolean(read(buttons[place]))) options.choose(static_cast<int>(place));
                                 });
                             }
                         },
                         [&options, buttons] {
                             for (std::size_t place = 0; place < buttons.size(); ++place) {
                                 const bool chosen = options.chosen() == static_cast<int>(place);
                                 write(buttons[place], chosen ? u"True" : u"False");
                             }
                         }});
}

template <class Box, OptionKind kind>
requires(kind == OptionKind::text || kind == OptionKind::number) void frmOptions::add(Box& box,
                                                                                      const Option<kind>& row) {
    TextEntry& entry = box.box;
    box.Change = [this, place = settings_.size()] { touch(place); };
    settings_.push_back(
        {row, [&entry, &row] { entry.set_text(read(row)); }, [&entry, &row] { write(row, entry.text()); }});
}

void frmOptions::add(Swatch& swatch, const ColorOption& row, std::int32_t (Swatch::*color)() const,
                     void (Swatch::*set_color)(std::int32_t)) {
    swatch.on_click = [this, &swatch, set_color, place = settings_.size()] {
        if (const auto picked = pick_color()) {
            (swatch.*set_color)(*picked);
            touch(place);
        }
    };
    settings_.push_back({row, [&swatch, &row, set_color] { (swatch.*set_color)(to_long(read(row))); },
                         [&swatch, &row, color] { write(row, to_text((swatch.*color)())); }});
}

void frmOptions::IsDirty(bool dirty) {
    is_dirty_ = dirty;
    cmdButton(0).set_enabled(dirty);
    cmdButton(2).set_enabled(dirty);
}

void frmOptions::on_load() {
    if (GetCurrentTab >= 0 && static_cast<std::size_t>(GetCurrentTab) < fraOptions.size())
        tabOptions.turn_to(GetCurrentTab);
    for (const Setting& setting : settings_) attempt(setting.load);
    answers_changes_ = true;
}

void frmOptions::touch(std::size_t setting) {
    if (!answers_changes_) return;
    IsDirty(true);
    settings_[setting].touched = true;
}

void frmOptions::follow(const CheckBox& box) {
    for (const Master& master : masters_) {
        if (master.box != &box) continue;
        for (Control* dependant : master.dependants) dependant->set_enabled(box.checked() == master.enabled_by);
    }
}

std::optional<std::int32_t> frmOptions::pick_color() {
    CDiag dialog;
    dialog.GetMehwnd = this;
    std::int32_t color = 0;
    if (attempt([&] { color = dialog.GetColorWDiag(); }) != 0 || dialog.GetCancel) return {};
    return color;
}

void frmOptions::press(int index) {
    switch (index) {
        case 0:
            if (cmdButton(2).enabled()) apply();
            unload();
            break;
        case 1:
            unload();
            break;
        case 2:
            apply();
            break;
        default:
            attempt([&] { show_help(); });
            break;
    }
}

// Not a change of the user's: what he has not touched is not stored.
void frmOptions::switch_off_what_lacks_its_path() {
    answers_changes_ = false;
    for (const Switch& option : switches_) {
        if (trim(option.path->text()).empty()) option.box->set_checked(false);
    }
    answers_changes_ = true;
}

void frmOptions::apply() {
    switch_off_what_lacks_its_path();
    for (const Setting& setting : settings_) {
        if (!setting.touched) continue;
        setting.store();
        if (&setting.row == &option::chkT1AddFullFilePath) attempt([] { QUpdateWindowCaption(); });
    }
    cmdButton(0).set_enabled(false);
    cmdButton(2).set_enabled(false);
}

void frmOptions::on_unload() {
    AppTitle.clear();
    HelpFile.clear();
}

}  // namespace qor
