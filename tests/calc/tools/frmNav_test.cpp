#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>

#include "screens/script/action.hpp"
#include "tests/calc/support/sheet_names.hpp"
#include "tests/calc/support/tool_run.hpp"
#include "tests/calc/support/whole_document.hpp"
#include "tools/sheets/frmNav.hpp"

namespace qor::calc::tests {
namespace {

using nlohmann::json;

// plan.ods with the sheets Inputs, Loan and Ratios, and other.ods with Notes and Draft.
struct Tree : ToolRun {
    Object plan = book("plan.ods", {u"Inputs", u"Loan", u"Ratios"});
    Object other = book("other.ods", {u"Notes", u"Draft"});

    Object book(const char* file, const std::vector<std::u16string>& sheets) {
        const Object made = add_book();
        give_sheets(made, sheets);
        made.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 12.0);
        return reopened(made, file);
    }
    json act(json actions, json answers = json::array()) {
        return call(u"UTNav", {{"forms", json::array({std::move(actions)})}, {"answers", std::move(answers)}});
    }
    static json drag(const char* node, const char* onto, bool copy = false) {
        return {{"move", "ctlTreeView"}, {"node", node}, {"onto", onto}, {"copy", copy}};
    }
    static json choose(const char* node, const char* command) {
        return {{"menu", "ctlTreeView"}, {"node", node}, {"choose", command}};
    }
    static void open_second_window(const Object& book) {
        const Ref frame{Ref{Ref<css::frame::XModel>(document_of(book))->getCurrentController()} -> getFrame()};
        Ref(css::frame::DispatchHelper::create(office_context()))
            ->executeDispatch(Ref<css::frame::XDispatchProvider>(frame).reference(), ".uno:NewWindow", {}, 0, {});
    }
    std::string active() const {
        return utf8(application.get(names::ActiveWorkbook).get(names::Name)) + ' ' +
               utf8(active_sheet().get(names::Name));
    }
    std::int32_t books() const { return *application.get(names::Workbooks).get(names::Count).get_if<std::int32_t>(); }
};

}  // namespace

TEST_CASE_FIXTURE(Tree, "sheets are moved inside their workbook, behind a sheet or in front of all") {
    act({drag("plan.ods*Inputs", "plan.ods*Loan")});
    CHECK(sheet_names(plan) == "Loan/Inputs/Ratios/");
    act({drag("plan.ods*Ratios", "plan.ods"), drag("plan.ods*Ratios", "plan.ods*Inputs")});
    CHECK(sheet_names(plan) == "Loan/Inputs/Ratios/");
    CHECK(plan.get(names::Worksheets, u"Inputs").get(names::Range, u"A1").get(names::Value) == 12.0);
}

TEST_CASE_FIXTURE(Tree, "sheets go into another workbook, and with Ctrl stay where they are, too") {
    act({drag("plan.ods*Loan", "other.ods*Notes"), drag("plan.ods*Inputs", "other.ods", true)});
    CHECK(sheet_names(plan) == "Inputs/Ratios/");
    CHECK(sheet_names(other) == "Inputs/Notes/Loan/Draft/");
    act({drag("other.ods*Inputs", "other.ods*Inputs"), drag("other.ods*Inputs", "other.ods", true)});
    CHECK(sheet_names(other) == "Inputs (2)/Inputs/Notes/Loan/Draft/");
    CHECK(other.get(names::Worksheets, 1).get(names::Range, u"A1").get(names::Value) == 12.0);
}

TEST_CASE_FIXTURE(Tree, "a protected structure refuses every change, and the tree shows what there is") {
    protect_structure(plan);
    const json shown = act({drag("plan.ods*Inputs", "plan.ods*Loan"),
                            drag("plan.ods*Inputs", "other.ods"),
                            drag("other.ods*Draft", "plan.ods"),
                            drag("plan.ods*Ratios", "other.ods", true),
                            choose("plan.ods*Inputs", "Rename Worksheet"),
                            {{"set", "ctlTreeView"}, {"to", "Sources"}},
                            {{"check", "ctlTreeView"}, {"node", "plan.ods*Inputs"}}});
    CHECK(sheet_names(plan) == "Inputs/Loan/Ratios/");
    CHECK(sheet_names(other) == "Ratios/Notes/Draft/");  // a copy takes nothing away
    CHECK(shown["messages"].empty());
}

