#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <fstream>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "tests/calc/support/tool_run.hpp"
#include "tests/runtime/country.hpp"

namespace qor::calc::tests {
namespace {

using nlohmann::json;

const json check_all = {{"forms", {{{{"check", "ctlTreeView"}, {"node", "ROOT"}}, {{"press", "cmdButton(0)"}}}}}};

json script(std::initializer_list<json> actions) {
    return {{"forms", json::array({json(actions)})}};
}
json check_node(const std::string& key) {
    return {{"check", "ctlTreeView"}, {"node", key}};
}
json check_field(const std::string& heading) {
    return {{"check", "treCellInfo"}, {"row", heading}};
}
const json ok = {{"press", "cmdButton(0)"}};

constexpr std::size_t field_count = 12;

// A record with the counts that a test is about: the sheet is visible and unprotected.
std::vector<Variant> record(const char16_t* book, const char16_t* sheet, double used, double inputs, double formulas,
                            double ratio, double comments = 0, double hyperlinks = 0) {
    return {book, sheet, false, false, false, false, used, inputs, formulas, ratio, comments, hyperlinks};
}

void check_row(const ToolRun& run, std::int32_t row, const std::vector<Variant>& expected) {
    const std::vector<Variant> actual = run.row(row, expected.size());
    for (std::size_t place = 0; place < expected.size(); ++place) {
        CAPTURE(row);
        CAPTURE(place);
        INFO(actual[place]);
        CHECK(actual[place] == expected[place]);
    }
}

std::u16string name_of(const Object& book) {
    return *book.get(names::Name).get_if<std::u16string>();
}

void put(const Object& sheet, const char16_t* address, const Variant& value) {
    sheet.get(names::Range, address).put(names::Value, value);
}

}  // namespace

TEST_CASE("the Worksheet Summary goes into a new workbook with title block, headings and records") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "source.xlsx");
    put(book.get(names::Worksheets, 1), u"B2", 5.0);
    book.put(names::Saved, true);

    const json shown = [&] {
        const test::TimeStopped time(Date{46347.75});
        return run.call(u"UTWorSum", check_all);
    }();

    CHECK(run.application.get(names::Workbooks).get(names::Count) == 2);
    CHECK_FALSE(run.application.get(names::ActiveWorkbook).object().is(book));
    CHECK(book.get(names::Saved) == true);
    CHECK(book.get(names::Worksheets).get(names::Count) == 1);

    CHECK(run.cell(1, 1) == u"Report - Worksheet Summary");
    CHECK(run.cell(2, 1) == u"Prepared Date: November 21, 2026");
    const Variant prepared_by = u"Prepared By: " + *run.application.get(names::UserName).get_if<std::u16string>();
    CHECK(run.cell(3, 1) == prepared_by);
    CHECK(run.cell(4, 1) == Empty{});
    const auto font = [&](std::int32_t row) { return run.active_sheet().get(names::Cells, row, 1).get(names::Font); };
    for (const auto& [row, size, italic] : {std::tuple{1, 16.0, true}, {2, 11.0, true}, {3, 10.0, false}}) {
        CHECK(font(row).get(names::Bold) == true);
        CHECK(font(row).get(names::Size) == size);
        CHECK(font(row).get(names::Italic) == italic);
    }
    check_row(
        run, 5,
        {u"Workbook Name", u"Worksheet Name", u"Protected Contents", u"Protected Drawing Objects",
         u"Protected Scenarios", u"Hidden", u"Number of Used Cells", u"Number of Data Inputs", u"Number of Formulas",
         u"Ratio of Data Input to Formulas", u"Number of Comments", u"Number of Hyperlinks"});
    for (const std::int32_t column : {1, 7, 12}) {
        const Object heading = run.active_sheet().get(names::Cells, 5, column);
        CHECK(heading.get(names::Font).get(names::Bold) == true);
        CHECK(heading.get(names::Font).get(names::Size) == 10.0);
        const Object border = heading.get(names::Borders, 9);
        CHECK(border.get(names::LineStyle) == 1);
        CHECK(border.get(names::Weight) == 2);
        CHECK(border.get(names::ColorIndex) == -4105);
        CHECK(run.active_sheet().get(names::Cells, 6, column).get(names::HorizontalAlignment) == -4131);
    }
    check_row(run, 6, record(u"source.xlsx", u"Sheet1", 1, 1, 0, 0));
    CHECK(run.cell(7, 1) == Empty{});

    REQUIRE(shown["forms"].size() == 1);
    CHECK(shown["forms"][0]["name"] == "frmWKSum");
    CHECK(shown["forms"][0]["caption"] == "QOR Plus: Worksheet Summary");
    CHECK(shown["forms"][0]["controls"]["cmdButton(0)"]["enabled"] == false);
    CHECK(shown["progress"] == json::parse("[1, 1]"));
    CHECK(shown["messages"].empty());
}

