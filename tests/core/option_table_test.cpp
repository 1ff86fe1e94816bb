#include "ground/option_table.hpp"

#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "core/frmOptions.hpp"
#include "ground/MMain.hpp"
#include "platform/text.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/memory_settings.hpp"

using namespace qor;

namespace {

struct Known {
    OptionKind kind;
    std::u16string_view key;
    std::u16string_view reader;
    std::u16string_view dialog;
};

using enum OptionKind;

const std::vector<Known> known{
    {truth_value, u"chkT1AutoAdjWin", u"0", u"0"},
    {button, u"rdoT1AutoAdjWin0", u"0", u"False"},
    {button, u"rdoT1AutoAdjWin1", u"0", u"False"},
    {button, u"rdoT1AutoAdjWin2", u"0", u"False"},
    {button, u"rdoT1AutoAdjWin3", u"0", u"False"},
    {truth_value, u"chkT1AutoAdjWinWorkbookOnly", u"0", u"0"},
    {truth_value, u"chkT1AddFullFilePath", u"0", u"0"},
    {truth_value, u"chkT1DeleteRecentFiles", u"0", u"0"},
    {truth_value, u"chkT2AlwaysCreateBackupUponSave", u"0", u"0"},
    {text, u"txtT2AlwaysCreateBackupUponSave", u"", u""},
    {truth_value, u"chkT2WarnBackupExists", u"0", u"-1"},
    {truth_value, u"chkT2DefaultSave", u"0", u"0"},
    {text, u"txtT2DefaultSaveFolder", u"", u""},
    {truth_value, u"chkT2AlternateTemplate", u"0", u"0"},
    {text, u"txtT2AlternateTemplateFile", u"", u""},
    {truth_value, u"chkT3AutoDeleteEmptyWorksheets", u"0", u"0"},
    {truth_value, u"chkT3SaveWorkbooksEvery", u"0", u"0"},
    {number, u"txtT3SaveWorkbooksEvery", u"10", u"10"},
    {truth_value, u"chkT3AutoSaveB4Close", u"0", u"0"},
    {truth_value, u"chkT3ShowHiddenWorkbooks", u"0", u"0"},
    {truth_value, u"chkT4ResetLastCellUponSave", u"-1", u"-1"},
    {truth_value, u"chkT4SetScrollArea", u"0", u"0"},
    {truth_value, u"chkT4ShowHiddenWorksheets", u"0", u"0"},
    {truth_value, u"chkT4UseCellEvents", u"0", u"0"},
    {number, u"txtT4CellEventMinutes", u"1", u"1"},
    {truth_value, u"chkT4ViewCellCommentsUponEntry", u"0", u"0"},
    {truth_value, u"chkT5ReportNewWorkbook", u"-1", u"0"},
    {button, u"rdoT5ReportLocation0", u"-1", u"False"},
    {button, u"rdoT5ReportLocation1", u"False", u"False"},
    {truth_value, u"chkT6InsSinCol", u"0", u"0"},
    {color, u"T6BInsSinCol", u"0", u"0"},
    {color, u"T6FInsSinCol", u"0", u"0"},
    {truth_value, u"chkT6InsSinColACW", u"0", u"0"},
    {number, u"txtT6InsSinCol", u"", u""},
    {number, u"txtT6InsCol", u"1", u"1"},
    {truth_value, u"chkT6InsSinRow", u"0", u"0"},
    {color, u"T6BInsSinRow", u"0", u"0"},
    {color, u"T6FInsSinRow", u"0", u"0"},
    {truth_value, u"chkT6InsSinRowARH", u"0", u"0"},
    {number, u"txtT6InsSinRow", u"", u""},
    {number, u"txtT6InsRow", u"1", u"1"},
};

// The control of the dialog that shows the option.
template <class Kind>
Kind& control_of(const frmOptions& form, const OptionRow& row) {
    std::u16string name(row.key);
    if (row.kind == button) name.pop_back();
    if (row.kind == color) name = u"cmdT6" + name.substr(3) + (row.key.starts_with(u"T6B") ? u"(0)" : u"(1)");
    const auto found = std::ranges::find(form.controls(), name, &Control::name);
    REQUIRE(found != form.controls().end());
    auto* control = dynamic_cast<Kind*>(*found);
    REQUIRE(control);
    return *control;
}

int place_of(const OptionRow& row) {
    return row.key.back() - u'0';
}

std::int32_t color_of(const frmOptions& form, const OptionRow& row) {
    const Swatch& swatch = control_of<Swatch>(form, row);
    return row.key.starts_with(u"T6B") ? swatch.back_color() : swatch.fore_color();
}

// What the dialog shows of the option, as it would store it.
std::u16string shown(const frmOptions& form, const OptionRow& row) {
    switch (row.kind) {
        case truth_value:
            return control_of<CheckBox>(form, row).checked() ? u"-1" : u"0";
        case button:
            return control_of<Options>(form, row).chosen() == place_of(row) ? u"True" : u"False";
        case color:
            return from_utf8(std::to_string(color_of(form, row)));
        default:
            return control_of<TextEntry>(form, row).text();
    }
}

// Sets it as a user does, to what nobody takes by default, and tells how that is stored.
std::u16string change(const frmOptions& form, const OptionRow& row) {
    switch (row.kind) {
        case truth_value: {
            auto& box = control_of<CheckBox>(form, row);
            box.set_checked(!box.checked());
            return row.shown == u"0" ? u"-1" : u"0";
        }
        case button:
            control_of<Options>(form, row).choose(place_of(row));
            return u"True";
        case color:
            control_of<Swatch>(form, row).press();
            return u"65280";
        case number:
            control_of<TextEntry>(form, row).set_text(u"7");
            return u"7";
        case text:
            control_of<TextEntry>(form, row).set_text(u"/books of mine");
            return u"/books of mine";
    }
    return {};
}

bool reads_as_on(const OptionRow& row) {
    return row.kind == button ? is_on(static_cast<const ButtonOption&>(row))
                              : is_on(static_cast<const TruthOption&>(row));
}

struct Profile {
    fakes::FakeScreen screen;
    fakes::MemorySettings settings;