TEST_CASE_FIXTURE(Tree, "a sheet is renamed, whatever its name; a name that the host refuses stays") {
    const auto rename = [&](const char* node, const char* name) {
        act({choose(node, "Rename Worksheet"), {{"set", "ctlTreeView"}, {"to", name}}});
    };
    rename("plan.ods*Loan", "Paul's \"Größe\" 😀");
    rename("plan.ods*Ratios", "Inputs");
    rename("plan.ods*Ratios", "a*b");
    CHECK(sheet_names(plan) == "Inputs/Paul's \"Größe\" 😀/Ratios/");
    act({drag("plan.ods*Paul's \"Größe\" 😀", "other.ods*Draft")});
    CHECK(sheet_names(other) == "Notes/Draft/Paul's \"Größe\" 😀/");
}

TEST_CASE_FIXTURE(Tree, "a sheet is deleted after a question, the last one of a workbook is not") {
    const json remove = {{"delete", "ctlTreeView"}, {"node", "other.ods*Draft"}};
    json messages = act({remove}, {"Cancel"})["messages"];
    CHECK(messages[0]["text"] ==
          "Choose OK to confirm the deletion of worksheet named Draft.  Otherwise choose Cancel.");
    CHECK(messages[0]["buttons"] == json{"OK", "Cancel"});
    CHECK(sheet_names(other) == "Notes/Draft/");
    messages = act({remove, choose("other.ods*Notes", "Delete Worksheet")}, {"OK"})["messages"];
    REQUIRE(messages.size() == 2);
    CHECK(messages[1]["text"] == "Cannot delete since a workbook must have at least one worksheet.");
    CHECK(messages[1]["icon"] == "critical");
    CHECK(messages[1]["title"] == "QOR Plus");
    CHECK(sheet_names(other) == "Notes/");
    CHECK(application.get(names::DisplayAlerts) == true);
}

TEST_CASE_FIXTURE(
    Tree, "two windows of a workbook show the same sheets; a deletion takes them from both, and each gets new ones") {
    open_second_window(plan);
    CHECK(plan.get(names::Windows).get(names::Count) == 2);
    act({{{"delete", "ctlTreeView"}, {"node", "plan.ods:2*Loan"}},
         drag("plan.ods:1*Ratios", "plan.ods:2*Ratios"),
         drag("plan.ods:1*Ratios", "plan.ods:2")},
        {"OK"});
    CHECK(sheet_names(plan) == "Ratios/Inputs/");
    act({{{"double", "ctlTreeView"}, {"node", "plan.ods:1*Inputs"}}});
    CHECK(active() == "plan.ods Inputs");
    CHECK(application.get(names::ActiveWindow).get(names::Caption) == u"plan.ods:1");
    const json shown = call(u"UTAddWor", {{"forms",
                                           {{{{"check", "ctlTreeView"}, {"node", "plan.ods:1"}},
                                             {{"check", "ctlTreeView"}, {"node", "plan.ods:2"}},
                                             {{"set", "ctlSpinner1"}, {"to", "1"}},
                                             {{"press", "cmdButton(0)"}}}}}});
    CHECK(shown["progress"] == json{2, 2});
    CHECK(plan.get(names::Worksheets).get(names::Count) == 4);
    CHECK(sheet_names(plan).ends_with("/Ratios/Inputs/"));
}

TEST_CASE_FIXTURE(Tree, "a double click goes to a sheet, and shows it and its window where they are hidden") {
    act({{{"double", "ctlTreeView"}, {"node", "plan.ods*Ratios"}}});
    CHECK(active() == "plan.ods Ratios");
    set_option(u"chkT3ShowHiddenWorkbooks", u"-1");
    set_option(u"chkT4ShowHiddenWorksheets", u"-1");
    other.get(names::Worksheets, u"Draft").put(names::Visible, 2);
    other.get(names::Windows, 1).put(names::Visible, false);
    const json shown = act({{{"double", "ctlTreeView"}, {"node", "other.ods*Draft"}}});
    CHECK(active() == "other.ods Draft");
    CHECK(other.get(names::Windows, 1).get(names::Visible) == true);
    CHECK(other.get(names::Worksheets, u"Draft").get(names::Visible) == -1);
    CHECK(shown["forms"][0]["caption"] == "QOR Plus: Navigator");
    CHECK(shown["forms"][0]["helpId"] == 170120);
}