TEST_CASE("what counts as used, as input and as formula") {
    struct Entry {
        const char16_t* address;
        Variant content;
        const MemberName& property = names::Value;
    };
    struct Contents {
        const char* are;
        std::vector<Entry> entries;
        double used;
        double inputs;
        double formulas;
        double ratio;
    };
    for (const Contents& contents : std::vector<Contents>{
             {"nothing at all", {}, 0, 0, 0, 0},
             {"constants of every kind, zero and error values included",
              {{u"A1", 0.0}, {u"A2", u"text"}, {u"A3", true}, {u"A4", Date{45000.0}}, {u"C9", u"'123"}},
              5,
              5,
              0,
              0},
             {"a formula that gives an empty text, which is a formula and no used cell",
              {{u"A1", u"=IF(1=1,\"\",2)", names::Formula}, {u"A2", u"=1+1", names::Formula}, {u"A3", 4.0}},
              2,
              1,
              2,
              0.5},
             {"an array formula, which counts in every cell of its range",
              {{u"A1:A3", 2.0}, {u"C1:C3", u"=A1:A3*2", names::FormulaArray}},
              6,
              3,
              3,
              1},
             {"a text that starts with an equals sign, which counts as a formula",
              {{u"A1", u"'=not computed"}, {u"A2", u"plain"}},
              2,
              1,
              1,
              1},
             {"formulas that fail, which are used cells",
              {{u"A1", u"=1/0", names::Formula}, {u"A2", u"=NA()", names::Formula}, {u"B1", 1.0}},
              3,
              1,
              2,
              0.5},
             {"ten inputs and three formulas, a ratio of 3.333333",
              {{u"A1:A10", 1.0}, {u"B1:B3", u"=A1", names::Formula}},
              13,
              10,
              3,
              3.333333},
             {"fifty inputs and eight formulas, a ratio of 6.25",
              {{u"A1:E10", 1.0}, {u"G1:G8", u"=A1", names::Formula}},
              58,
              50,
              8,
              6.25},
         }) {
        CAPTURE(contents.are);
        ToolRun run;
        const Object book = run.reopened(run.add_book(), "kinds.ods");
        const Object sheet = book.get(names::Worksheets, 1);
        for (const Entry& entry : contents.entries)
            sheet.get(names::Range, entry.address).put(entry.property, entry.content);
        run.call(u"UTWorSum", check_all);
        check_row(run, 6,
                  record(u"kinds.ods", u"Sheet1", contents.used, contents.inputs, contents.formulas, contents.ratio));
    }
}

TEST_CASE("where the report goes is the user's option") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "place.ods");
    book.get(names::Worksheets).call(names::Add, named(names::After, book.get(names::Worksheets, 1)));
    run.set_option(u"chkT5ReportNewWorkbook", u"0");
    const auto report_index = [&](std::u16string_view first) {
        run.set_option(u"rdoT5ReportLocation0", first);
        run.call(u"UTWorSum", check_all);
        CHECK(run.cell(1, 1) == u"Report - Worksheet Summary");
        return run.active_sheet().get(names::Index);
    };
    CHECK(report_index(u"True") == 1);
    CHECK(report_index(u"False") == 4);
    CHECK(report_index(u"-1") == 1);
    CHECK(book.get(names::Worksheets).get(names::Count) == 5);
    CHECK(run.application.get(names::Workbooks).get(names::Count) == 1);
    // The sheet made by this run is not in the tree that was filled before it.
    check_row(run, 6, record(u"place.ods", u"Sheet3", 39, 39, 0, 0));
    CHECK(run.cell(10, 1) == Empty{});
}

