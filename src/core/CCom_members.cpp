#include <algorithm>

#include "core/CCom.hpp"
#include "core/MMenu.hpp"
#include "core/reactions.hpp"
#include "core/tool_launch.hpp"
#include "core/web_and_mail.hpp"
#include "functions/registry.hpp"
#include "ground/MMain.hpp"
#include "runtime/bind.hpp"
#include "workbooks/all_workbooks.hpp"
#include "workbooks/last_cell.hpp"
#include "workbooks/recent_files.hpp"
#include "workbooks/scroll_areas.hpp"
#include "workbooks/window_captions.hpp"

namespace qor {
namespace {

using Row = Member<CCom>;

constexpr std::u16string_view application = u"objoleEx";

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
                    method<&CCom::QOpenHelp>(u"QOpenHelp", {application}, OnError::pass),
                    method<&CCom::QSetCurrDir>(u"QSetCurrDir", {u"sSetCurrDir"}, OnError::pass),
                    method<&CCom::QSetupFunc>(u"QSetupFunc", {application}, OnError::pass),
                });
}

template <class... A, std::size_t... place>
void call_with(void (*run)(A...), [[maybe_unused]] std::span<Variant> arguments, std::index_sequence<place...>) {
    run(argument<std::remove_cvref_t<A>>(arguments, place)...);
}

// A member that needs neither the object nor the host.
template <class... A>
Row free_method(std::u16string_view name, void (*run)(A...), std::vector<std::u16string_view> parameters,
                OnError on_error = OnError::raise) {
    return {.name = name,
            .accesses = accesses::callable,
            .parameters = std::move(parameters),
            .invoke = [run](CCom&, Access, std::span<Variant> arguments) -> Variant {
                call_with(run, arguments, std::index_sequence_for<A...>());
                return {};
            },
            .on_error = on_error};
}

// A command that shows no form: gExcel is the host's Application while it runs. Its parameters come behind that one.
template <class... A>
Row command(std::u16string_view name, void (*run)(A...), std::vector<std::u16string_view> parameters = {},
            OnError on_error = OnError::raise) {
    parameters.insert(parameters.begin(), application);
    return {.name = name,
            .accesses = accesses::callable,
            .parameters = std::move(parameters),
            .invoke = [run](CCom&, Access, std::span<Variant> arguments) -> Variant {
                gExcel = argument<Object>(arguments, 0);
                call_with(run, arguments.subspan(1), std::index_sequence_for<A...>());
                gExcel = Object();
                return {};
            },
            .on_error = on_error};
}

template <void (*run)()>
void on_active_workbook() {
    if (require_active_workbook()) run();
}

void add_commands(std::vector<Row>& rows) {
    rows.insert(rows.end(),
                {
                    command(u"UTCloAll", on_active_workbook<CloseAllWorkbooks>),
                    command(u"UTSavAll", on_active_workbook<SaveAllWorkbooks>),
                    command(u"UTSavWorEve", on_active_workbook<SaveAllWorkbooks>),
                    command(u"UTPriAll", on_active_workbook<PrintAllWorksheets>),
                    command(u"UTSetScrAre", on_active_workbook<SetScrollAreas>),
                    command(u"UTCleScrAre", on_active_workbook<ClearScrollAreas>),
                    command(u"UTCleRecFil", ClearRecentFiles, {u"bTB"}),
                    method<&CCom::UTOpt>(u"UTOpt", {application}, OnError::raise),
                    method<&CCom::UTAltTem>(u"UTAltTem", {application}, OnError::raise),
                    method<&CCom::UTBoo>(u"UTBoo", {application, u"lRun"}, OnError::raise),
                    method<&CCom::QAbout>(u"QAbout", {}, OnError::raise),
                    free_method(u"UTOpenWWW", OpenWWWURL, {u"sURL"}),
                    free_method(u"UTSendMail", SendMail, {u"sRecipient", u"sCC", u"sBCC", u"sSubject", u"sBody"}),
                });
}

// A tool comes onto the menu with its member.
void QMenuCreate() {
    create_menu([](std::u16string_view macro) { return CCom::members().find(MemberName(macro)) != nullptr; });
}

void QMenuDelete(const std::optional<bool>& bOnlySaveMenu) {
    delete_menu(bOnlySaveMenu.value_or(false));
}

void add_menu(std::vector<Row>& rows) {
    rows.push_back(command(u"QMenuCreate", QMenuCreate, {}, OnError::pass));
    rows.push_back(command(u"QMenuDelete", QMenuDelete, {u"bOnlySaveMenu"}, OnError::pass));
}

void add_reactions(std::vector<Row>& rows) {
    rows.insert(
        rows.end(),
        {
            command(u"QAutoUpdateWindowPositions", QAutoUpdateWindowPositions),
            command(u"QOptionDeleteEmptyWorksheets", QOptionDeleteEmptyWorksheets, {u"sWorkbookName"}),
            command(u"QUpdateWindowCaption", QUpdateWindowCaption),
            command(u"QScrollableArea", QScrollableArea, {u"sWorkbookName", u"sAction"}),
            command(u"QResLasCelEacWor", QResLasCelEacWor, {}, OnError::pass),
            method<&CCom::QAlwCreBacBefSav>(u"QAlwCreBacBefSav", {application, u"sWorkbookName"}, OnError::raise),
            free_method(u"QSetSaveFolder", QSetSaveFolder, {}, OnError::pass),
            method<&CCom::QSheetSelectionChange>(u"QSheetSelectionChange",
                                                 {application, u"sTargetWorksheet", u"sTargetCell"}, OnError::pass),
        });
}

void do_nothing() {}

// Settings of a window that these names are kept for. They ask for a workbook and do nothing with it.
void add_window_toggles(std::vector<Row>& rows) {
    for (const std::u16string_view name :
         {u"TBWinSel", u"TBWinSetPagBre", u"TBWinSetRowColHea", u"TBWinSetHorScrBar", u"TBWinSetFor", u"TBWinSetOutSym",
          u"TBWinSetVerScrBar", u"TBWinSetGri", u"TBWinSetZerVal", u"TBWinSetSheTab", u"TBWinSetIntZoo"}) {
        rows.push_back(command(name, on_active_workbook<do_nothing>));
    }
}

void add_tools(std::vector<Row>& rows) {
    for (const Tool& tool : tools()) {
        rows.push_back({.name = tool.member,
                        .accesses = accesses::callable,
                        .parameters = {application},
                        .invoke = [&tool](CCom& self, Access, std::span<Variant> arguments) -> Variant {
                            launch(tool, argument<Object>(arguments, 0), self.QHelpFile);
                            return {};
                        },
                        .on_error = OnError::raise});
    }
}

std::uint32_t by_reference(const Function& function) {
    std::uint32_t bits = 0;
    for (std::size_t place = 0; place < function.parameters.size(); ++place)
        if (function.parameters[place].is_by_reference) bits |= 1U << place;
    return bits;
}

void add_functions(std::vector<Row>& rows, std::span<const Function> functions) {
    for (const Function& function : functions) {
        rows.push_back(
            {.name = function.member,
             .accesses = accesses::callable,
             .parameters = function.parameter_names(),
             .invoke = [&function](CCom&, Access, std::span<Variant> arguments) { return function.invoke(arguments); },
             .by_reference = by_reference(function)});
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
        add_commands(rows);
        add_menu(rows);
        add_reactions(rows);
        add_window_toggles(rows);
        add_tools(rows);
        add_functions(rows, worksheet_functions());
        add_functions(rows, reserved_functions());
        share_number_words(rows);
        return rows;
    }());
    return table;
}

}  // namespace qor