TEST_CASE_FIXTURE(Tree, "a hidden sheet is moved and copied and stays hidden") {
    set_option(u"chkT4ShowHiddenWorksheets", u"-1");
    plan.get(names::Worksheets, u"Loan").put(names::Visible, 0);
    act({drag("plan.ods*Loan", "plan.ods"), drag("plan.ods*Loan", "other.ods*Draft", true)});
    CHECK(sheet_names(plan) == "Loan/Inputs/Ratios/");
    CHECK(sheet_names(other) == "Notes/Draft/Loan/");
    CHECK(plan.get(names::Worksheets, u"Loan").get(names::Visible) == 0);
    CHECK(other.get(names::Worksheets, u"Loan").get(names::Visible) == 0);
}

TEST_CASE_FIXTURE(Tree, "checked workbooks are saved and closed, as the option says without a question") {
    plan.get(names::Worksheets, 1).get(names::Range, u"B1").put(names::Value, 1.0);
    other.get(names::Worksheets, 1).get(names::Range, u"B1").put(names::Value, 1.0);
    act({{{"check", "ctlTreeView"}, {"node", "plan.ods"}}, choose("ROOT", "Save Checked")});
    CHECK(plan.get(names::Saved) == true);
    CHECK(other.get(names::Saved) == false);
    set_option(u"chkT3AutoSaveB4Close", u"-1");
    act({{{"check", "ctlTreeView"}, {"node", "other.ods"}}, choose("ROOT", "Close Checked")});
    CHECK(books() == 1);
    CHECK(open(folder() / "other.ods").get(names::Worksheets, 1).get(names::Range, u"B1").get(names::Value) == 1.0);
    act({choose("ROOT", "Close All")});
    CHECK(books() == 0);
}

TEST_CASE_FIXTURE(Tree, "all that a run of the Navigator does is one step of undo, in each workbook") {
    const auto act_once = [&] {
        act({drag("other.ods*Draft", "other.ods"),
             drag("other.ods*Notes", "other.ods", true),
             choose("other.ods*Draft", "Rename Worksheet"),
             {{"set", "ctlTreeView"}, {"to", "Final"}},
             {{"delete", "ctlTreeView"}, {"node", "other.ods*Notes"}}},
            {"OK"});
    };
    clear_undo();
    const std::string before = whole_document();
    act_once();
    CHECK(sheet_names(other) == "Notes (2)/Final/");
    CHECK(undo_titles() == std::vector<std::string>{"Navigator"});
    const std::string after = whole_document();
    undo();
    CHECK(sheet_names(other) == "Notes/Draft/");
    CHECK((whole_document() == before));
    redo();
    CHECK((whole_document() == after));
}

TEST_CASE_FIXTURE(Tree, "Calc cannot undo a sheet that came from another workbook, nor what was before it") {
    other.get(names::Worksheets, 1).get(names::Range, u"B1").put(names::Value, 1.0);
    CHECK_FALSE(undo_titles().empty());
    act({drag("plan.ods*Loan", "other.ods")});
    CHECK(sheet_names(other) == "Loan/Notes/Draft/");
    CHECK(undo_titles().empty());
    // In the workbook that it left it can be brought back.
    Ref {
        Ref<css::document::XUndoManagerSupplier>(document_of(plan))->getUndoManager()
        } -> undo();
    CHECK(sheet_names(plan) == "Inputs/Loan/Ratios/");
    CHECK(sheet_names(other) == "Loan/Notes/Draft/");
}

TEST_CASE_FIXTURE(Tree, "a workbook closed and sheets deleted or renamed under the tree are passed over") {
    const fakes::InPlace in_place(environment(), application);
    frmNav form;
    form.load();
    plan.get(names::Worksheets, u"Loan").call(names::Delete);
    plan.get(names::Worksheets, u"Ratios").put(names::Name, u"Results");
    other.call(names::Close, false);
    perform(form, drag("plan.ods*Loan", "other.ods", true));
    perform(form, drag("plan.ods*Results", "plan.ods", true));
    CHECK(sheet_names(plan) == "Results (2)/Inputs/Results/");
    plan.get(names::Worksheets, u"Inputs").call(names::Delete);
    perform(form, {{"double", "ctlTreeView"}, {"node", "plan.ods*Inputs"}});
    CHECK_FALSE(form.loaded());
    CHECK(books() == 1);
}

}  // namespace qor::calc::tests