TEST_CASE("the report in the active workbook is one step of undo") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "undo.ods");
    run.set_option(u"chkT5ReportNewWorkbook", u"0");
    run.call(u"UTWorSum", check_all);
    CHECK(book.get(names::Worksheets).get(names::Count) == 2);
    const std::vector<Document> documents = Host(office_context()).documents();
    REQUIRE(documents.size() == 1);
    const Ref undo{Ref<css::document::XUndoManagerSupplier>(documents[0])->getUndoManager()};
    CHECK(undo->getAllUndoActionTitles().getLength() == 1);
    CHECK(view_of(undo->getCurrentUndoActionTitle()) == u"Worksheet Summary");
    undo->undo();
    CHECK(book.get(names::Worksheets).get(names::Count) == 1);
    undo->redo();
    CHECK(book.get(names::Worksheets).get(names::Count) == 2);
    CHECK(book.get(names::Worksheets, 1).get(names::Range, u"A1").get(names::Value) == u"Report - Worksheet Summary");
}

TEST_CASE("hidden sheets and windows are listed by option, and hidden in both ways is hidden") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "hidden.ods");
    const Object sheets = book.get(names::Worksheets);
    for (int i = 0; i < 2; ++i) sheets.call(names::Add, named(names::After, sheets.get(names::Item, 1)));
    book.get(names::Worksheets, 2).put(names::Visible, 0);
    book.get(names::Worksheets, 3).put(names::Visible, 2);
    const json without = run.call(u"UTWorSum", check_all);
    CHECK(run.cell(6, 6) == false);
    CHECK(run.cell(7, 1) == Empty{});
    run.set_option(u"chkT4ShowHiddenWorksheets", u"-1");
    book.call(names::Activate);
    run.application.get(names::Workbooks, 2).call(names::Close, false);
    run.call(u"UTWorSum", check_all);
    CHECK(run.cell(6, 6) == false);
    CHECK(run.cell(7, 6) == true);
    CHECK(run.cell(8, 6) == true);
    CHECK(run.cell(9, 1) == Empty{});
}

TEST_CASE("each window of a workbook has its sheets, and they are summarised for each") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "twice.ods");
    book.call(names::Activate);
    const Ref desktop{css::frame::Desktop::create(office_context())};
    const css::uno::Reference<css::frame::XDispatchProvider> frame(desktop->getCurrentFrame(), css::uno::UNO_QUERY);
    const Ref dispatcher{css::frame::DispatchHelper::create(office_context())};
    dispatcher->executeDispatch(frame, ".uno:NewWindow", {}, 0, {});

    const json shown =
        run.call(u"UTWorSum", script({check_node("twice.ods:1*Sheet1"), check_node("twice.ods:2*Sheet1"), ok}));
    const json nodes = shown["forms"][0]["controls"]["ctlTreeView"]["value"];
    CHECK(nodes.size() == 5);
    check_row(run, 6, record(u"twice.ods", u"Sheet1", 0, 0, 0, 0));
    check_row(run, 7, record(u"twice.ods", u"Sheet1", 0, 0, 0, 0));
    CHECK(run.cell(8, 1) == Empty{});
}

TEST_CASE("unchecked fields are left out and moved fields change the order of the columns") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "fields.ods");
    put(book.get(names::Worksheets, 1), u"A1:B2", 1.0);
    run.call(u"UTWorSum", script({check_field("Protected Contents"),
                                  check_field("Protected Scenarios"),
                                  {{"move", "treCellInfo"}, {"row", "Number of Used Cells"}, {"onto", "Workbook Name"}},
                                  check_node("fields.ods*Sheet1"),
                                  ok}));
    check_row(run, 5,
              {u"Number of Used Cells", u"Workbook Name", u"Worksheet Name", u"Protected Drawing Objects", u"Hidden",
               u"Number of Data Inputs", u"Number of Formulas", u"Ratio of Data Input to Formulas",
               u"Number of Comments", u"Number of Hyperlinks", Empty{}});
    check_row(run, 6, {4.0, u"fields.ods", u"Sheet1", false, false, 4.0, 0.0, 0.0, 0.0, 0.0, Empty{}});
}

