#include "core/frmOptions.hpp"

#include "ground/CReg.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "runtime/trim.hpp"
#include "services/CDiag.hpp"
#include "workbooks/window_captions.hpp"

namespace qor {
namespace {

constexpr std::u16string_view section = u"Options";

std::u16string number_text(std::int32_t number) {
    return from_utf8(std::to_string(number));
}

int count_of(const Options& options) {
    return static_cast<int>(options.captions().size());
}

std::u16string key_of(const Options& options, int button) {
    return options.name() + number_text(button);
}

std::u16string read(std::u16string_view key, std::u16string_view standard) {
    return CReg(environment().settings).GetSetting(RootKey::current_user, section, key, standard);
}

void write(std::u16string_view key, std::u16string_view value) {
    CReg(environment().settings).SaveSetting(RootKey::current_user, section, key, value);
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
    add(chkT1AutoAdjWin);
    add(rdoT1AutoAdjWin);
    add(chkT1AutoAdjWinWorkbookOnly);
    add(chkT1AddFullFilePath);
    add(chkT1DeleteRecentFiles);
    add(chkT2AlwaysCreateBackupUponSave);
    add_text(txtT2AlwaysCreateBackupUponSave, u"");
    add(chkT2WarnBackupExists, u"-1");
    add(chkT2DefaultSave);
    add_text(txtT2DefaultSaveFolder, u"");
    add(chkT2AlternateTemplate);
    add_text(txtT2AlternateTemplateFile, u"");
    add(chkT3AutoDeleteEmptyWorksheets);
    add(chkT3SaveWorkbooksEvery);
    add_text(txtT3SaveWorkbooksEvery, u"10");
    add(chkT3AutoSaveB4Close);
    add(chkT3ShowHiddenWorkbooks);
    add(chkT4ResetLastCellUponSave, u"-1");
    add(chkT4SetScrollArea);
    add(chkT4ShowHiddenWorksheets);
    add(chkT4UseCellEvents);
    add_text(txtT4CellEventMinutes, u"1");
    add(chkT4ViewCellCommentsUponEntry);
    add(chkT5ReportNewWorkbook);
    add(rdoT5ReportLocation);
    add(chkT6InsSinCol);
    add_background(cmdT6InsSinCol[0], u"T6BInsSinCol");
    add_text_color(cmdT6InsSinCol[1], u"T6FInsSinCol");
    add(chkT6InsSinColACW);
    add_text(txtT6InsSinCol, u"");
    add_text(txtT6InsCol, u"1");
    add(chkT6InsSinRow);
    add_background(cmdT6InsSinRow[0], u"T6BInsSinRow");
    add_text_color(cmdT6InsSinRow[1], u"T6FInsSinRow");
    add(chkT6InsSinRowARH);
    add_text(txtT6InsSinRow, u"");
    add_text(txtT6InsRow, u"1");
}

void frmOptions::add(CheckBox& box, std::u16string_view standard) {
    box.on_click = [this, &box, place = settings_.size()] {
        touch(place);
        follow(box);
    };
    settings_.push_back({box.name(),
                         [this, &box, standard] {
                             attempt([&] { box.set_checked(to_boolean(read(box.name(), standard))); });
                             follow(box);
                         },
                         [&box] { write(box.name(), box.checked() ? u"-1" : u"0"); }});
}

template <class Box>
void frmOptions::add_text(Box& box, std::u16string_view standard) {
    TextEntry& entry = box.box;
    box.Change = [this, place = settings_.size()] { touch(place); };
    settings_.push_back({entry.name(), [&entry, standard] { entry.set_text(read(entry.name(), standard)); },
                         [&entry] { write(entry.name(), entry.text()); }});
}

// Each button has a key of its own. They are written together, since those who read them have defaults of their own.
void frmOptions::add(Options& options) {
    options.on_click = [this, place = settings_.size()](int) { touch(place); };
    settings_.push_back({options.name(),
                         [&options] {
                             for (int button = 0; button < count_of(options); ++button) {
                                 attempt([&] {
                                     if (to_boolean(read(key_of(options, button), u"False"))) options.choose(button);
                                 });
                             }
                         },
                         [&options] {
                             for (int button = 0; button < count_of(options); ++button) {
                                 write(key_of(options, button), options.chosen() == button ? u"True" : u"False");
                             }
                         }});
}

void frmOptions::add_background(Swatch& swatch, std::u16string_view key) {
    swatch.on_click = [this, &swatch, place = settings_.size()] {
        if (const auto color = pick_color()) {
            swatch.set_back_color(*color);
            touch(place);
        }
    };
    settings_.push_back({key, [&swatch, key] { swatch.set_back_color(to_long(read(key, u"0"))); },
                         [&swatch, key] { write(key, number_text(swatch.back_color())); }});
}

void frmOptions::add_text_color(Swatch& swatch, std::u16string_view key) {
    swatch.on_click = [this, &swatch, place = settings_.size()] {
        if (const auto color = pick_color()) {
            swatch.set_fore_color(*color);
            touch(place);
        }
    };
    settings_.push_back({key, [&swatch, key] { swatch.set_fore_color(to_long(read(key, u"0"))); },
                         [&swatch, key] { write(key, number_text(swatch.fore_color())); }});
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
        if (setting.key == chkT1AddFullFilePath.name()) attempt([] { QUpdateWindowCaption(); });
    }
    cmdButton(0).set_enabled(false);
    cmdButton(2).set_enabled(false);
}

void frmOptions::on_unload() {
    AppTitle.clear();
    HelpFile.clear();
}

}  // namespace qor
