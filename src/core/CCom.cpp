#include "core/CCom.hpp"

#include <algorithm>

#include "automation/member_names.hpp"
#include "core/CReg.hpp"
#include "core/MMain.hpp"
#include "core/product.hpp"
#include "core/tool_launch.hpp"
#include "functions/registration.hpp"
#include "functions/registry.hpp"
#include "runtime/bind.hpp"
#include "services/CDrive.hpp"

namespace qor {
namespace {

using Row = Member<CCom>;

void add_state(std::vector<Row>& rows) {
    rows.insert(rows.end(), {
                                field_property<&CCom::QCurrentTab>(u"QCurrentTab", OnError::pass),
                                field_property<&CCom::QExcelVer>(u"QExcelVer", OnError::pass),
                                field_property<&CCom::QHelpFile>(u"QHelpFile", OnError::pass),
                                field_property<&CCom::QHelpFileId>(u"QHelpFileId", OnError::pass),
                                field_property<&CCom::QThisWrkBkPath>(u"QThisWrkBkPath", OnError::pass),
                                field_property<&CCom::QWorksheetName>(u"QWorksheetName", OnError::pass),
                                field_property<&CCom::QTargetAddress>(u"QTargetAddress", OnError::pass),
                                field_property<&CCom::QDoSelectionChange>(u"QDoSelectionChange", OnError::pass),
                            });
}

void add_plain_members(std::vector<Row>& rows) {
    rows.insert(rows.end(),
                {
                    property<&CCom::QTitle>(u"QTitle", {}, OnError::pass),
                    property<&CCom::QCompany>(u"QCompany", {}, OnError::pass),
                    property<&CCom::QMajor>(u"QMajor", {}, OnError::pass),
                    property<&CCom::QMinor>(u"QMinor", {}, OnError::pass),
                    method<&CCom::QGetSetting>(u"QGetSetting", {u"sSection", u"sKey", u"sDefault"}, OnError::pass),
                    method<&CCom::QSaveSetting>(u"QSaveSetting", {u"sSection", u"sKey", u"sSetting"}, OnError::pass),
                    method<&CCom::QOpenHelp>(u"QOpenHelp", {u"objoleEx"}, OnError::pass),
                    method<&CCom::QSetCurrDir>(u"QSetCurrDir", {u"sSetCurrDir"}, OnError::pass),
                    method<&CCom::QSetupFunc>(u"QSetupFunc", {u"objoleEx"}, OnError::pass),
                });
}

void add_tools(std::vector<Row>& rows) {
    for (const Tool& tool : tools()) {
        rows.push_back({.name = tool.member,
                        .accesses = accesses::callable,
                        .parameters = {u"objoleEx"},
                        .invoke = [&tool](CCom& self, Access, std::span<Variant> arguments) -> Variant {
                            launch(tool, argument<Object>(arguments, 0), self.QHelpFile);
                            return {};
                        },
                        .on_error = OnError::raise});
    }
}

void add_functions(std::vector<Row>& rows, std::span<const Function> functions) {
    for (const Function& function : functions) {
        rows.push_back({.name = function.member,
                        .accesses = accesses::callable,
                        .parameters = function.parameter_names(),
                        .invoke = [&function](CCom&, Access, std::span<Variant> arguments) {
                            return function.invoke(arguments);
                        }});
    }
}

// The object's table of number words is loaded by the first call of NUMBERTOWORDS; HundredsTensUnits only reads it.
void share_number_words(std::vector<Row>& rows) {
    Row& whole = *std::ranges::find(rows, u"NUMBERTOWORDS", &Row::name);
    whole.invoke = [compute = std::move(whole.invoke)](CCom& self, Access access, std::span<Variant> arguments) {
        Variant words = compute(self, access, arguments);
        self.load_number_words();
        return words;
    };
    Row& group = *std::ranges::find(rows, u"HundredsTensUnits", &Row::name);
    group = method<&CCom::HundredsTensUnits>(group.name, group.parameters);
}

}  // namespace

const MemberTable<CCom>& CCom::members() {
    static const MemberTable<CCom> table([] {
        std::vector<Row> rows;
        add_state(rows);
        add_plain_members(rows);
        add_tools(rows);
        add_functions(rows, worksheet_functions());
        add_functions(rows, reserved_functions());
        share_number_words(rows);
        return rows;
    }());
    return table;
}

CCom::CCom() {
    attempt([&] { QDoSelectionChange = to_boolean(QGetSetting(u"Options", u"chkT4ViewCellCommentsUponEntry", u"0")); });
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

void CCom::QOpenHelp(const Object& objoleEx) {
    gExcel = objoleEx;
    attempt([&] { gExcel.call(names::Help, QHelpFile); });
    gExcel = Object();
}

void CCom::QSetCurrDir(const std::u16string& sSetCurrDir) {
    CDrive::SetCurrDir(sSetCurrDir);
}

void CCom::QSetupFunc(const Object& objoleEx) {
    gExcel = objoleEx;
    attempt([&] { setup_functions(gExcel, QHelpFile); });
    gExcel = Object();
}

std::u16string CCom::HundredsTensUnits(std::int16_t TestValue, std::optional<bool>& UseAnd) const {
    return hundreds_tens_units(words_, TestValue, UseAnd.value_or(false));
}

}  // namespace qor
