#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace qor {

// How an option is stored: a truth value as "-1" or "0", one of several option buttons as "True" or "False" under the
// name of its group with its number behind, a number in decimal, a colour in decimal as 0xBBGGRR, a text as it is.
enum class OptionKind : std::uint8_t { truth_value, button, number, color, text };

// One of the user's options: everything there is to know about it stands in its row.
struct OptionRow {
    OptionKind kind;
    std::u16string_view key;
    std::u16string_view standard;  // what its readers take as long as nothing is stored
    std::u16string_view shown;     // what the Options dialog shows then; a row that gives two means them to differ
};

template <OptionKind its_kind>
struct Option : OptionRow {
    constexpr Option(std::u16string_view its_key, std::u16string_view its_standard)
        : Option(its_key, its_standard, its_standard) {}
    constexpr Option(std::u16string_view its_key, std::u16string_view its_standard, std::u16string_view its_shown)
        : OptionRow{its_kind, its_key, its_standard, its_shown} {}
};
using TruthOption = Option<OptionKind::truth_value>;
using ButtonOption = Option<OptionKind::button>;
using NumberOption = Option<OptionKind::number>;
using ColorOption = Option<OptionKind::color>;
using TextOption = Option<OptionKind::text>;

namespace option {

inline constexpr std::u16string_view section = u"Options";  // of the settings

inline constexpr TruthOption chkT1AutoAdjWin{u"chkT1AutoAdjWin", u"0"};
inline constexpr std::array rdoT1AutoAdjWin{
    ButtonOption{u"rdoT1AutoAdjWin0", u"0", u"False"},
    ButtonOption{u"rdoT1AutoAdjWin1", u"0", u"False"},
    ButtonOption{u"rdoT1AutoAdjWin2", u"0", u"False"},
    ButtonOption{u"rdoT1AutoAdjWin3", u"0", u"False"},
};
inline constexpr TruthOption chkT1AutoAdjWinWorkbookOnly{u"chkT1AutoAdjWinWorkbookOnly", u"0"};
inline constexpr TruthOption chkT1AddFullFilePath{u"chkT1AddFullFilePath", u"0"};
inline constexpr TruthOption chkT1DeleteRecentFiles{u"chkT1DeleteRecentFiles", u"0"};

inline constexpr TruthOption chkT2AlwaysCreateBackupUponSave{u"chkT2AlwaysCreateBackupUponSave", u"0"};
inline constexpr TextOption txtT2AlwaysCreateBackupUponSave{u"txtT2AlwaysCreateBackupUponSave", u""};
inline constexpr TruthOption chkT2WarnBackupExists{u"chkT2WarnBackupExists", u"0", u"-1"};
inline constexpr TruthOption chkT2DefaultSave{u"chkT2DefaultSave", u"0"};
inline constexpr TextOption txtT2DefaultSaveFolder{u"txtT2DefaultSaveFolder", u""};
inline constexpr TruthOption chkT2AlternateTemplate{u"chkT2AlternateTemplate", u"0"};
inline constexpr TextOption txtT2AlternateTemplateFile{u"txtT2AlternateTemplateFile", u""};

inline constexpr TruthOption chkT3AutoDeleteEmptyWorksheets{u"chkT3AutoDeleteEmptyWorksheets", u"0"};
inline constexpr TruthOption chkT3SaveWorkbooksEvery{u"chkT3SaveWorkbooksEvery", u"0"};
inline constexpr NumberOption txtT3SaveWorkbooksEvery{u"txtT3SaveWorkbooksEvery", u"10"};  // minutes
inline constexpr TruthOption chkT3AutoSaveB4Close{u"chkT3AutoSaveB4Close", u"0"};
inline constexpr TruthOption chkT3ShowHiddenWorkbooks{u"chkT3ShowHiddenWorkbooks", u"0"};

inline constexpr TruthOption chkT4ResetLastCellUponSave{u"chkT4ResetLastCellUponSave", u"-1"};
inline constexpr TruthOption chkT4SetScrollArea{u"chkT4SetScrollArea", u"0"};
inline constexpr TruthOption chkT4ShowHiddenWorksheets{u"chkT4ShowHiddenWorksheets", u"0"};
inline constexpr TruthOption chkT4UseCellEvents{u"chkT4UseCellEvents", u"0"};
inline constexpr NumberOption txtT4CellEventMinutes{u"txtT4CellEventMinutes", u"1"};
inline constexpr TruthOption chkT4ViewCellCommentsUponEntry{u"chkT4ViewCellCommentsUponEntry", u"0"};

inline constexpr TruthOption chkT5ReportNewWorkbook{u"chkT5ReportNewWorkbook", u"-1", u"0"};
inline constexpr std::array rdoT5ReportLocation{
    ButtonOption{u"rdoT5ReportLocation0", u"-1", u"False"},
    ButtonOption{u"rdoT5ReportLocation1", u"False"},  // nobody reads it: it is what the other one is not
};

inline constexpr TruthOption chkT6InsSinCol{u"chkT6InsSinCol", u"0"};
inline constexpr ColorOption T6BInsSinCol{u"T6BInsSinCol", u"0"};  // the background
inline constexpr ColorOption T6FInsSinCol{u"T6FInsSinCol", u"0"};  // the text
inline constexpr TruthOption chkT6InsSinColACW{u"chkT6InsSinColACW", u"0"};
inline constexpr NumberOption txtT6InsSinCol{u"txtT6InsSinCol", u""};
inline constexpr NumberOption txtT6InsCol{u"txtT6InsCol", u"1"};
inline constexpr TruthOption chkT6InsSinRow{u"chkT6InsSinRow", u"0"};
inline constexpr ColorOption T6BInsSinRow{u"T6BInsSinRow", u"0"};
inline constexpr ColorOption T6FInsSinRow{u"T6FInsSinRow", u"0"};
inline constexpr TruthOption chkT6InsSinRowARH{u"chkT6InsSinRowARH", u"0"};
inline constexpr NumberOption txtT6InsSinRow{u"txtT6InsSinRow", u""};
inline constexpr NumberOption txtT6InsRow{u"txtT6InsRow", u"1"};

}  // namespace option

// All rows.
std::span<const OptionRow* const> options();

// The option as it stands now. Nothing keeps a copy, so that what is stored holds from the next reading on. Raises 13
// where the text stored is no truth value.
bool is_on(const TruthOption& option);
bool is_on(const ButtonOption& button);
std::u16string text_of(const TextOption& option);

}  // namespace qor