    Profile() {
        set_environment({screen, settings});
        screen.color = 65280;
    }
    void store_paths() {
        for (const OptionRow* row : options()) {
            if (row->kind == text) stored(*row) = u"/books";
        }
    }
    std::u16string& stored(const OptionRow& row) { return settings.values[{u"Options", std::u16string(row.key)}]; }
};

}  // namespace

TEST_CASE("every option has the key and the two defaults that are known") {
    CHECK(option::section == u"Options");
    REQUIRE(options().size() == known.size());
    for (std::size_t place = 0; place < known.size(); ++place) {
        const OptionRow& row = *options()[place];
        CAPTURE(to_utf8(row.key));
        CHECK(row.key == known[place].key);
        CHECK(row.kind == known[place].kind);
        CHECK(row.standard == known[place].reader);
        CHECK(row.shown == known[place].dialog);
    }
}

TEST_CASE_FIXTURE(Profile, "whoever reads an option takes its default until one is stored") {
    for (const OptionRow* row : options()) {
        if (row->kind != truth_value && row->kind != button) continue;
        CAPTURE(to_utf8(row->key));
        CHECK(reads_as_on(*row) == (row->standard == u"-1"));
        for (const auto* on : {u"-1", u"True", u"7"}) {
            stored(*row) = on;
            CHECK(reads_as_on(*row));
        }
        for (const auto* off : {u"0", u"False"}) {
            stored(*row) = off;
            CHECK_FALSE(reads_as_on(*row));
        }
        stored(*row) = u"perhaps";
        CHECK(attempt([&] { reads_as_on(*row); }) == 13);
    }
    for (const OptionRow* row : options()) {
        if (row->kind != text) continue;
        CAPTURE(to_utf8(row->key));
        CHECK(text_of(static_cast<const TextOption&>(*row)).empty());
        stored(*row) = u" /books of mine ";
        CHECK(text_of(static_cast<const TextOption&>(*row)) == u" /books of mine ");
    }
}

TEST_CASE_FIXTURE(Profile, "the dialog shows every option, stores it where it is changed, and shows it again") {
    for (const OptionRow* row : options()) {
        CAPTURE(to_utf8(row->key));
        settings.values.clear();
        // A switch whose path is empty would be switched off again.
        if (row->kind == truth_value) store_paths();
        const auto before = settings.values;
        frmOptions form;
        form.load();
        CHECK(shown(form, *row) == row->shown);
        const std::u16string changed = change(form, *row);
        CHECK(changed != row->shown);
        CHECK(settings.values == before);
        form.cmdButton(0).press();
        CHECK(stored(*row) == changed);
        frmOptions again;
        again.load();
        CHECK(shown(again, *row) == changed);
    }
}

TEST_CASE_FIXTURE(Profile, "the dialog stores the options of the table and no others") {
    frmOptions form;
    form.load();
    std::set<fakes::MemorySettings::Key> keys;
    for (const OptionRow* row : options()) {
        change(form, *row);
        keys.emplace(u"Options", row->key);
    }
    form.cmdButton(0).press();
    CHECK(settings.values.size() == keys.size());
    for (const auto& value : settings.values) CHECK(keys.contains(value.first));
}
