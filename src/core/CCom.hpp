#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "automation/member_table.hpp"
#include "functions/number_words.hpp"

namespace qor {

// The add-in's one public automation object. A host's companion creates it, keeps it while the host runs and forwards
// every macro and every worksheet function to the member of the same name.
class CCom final : public Dispatch {
  public:
    CCom();

    // A member whose first parameter has this name is a command and gets the host's Application there.
    static constexpr std::u16string_view application_parameter = u"objoleEx";

    // Every member with its parameters and the way it fails.
    static const MemberTable<CCom>& members();

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override;
    std::u16string_view type_name() const noexcept override { return u"CCom"; }

    // Plain state, set by the companion.
    std::int32_t QCurrentTab = 0;
    std::u16string QExcelVer;
    std::u16string QHelpFile;
    std::int32_t QHelpFileId = 0;
    std::u16string QThisWrkBkPath;  // without a trailing separator
    std::u16string QWorksheetName;
    std::u16string QTargetAddress;
    bool QDoSelectionChange = false;

    std::u16string QTitle() const;
    std::u16string QCompany() const;
    std::int32_t QMajor() const;
    std::int32_t QMinor() const;

    std::u16string QGetSetting(const std::u16string& sSection, const std::u16string& sKey,
                               const std::u16string& sDefault) const;
    bool QSaveSetting(const std::u16string& sSection, const std::u16string& sKey, const std::u16string& sSetting) const;
    void QSetCurrDir(const std::u16string& sSetCurrDir);
    void QAbout();

    // Commands: gExcel is set by their rows.
    void QOpenHelp();
    void QSetupFunc();
    void UTOpt();
    void UTAltTem();
    // With lRun other than 0 a bookmark whose workbook is gone is not spoken of.
    void UTBoo(std::optional<std::int32_t> lRun);
    // Shows the comment of the cell that is now selected, and hides that of the one before, which the companion tells.
    void QSheetSelectionChange(const std::u16string& sTargetWorksheet, const std::u16string& sTargetCell);

    // The words of a number below 1000. Raises 9 for a number above 0 until NUMBERTOWORDS has been called once.
    std::u16string HundredsTensUnits(std::int16_t TestValue, std::optional<bool>& UseAnd) const;
    void load_number_words() noexcept { words_ = number_words(); }

  private:
    void show_options(std::int32_t tab);

    NumberWords words_;
};

}  // namespace qor
