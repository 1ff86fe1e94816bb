#include "ground/option_table.hpp"

#include "ground/CReg.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

using namespace option;

constexpr auto rows = std::to_array<const OptionRow*>({&chkT1AutoAdjWin,
                                                       &rdoT1AutoAdjWin[0],
                                                       &rdoT1AutoAdjWin[1],
                                                       &rdoT1AutoAdjWin[2],
                                                       &rdoT1AutoAdjWin[3],
                                                       &chkT1AutoAdjWinWorkbookOnly,
                                                       &chkT1AddFullFilePath,
                                                       &chkT1DeleteRecentFiles,
                                                       &chkT2AlwaysCreateBackupUponSave,
                                                       &txtT2AlwaysCreateBackupUponSave,
                                                       &chkT2WarnBackupExists,
                                                       &chkT2DefaultSave,
                                                       &txtT2DefaultSaveFolder,
                                                       &chkT2AlternateTemplate,
                                                       &txtT2AlternateTemplateFile,
                                                       &chkT3AutoDeleteEmptyWorksheets,
                                                       &chkT3SaveWorkbooksEvery,
                                                       &txtT3SaveWorkbooksEvery,
                                                       &chkT3AutoSaveB4Close,
                                                       &chkT3ShowHiddenWorkbooks,
                                                       &chkT4ResetLastCellUponSave,
                                                       &chkT4SetScrollArea,
                                                       &chkT4ShowHiddenWorksheets,
                                                       &chkT4UseCellEvents,
                                                       &txtT4CellEventMinutes,
                                                       &chkT4ViewCellCommentsUponEntry,
                                                       &chkT5ReportNewWorkbook,
                                                       &rdoT5ReportLocation[0],
                                                       &rdoT5ReportLocation[1],
                                                       &chkT6InsSinCol,
                                                       &T6BInsSinCol,
                                                       &T6FInsSinCol,
                                                       &chkT6InsSinColACW,
                                                       &txtT6InsSinCol,
                                                       &txtT6InsCol,
                                                       &chkT6InsSinRow,
                                                       &T6BInsSinRow,
                                                       &T6FInsSinRow,
                                                       &chkT6InsSinRowARH,
                                                       &txtT6InsSinRow,
                                                       &txtT6InsRow});

std::u16string stored_or_standard(const OptionRow& row) {
    return CReg(environment().settings).GetSetting(RootKey::current_user, section, row.key, row.standard);
}

}  // namespace

std::span<const OptionRow* const> options() {
    return rows;
}

bool is_on(const TruthOption& option) {
    return to_boolean(stored_or_standard(option));
}

bool is_on(const ButtonOption& button) {
    return to_boolean(stored_or_standard(button));
}

std::u16string text_of(const TextOption& option) {
    return stored_or_standard(option);
}

}  // namespace qor
