#include "core/companion.hpp"

#include "automation/error.hpp"
#include "automation/member_names.hpp"
#include "core/macros.hpp"
#include "core/tool_table.hpp"
#include "ground/option_table.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

namespace member {

const MemberName QAlwCreBacBefSav{u"QAlwCreBacBefSav"};
const MemberName QAutoUpdateWindowPositions{u"QAutoUpdateWindowPositions"};
const MemberName QExcelVer{u"QExcelVer"};
const MemberName QGetSetting{u"QGetSetting"};
const MemberName QHelpFile{u"QHelpFile"};
const MemberName QMenuCreate{u"QMenuCreate"};
const MemberName QMenuDelete{u"QMenuDelete"};
const MemberName QOptionDeleteEmptyWorksheets{u"QOptionDeleteEmptyWorksheets"};
const MemberName QResLasCelEacWor{u"QResLasCelEacWor"};
const MemberName QScrollableArea{u"QScrollableArea"};
const MemberName QSetSaveFolder{u"QSetSaveFolder"};
const MemberName QSetupFunc{u"QSetupFunc"};
const MemberName QSheetSelectionChange{u"QSheetSelectionChange"};
const MemberName QTargetAddress{u"QTargetAddress"};
const MemberName QThisWrkBkPath{u"QThisWrkBkPath"};
const MemberName QUpdateWindowCaption{u"QUpdateWindowCaption"};
const MemberName QWorksheetName{u"QWorksheetName"};
const MemberName UTCelEveRev{u"UTCelEveRev"};
const MemberName UTCleRecFil{u"UTCleRecFil"};
const MemberName UTOpt{u"UTOpt"};
const MemberName UTSavWorEve{u"UTSavWorEve"};

}  // namespace member

// What the undo list calls the step.
std::u16string step_title(const Macro& macro) {
    const Tool* tool = find_tool(MemberName(macro.member));
    return std::u16string(tool ? tool->title : macro.member);
}

Variant stored(const Object& com, const OptionRow& row) {
    return com.call(member::QGetSetting, option::section, row.key, row.standard);
}

Companion::Interval interval(const Object& com, const TruthOption& wanted, const NumberOption& every) {
    Companion::Interval result;
    attempt([&] {
        if (!to_boolean(stored(com, wanted))) return;
        const std::int32_t minutes = to_long(stored(com, every));
        if (minutes > 0) result = std::chrono::minutes(minutes);
    });
    return result;
}

}  // namespace

Companion::Companion(Object com, Host host) : com_(std::move(com)), host_(std::move(host)) {}

template <class... Arguments>
void Companion::react(const MemberName& member, Arguments&&... arguments) {
    attempt([&] { com_.call(member, std::forward<Arguments>(arguments)...); });
}

void Companion::start(const Places& places) {
    com_.put(member::QThisWrkBkPath, places.data_folder);
    com_.put(member::QHelpFile, places.help_file);
    attempt([&] { com_.put(member::QExcelVer, to_text(host_.application.get(names::Version))); });
    react(member::QSetupFunc, host_.application);
    react(member::QMenuCreate, host_.application);
    react(member::QUpdateWindowCaption, host_.application);
    react(member::QSetSaveFolder);
    started_ = true;
}

void Companion::stop() {
    if (!std::exchange(started_, false)) return;
    react(member::QMenuDelete, host_.application, false);
    react(member::UTCleRecFil, host_.application, false);
}

void Companion::save_menu_places() {
    if (started_) react(member::QMenuDelete, host_.application, true);
}

void Companion::run_macro(std::u16string_view name) {
    const Macro macro = find_macro(name);
    const MemberName member(macro.member);
    std::vector<Variant> arguments;
    if (macro.takes_application) arguments.emplace_back(host_.application);
    arguments.insert(arguments.end(), macro.arguments.begin(), macro.arguments.end());
    host_.undo_step(step_title(macro), [&] {
        try {
            com_.invoke(member, Access::call, {arguments, {}});
        } catch (const Error& error) {
            host_.report(error);
        }
    });
    if (member == member::UTOpt) react(member::QSetSaveFolder);
}

void Companion::workbook_opened(const std::u16string& name) {
    react(member::QScrollableArea, host_.application, name, u"OPEN");
    react(member::QOptionDeleteEmptyWorksheets, host_.application, name);
    react(member::QAutoUpdateWindowPositions, host_.application);
    react(member::QUpdateWindowCaption, host_.application);
}

void Companion::workbook_created() {
    react(member::QUpdateWindowCaption, host_.application);
}

// The backup is of the workbook as it stands before anything is done for the save.
void Companion::workbook_to_be_saved(const std::u16string& name) {
    react(member::QAlwCreBacBefSav, host_.application, name);
    react(member::QScrollableArea, host_.application, name, u"SAVE");
    react(member::QResLasCelEacWor, host_.application);
}

void Companion::workbook_saved_as() {
    react(member::QUpdateWindowCaption, host_.application);
}

// The member hides the comment of the cell before, which it is told of here.
void Companion::selection_changed(const std::u16string& worksheet, const std::u16string& address) {
    react(member::QSheetSelectionChange, host_.application, worksheet, address);
    com_.put(member::QWorksheetName, worksheet);
    com_.put(member::QTargetAddress, address);
}

Companion::Interval Companion::save_interval() const {
    return interval(com_, option::chkT3SaveWorkbooksEvery, option::txtT3SaveWorkbooksEvery);
}
Companion::Interval Companion::review_interval() const {
    return interval(com_, option::chkT4UseCellEvents, option::txtT4CellEventMinutes);
}

void Companion::save_by_time() {
    react(member::UTSavWorEve, host_.application);
}
void Companion::review_by_time() {
    react(member::UTCelEveRev, host_.application);
}

}  // namespace qor
