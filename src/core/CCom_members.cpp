#include <algorithm>
#include <tuple>

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

template <class... A, std::size_t... place>
std::tuple<A...> converted([[maybe_unused]] std::span<Variant> arguments, std::index_sequence<place...>) {
    return {argument<A>(arguments, place)...};
}

// A member that needs neither the object nor the host.
template <class... A>
Row free_method(std::u16string_view name, void (*run)(A...), std::vector<std::u16string_view> parameters,
                OnError on_error = OnError::raise) {
    return {.name = name,
            .accesses = accesses::callable,
            .parameters = std::move(parameters),
            .invoke = [run](CCom&, Access, std::span<Variant> arguments) -> Variant {
                std::apply(run, converted<std::remove_cvref_t<A>...>(arguments, std::index_sequence_for<A...>{}));
                return {};
            },
            .on_error = on_error};
}

// A command: gExcel is the host's Application while it runs, and here alone it is set and cleared. One that fails or
// ends early leaves it set, and the next command overwrites it. The parameters come behind the application; they are
// converted before the command begins.
template <class... A, class Run>
Row command_row(std::u16string_view name, const Run& run, std::vector<std::u16string_view> parameters,
                OnError on_error) {
    parameters.insert(parameters.begin(), CCom::application_parameter);
    return {.name = name,
            .accesses = accesses::callable,
            .parameters = std::move(parameters),
            .invoke = [run](CCom& self, Access, std::span<Variant> arguments) -> Variant {
                Object application = argument<Object>(arguments, 0);
                const auto values = converted<A...>(arguments.subspan(1), std::index_sequence_for<A...>{});
                const auto run_it = [&](const A&... value) { return run(self, value...); };
                gExcel = std::move(application);
                if constexpr (std::is_same_v<std::invoke_result_t<Run, CCom&, const A&...>, Ending>) {
                    if (std::apply(run_it, values) == Ending::early) return {};
                } else {
                    std::apply(run_it, values);
                }
                gExcel = Object();
                return {};
            },
            .on_error = on_error};
}

template <class Result, class... A>
Row command(std::u16string_view name, Result (*run)(A...), std::vector<std::u16string_view> parameters = {},
            OnError on_error = OnError::raise) {
    return command_row<std::remove_cvref_t<A>...>(
        name, [run](CCom&, const auto&... value) { return run(value...); }, std::move(parameters), on_error);
}
template <class... A>
Row command(std::u16string_view name, void (CCom::*run)(A...), std::vector<std::u16string_view> parameters = {},
            OnError on_error = OnError::raise) {
    return command_row<std::remove_cvref_t<A>...>(
        name, [run](CCom& self, const auto&... value) { (self.*run)(value...); }, std::move(parameters), on_error);
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
                    command(u"QOpenHelp", &CCom::QOpenHelp, {}, OnError::pass),
                    method<&CCom::QSetCurrDir>(u"QSetCurrDir", {u"sSetCurrDir"}, OnError::pass),
                    command(u"QSetupFunc", &CCom::QSetupFunc, {}, OnError::pass),
                });
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
                    command(u"UTOpt", &CCom::UTOpt),
                    command(u"UTAltTem", &CCom::UTAltTem),
                    command(u"UTBoo", &CCom::UTBoo, {u"lRun"}),
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
    rows.insert(rows.end(),
                {
                    command(u"QAutoUpdateWindowPositions", QAutoUpdateWindowPositions),
                    command(u"QOptionDeleteEmptyWorksheets", QOptionDeleteEmptyWorksheets, {u"sWorkbookName"}),
                    command(u"QUpdateWindowCaption", QUpdateWindowCaption),
                    command(u"QScrollableArea", QScrollableArea, {u"sWorkbookName", u"sAction"}),
                    command(u"QResLasCelEacWor", QResLasCelEacWor, {}, OnError::pass),
                    command(u"QAlwCreBacBefSav", QAlwCreBacBefSav, {u"sWorkbookName"}),
                    free_method(u"QSetSaveFolder", QSetSaveFolder, {}, OnError::pass),
                    command(u"QSheetSelectionChange", &CCom::QSheetSelectionChange,
                            {u"sTargetWorksheet", u"sTargetCell"}, OnError::pass),
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
        const auto run = [&tool](CCom& self) { launch(tool, self.QHelpFile); };
        rows.push_back(command_row(tool.member, run, {}, OnError::raise));
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