TEST_CASE("without a checked field only the title block shows") {
    ToolRun run;
    run.reopened(run.add_book(), "none.ods");
    json actions = json::array();
    for (const char* heading :
         {"Workbook Name", "Worksheet Name", "Protected Contents", "Protected Drawing Objects", "Protected Scenarios",
          "Hidden", "Number of Used Cells", "Number of Data Inputs", "Number of Formulas",
          "Ratio of Data Input to Formulas", "Number of Comments", "Number of Hyperlinks"}) {
        actions.push_back(check_field(heading));
    }
    actions.push_back(check_node("none.ods*Sheet1"));
    actions.push_back(ok);
    run.call(u"UTWorSum", {{"forms", json::array({actions})}});
    CHECK(run.cell(1, 1) == u"Report - Worksheet Summary");
    CHECK(run.active_sheet().get(names::UsedRange).get(names::Address) == u"$A$1:$A$3");
}

TEST_CASE("cancelling leaves the host as it was") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "cancel.ods");
    run.call(u"UTWorSum", script({check_node("cancel.ods*Sheet1"), {{"press", "cmdButton(1)"}}}));
    CHECK(run.application.get(names::Workbooks).get(names::Count) == 1);
    CHECK(book.get(names::Worksheets).get(names::Count) == 1);
    CHECK(book.get(names::Saved) == true);
}

TEST_CASE("a protected sheet is marked in the tree and read like any other") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "locked.ods");
    const Object sheet = book.get(names::Worksheets, 1);
    put(sheet, u"A1", 1.0);
    sheet.call(names::Protect, u"secret", true, true, false);
    run.call(u"UTWorSum", check_all);
    check_row(run, 6, {u"locked.ods", u"Sheet1", true, true, false, false, 1.0, 1.0, 0.0, 0.0, 0.0, 0.0});
}

TEST_CASE("the calls into Calc do not grow with the cells") {
    ToolRun run;
    const auto calls_for = [&](const char16_t* address) {
        const Object book = run.add_book();
        put(book.get(names::Worksheets, 1), address, 7.0);
        book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Formula, u"=1+1");
        const std::uint64_t before = host_calls;
        run.call(u"UTWorSum", script({check_node(to_utf8(name_of(book))), ok}));
        const std::uint64_t calls = host_calls - before;
        while (!run.application.get(names::Workbooks).object().items().empty()) {
            run.application.get(names::Workbooks, 1).call(names::Close, false);
        }
        return calls;
    };
    const std::uint64_t small = calls_for(u"A1:J10");
    CHECK(calls_for(u"A1:J10000") == small);
}

TEST_CASE("the example model is summarised as it was counted by hand") {
    ToolRun run;
    run.open(std::filesystem::path(QOR_EXAMPLES) / "model.xlsx");
    run.set_option(u"chkT4ShowHiddenWorksheets", u"-1");
    run.call(u"UTWorSum", check_all);
    const json expected = json::parse(std::ifstream(std::filesystem::path(QOR_EXAMPLES) / "model-summary.json"));
    REQUIRE(expected.size() == 9);
    std::int32_t row = 6;
    for (const json& sheet : expected) {
        const auto text = [&](const char* key) { return Variant(from_utf8(sheet[key].get<std::string>())); };
        const auto truth = [&](const char* key) { return Variant(sheet[key].get<bool>()); };
        const auto number = [&](const char* key) { return Variant(sheet[key].get<double>()); };
        check_row(run, row++,
                  {text("WorkbookName"), text("WorksheetName"), truth("ProtectedContents"),
                   truth("ProtectedDrawingObjects"), truth("ProtectedScenarios"), truth("Hidden"),
                   number("NumberofUsedCells"), number("NumberofDataInputs"), number("NumberofFormulas"),
                   number("RatioInputToFormulas"), number("NumberOfComments"), number("NumberOfHyperlinks")});
    }
    CHECK(run.cell(row, 1) == Empty{});
}

}  // namespace qor::calc::tests
