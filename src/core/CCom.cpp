#include "core/CCom.hpp"

#include "automation/member_names.hpp"
#include "core/bookmark_jump.hpp"
#include "core/bookmark_list.hpp"
#include "core/frmAbout.hpp"
#include "core/frmOptions.hpp"
#include "core/tool_launch.hpp"
#include "functions/registration.hpp"
#include "ground/CReg.hpp"
#include "ground/MMain.hpp"
#include "ground/option_table.hpp"
#include "ground/product.hpp"
#include "runtime/trim.hpp"
#include "services/CDrive.hpp"

namespace qor {
namespace {

constexpr std::int32_t options_help_id = 170125;
constexpr std::int32_t alternate_template_help_id = 170010;

}  // namespace

CCom::CCom() {
    attempt([&] { QDoSelectionChange = is_on(option::chkT4ViewCellCommentsUponEntry); });
}

Variant CCom::invoke(const MemberName& name, Access access, Arguments arguments) {
    return members().invoke(*this, name, access, arguments);
}

std::u16string CCom::QTitle() const {
    return std::u16string(product::title);
}
std::u16string CCom::QCompany() const {
    return std::u16string(product::company);
}
std::int32_t CCom::QMajor() const {
    return product::major_version;
}
std::int32_t CCom::QMinor() const {
    return product::minor_version;
}

std::u16string CCom::QGetSetting(const std::u16string& sSection, const std::u16string& sKey,
                                 const std::u16string& sDefault) const {
    return CReg(environment().settings).GetSetting(RootKey::current_user, sSection, sKey, sDefault);
}

bool CCom::QSaveSetting(const std::u16string& sSection, const std::u16string& sKey,
                        const std::u16string& sSetting) const {
    return CReg(environment().settings).SaveSetting(RootKey::current_user, sSection, sKey, sSetting);
}

void CCom::QOpenHelp() {
    attempt([&] { gExcel.call(names::Help, QHelpFile); });
}

void CCom::QSetCurrDir(const std::u16string& sSetCurrDir) {
    CDrive::SetCurrDir(sSetCurrDir);
}

void CCom::QSetupFunc() {
    attempt([&] { setup_functions(gExcel, QHelpFile); });
}

void CCom::QAbout() {
    frmAbout form;
    form.AppTitle = QTitle() + u" (Excel Add-in)";
    form.show_modal();
}

void CCom::show_options(std::int32_t tab) {
    frmOptions form;
    form.GetCurrentTab = tab;
    show_form(form, u"Options", options_help_id, QHelpFile);
    QDoSelectionChange = is_on(option::chkT4ViewCellCommentsUponEntry);
}

void CCom::UTOpt() {
    show_options(QCurrentTab);
}

void CCom::UTAltTem() {
    constexpr std::int32_t workbook_tab = 1;
    if (!is_on(option::chkT2AlternateTemplate)) {
        const auto open_help = [this] {
            attempt([this] { gExcel.call(names::Help, QHelpFile, alternate_template_help_id); });
        };
        environment().screen.message_box({.title = QTitle(),
                                          .text = u"The alternate template is not enabled.  You may enable this "
                                                  u"function in the options dialog box.",
                                          .icon = MessageIcon::information,
                                          .help_id = alternate_template_help_id,
                                          .open_help = open_help});
        show_options(workbook_tab);
    } else if (const std::u16string file = text_of(option::txtT2AlternateTemplateFile); !file.empty()) {
        gExcel.get(names::Workbooks).call(names::Add, file);
    }
}

void CCom::UTBoo(std::optional<std::int32_t> lRun) {
    jump_to_bookmark(QThisWrkBkPath + std::u16string(bookmark_file), lRun.value_or(0) != 0);
}

void CCom::QSheetSelectionChange(const std::u16string& sTargetWorksheet, const std::u16string& sTargetCell) {
    const auto show_comment = [](const std::u16string& sheet, const std::u16string& cell, bool visible) {
        attempt([&] {
            gExcel.get(names::Worksheets, sheet)
                .get(names::Range, cell)
                .get(names::Comment)
                .put(names::Visible, visible);
        });
    };
    if (QDoSelectionChange) {
        show_comment(sTargetWorksheet, sTargetCell, true);
        if (!trim(QWorksheetName).empty() && !trim(QTargetAddress).empty())
            show_comment(QWorksheetName, QTargetAddress, false);
    }
}

std::u16string CCom::HundredsTensUnits(std::int16_t TestValue, std::optional<bool>& UseAnd) const {
    return hundreds_tens_units(words_, TestValue, UseAnd.value_or(false));
}

}  // namespace qor
