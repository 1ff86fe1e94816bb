#include <com/sun/star/drawing/XShape.hpp>

#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/uno/service.hpp"
#include "screens/script/action.hpp"
#include "tests/calc/support/sheet_names.hpp"
#include "tests/calc/support/tool_run.hpp"
#include "tools/sheets/frmSrtWk.hpp"

namespace qor::calc::tests {
namespace {

using nlohmann::json;

struct Batches : ToolRun {
    Object plan = book("plan.ods", {u"Loan", u"inputs", u"Ratios"});

    Object book(const char* file, const std::vector<std::u16string>& sheets) {
        const Object made = add_book();
        give_sheets(made, sheets);
        return reopened(made, file);
    }
    // Runs the tool with these nodes checked and these actions before OK.
    json run(std::u16string_view tool, const std::vector<std::string>& nodes, json actions = json::array()) {
        json all = json::array();
        for (const std::string& node : nodes) all.push_back({{"check", "ctlTreeView"}, {"node", node}});
        for (const json& action : actions) all.push_back(action);
        all.push_back({{"press", "cmdButton(0)"}});
        return call(tool, {{"forms", json::array({all})}});
    }
    static json set(const char* control, json to) { return {{"set", control}, {"to", std::move(to)}}; }
    static Object sheet(const Object& book, std::u16string_view name) { return book.get(names::Worksheets, name); }
};

}  // namespace

TEST_CASE_FIXTURE(Batches, "worksheets are added before all others or behind them") {
    const json shown = run(u"UTAddWor", {"plan.ods"}, {set("ctlSpinner1", "2")});
    CHECK(sheet_names(plan) == "Sheet5/Sheet4/Loan/inputs/Ratios/");
    CHECK(shown["progress"] == json{1, 1});
    const json& form = shown["forms"][0];
    CHECK(form["caption"] == "QOR Plus: Add Worksheets");
    CHECK(form["helpId"] == 170000);
    CHECK(form["controls"]["ctlSpinner1"]["value"] == "0");
    CHECK(form["controls"]["optOrder"]["value"] == 0);
    CHECK(form["controls"]["cmdButton(0)"]["enabled"] == false);
    run(u"UTAddWor", {"plan.ods"}, {set("ctlSpinner1", "1"), set("optOrder", 1)});
    CHECK(sheet_names(plan) == "Sheet5/Sheet4/Loan/inputs/Ratios/Sheet6/");
}

TEST_CASE_FIXTURE(Batches, "no number, or none above 0, adds nothing") {
    CHECK(run(u"UTAddWor", {"plan.ods"})["progress"].is_null());
    run(u"UTAddWor", {"plan.ods"}, {set("ctlSpinner1", "")});
    CHECK(sheet_names(plan) == "Loan/inputs/Ratios/");
}

TEST_CASE_FIXTURE(Batches, "empty worksheets are deleted, those that hold only blanks too") {
    give_sheets(plan, {u"Number", u"A space", u"Empty text", u"Nothing", u"Text"});
    CHECK(sheet_names(plan) == "Number/A space/Empty text/Nothing/Text/inputs/Ratios/");
    sheet(plan, u"Number").get(names::Range, u"B2").put(names::Value, 0.0);
    sheet(plan, u"A space").get(names::Range, u"A1").put(names::Value, u" ");
    sheet(plan, u"A space").get(names::Range, u"C1:D1").put(names::Value, u"   ");
    sheet(plan, u"Empty text").get(names::Range, u"A1").put(names::Formula, u"=\"\"");
    sheet(plan, u"Text").get(names::Range, u"A1:B2").put(names::Value, 1.0);
    const json shown = run(u"UTDelEmpWor", {"plan.ods"});
    CHECK(sheet_names(plan) == "Number/Empty text/Text/");
    CHECK(shown["progress"] == json{7, 7});
    CHECK(shown["forms"][0]["helpId"] == 170090);
    CHECK(application.get(names::DisplayAlerts) == true);
}

TEST_CASE_FIXTURE(Batches, "a worksheet on which something is drawn is kept, but blanks go from its cells") {
    give_sheets(plan, {u"Drawing", u"Comment", u"Nothing"});
    const auto host = std::make_shared<Host>(office_context());
    const Sheet drawing = book_named(host, u"plan.ods").sheet(u"Drawing");
    const auto shape = create_in<css::drawing::XShape>(drawing.book.document, "com.sun.star.drawing.RectangleShape");
    drawing.page()->add(shape.reference());
    sheet(plan, u"Drawing").get(names::Range, u"A1:B2").put(names::Value, u" ");
    sheet(plan, u"Comment").get(names::Range, u"C3").call(MemberName(u"AddComment"), u"a note");
    run(u"UTDelEmpWor", {"plan.ods"});
    CHECK(sheet_names(plan) == "Drawing/Comment/");
    CHECK(sheet(plan, u"Drawing").get(names::Range, u"B2").get(names::Value) == Variant(Empty{}));
}

TEST_CASE_FIXTURE(Batches, "the only worksheet is kept, even if it is empty, and what is not checked stays") {
    run(u"UTDelEmpWor", {"plan.ods*inputs"});
    CHECK(sheet_names(plan) == "Loan/Ratios/");
    run(u"UTDelEmpWor", {"ROOT"});
    CHECK(sheet_names(plan) == "Ratios/");
}

TEST_CASE_FIXTURE(Batches, "worksheets are sorted by the codes of their names' characters, hidden ones too") {
    give_sheets(plan, {u"Loan", u"Übung", u"10", u"9", u"Paul's"});
    sheet(plan, u"10").put(names::Visible, 0);
    const json shown = run(u"UTSorWor", {"plan.ods"});
    CHECK(sheet_names(plan) == "10/9/Loan/Paul's/Ratios/inputs/Übung/");
    CHECK(shown["progress"] == json{1, 1});
    CHECK(shown["forms"][0]["controls"]["optOrder"]["value"] == 0);
    CHECK(shown["forms"][0]["helpId"] == 170155);
    run(u"UTSorWor", {"plan.ods"}, {set("optOrder", 1)});
    CHECK(sheet_names(plan) == "Übung/inputs/Ratios/Paul's/Loan/9/10/");
    CHECK(sheet(plan, u"10").get(names::Visible) == 0);
}

TEST_CASE_FIXTURE(Batches, "names with quotes, brackets and emoji are sorted and deleted") {
    give_sheets(plan, {u"q' \"Q\"", u"😀", u"+", u"(a)"});
    run(u"UTSorWor", {"plan.ods"});
    CHECK(sheet_names(plan) == "(a)/+/Ratios/inputs/q' \"Q\"/😀/");
    run(u"UTDelEmpWor", {"plan.ods*q' \"Q\"", "plan.ods*😀", "plan.ods*(a)"});
    CHECK(sheet_names(plan) == "+/Ratios/inputs/");
}

TEST_CASE_FIXTURE(Batches, "300 worksheets are shown, sorted and deleted") {
    const Object many = add_book();
    many.get(names::Worksheets).call(names::Add, named(names::Count, 299));
    const std::string caption = utf8(many.get(names::Name));
    const json shown = run(u"UTSorWor", {caption}, {set("optOrder", 1)});
    CHECK(shown["forms"][0]["controls"]["ctlTreeView"]["value"].size() == 1 + 4 + 301);
    const std::string sorted = sheet_names(many);
    CHECK(
        sorted.starts_with("Sheet99/Sheet98/Sheet97/Sheet96/Sheet95/Sheet94/Sheet93/Sheet92/Sheet91/Sheet90/Sheet9/"));
    CHECK(sorted.ends_with("/Sheet100/Sheet10/Sheet1/"));
    CHECK(many.get(names::Worksheets).get(names::Count) == 300);
    CHECK(run(u"UTDelEmpWor", {caption})["progress"] == json{300, 300});
    CHECK(sheet_names(many) == "Sheet1/");
}

TEST_CASE_FIXTURE(Batches, "a workbook of one worksheet stays as it is; the checked ones beside it are sorted") {
    const Object single = book("single.ods", {u"Only"});
    const Object other = book("other.ods", {u"b", u"a"});
    CHECK(run(u"UTSorWor", {"single.ods", "other.ods"})["progress"] == json{2, 2});
    CHECK(sheet_names(single) == "Only/");
    CHECK(sheet_names(other) == "a/b/");
    CHECK(sheet_names(plan) == "Loan/inputs/Ratios/");
}

TEST_CASE_FIXTURE(Batches, "the active workbook closed between dialog and OK is passed over") {
    const Object other = book("other.ods", {u"b", u"a"});
    const fakes::InPlace in_place(environment(), application);
    frmSrtWk form;
    form.load();
    perform(form, {{"check", "ctlTreeView"}, {"node", "ROOT"}});
    plan.call(names::Close, false);
    perform(form, {{"press", "cmdButton(0)"}});
    CHECK(sheet_names(other) == "a/b/");
    CHECK_FALSE(form.loaded());
}

TEST_CASE_FIXTURE(Batches, "a workbook that refuses is passed over, the one behind it is not") {
    const Object other = book("other.ods", {u"b", u"a"});
    protect_structure(plan);
    run(u"UTSorWor", {"ROOT"});
    CHECK(sheet_names(plan) == "Loan/inputs/Ratios/");
    CHECK(sheet_names(other) == "a/b/");
    CHECK(run(u"UTAddWor", {"ROOT"}, {set("ctlSpinner1", "1")})["progress"] == json{2, 2});
    CHECK(sheet_names(plan) == "Loan/inputs/Ratios/");
    CHECK(sheet_names(other) == "Sheet3/a/b/");
    run(u"UTDelEmpWor", {"ROOT"});
    CHECK(sheet_names(plan) == "Loan/inputs/Ratios/");
    CHECK(sheet_names(other) == "b/");
}

TEST_CASE_FIXTURE(Batches, "spelling is checked on the checked sheets") {
    sheet(plan, u"Loan").get(names::Range, u"A1").put(names::Value, u"wrod");
    const json shown = run(u"UTSpeCheAll", {"ROOT"}, {{{"check", "chkIgnoreHF"}}});
    CHECK(shown["forms"][0]["caption"] == "QOR Plus: Spell Check");
    CHECK(shown["forms"][0]["helpId"] == 170160);
    CHECK(shown["forms"][0]["controls"]["chkIgnoreHF"]["value"] == false);
    CHECK(shown["progress"].is_null());
    CHECK(sheet(plan, u"Loan").get(names::Range, u"A1").get(names::Value) == u"wrod");
}

TEST_CASE_FIXTURE(Batches, "Cancel changes nothing") {
    for (const char16_t* tool : {u"UTAddWor", u"UTDelEmpWor", u"UTSorWor", u"UTSpeCheAll", u"UTNav"}) {
        const json actions = {{{"check", "ctlTreeView"}, {"node", "ROOT"}}, {{"press", "cmdButton(1)"}}};
        call(tool, {{"forms", json::array({actions})}});
    }
    CHECK(sheet_names(plan) == "Loan/inputs/Ratios/");
    CHECK(plan.get(names::Saved) == true);
}

}  // namespace qor::calc::tests
