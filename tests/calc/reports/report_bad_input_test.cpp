#include "platform/text.hpp"
#include "reports/report_form.hpp"
#include "tests/calc/support/report_run.hpp"

namespace qor::calc::tests {
namespace {

using nlohmann::json;

const std::vector<const char16_t*> reports{u"UTCelInf", u"UTDatRev", u"UTWokSum", u"UTWorSum"};

json script_with_fields_off(const std::vector<std::string>& headings, const std::string& node) {
    json actions = json::array();
    for (const std::string& heading : headings) actions.push_back({{"check", "treCellInfo"}, {"row", heading}});
    actions.push_back({{"check", "ctlTreeView"}, {"node", node}});
    actions.push_back({{"press", "cmdButton(0)"}});
    return {{"forms", json::array({actions})}};
}

}  // namespace

TEST_CASE("three hundred sheets are reported, each with its name") {
    ToolRun run;
    const Object book = run.add_book();
    for (int sheet = 1; sheet < 300; ++sheet) book.get(names::Worksheets).call(names::Add);
    for (const Variant& sheet : book.get(names::Worksheets).object().items()) {
        sheet.get(names::Range, u"C3").put(names::Value, Date{38061.0});
    }
    const std::size_t expected[] = {300, 300, 1, 300};
    for (std::size_t place = 0; place < reports.size(); ++place) {
        run.call(reports[place], report_on(to_utf8(*book.get(names::Name).get_if<std::u16string>())));
        const Report report = read_report(run.active_sheet());
        CHECK(report.records.size() == expected[place]);
        run.application.get(names::ActiveWorkbook).call(names::Close, false);
    }
}

TEST_CASE("names with quotes, asterisks and other signs come as they are") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "it's a *star* \xF0\x9F\x98\x80 \"x\".ods");
    const Object sheet = book.get(names::Worksheets, 1);
    sheet.put(names::Name, u"O'Brien \"\U0001F600\" & Co");
    sheet.get(names::Range, u"A1").put(names::Value, Date{38061.0});
    book.get(names::Names).call(names::Add, u"Start", sheet.get(names::Range, u"A1"));
    for (const char16_t* command : {u"UTCelInf", u"UTDatRev", u"UTWorSum"}) {
        run.call(command, report_on_all());
        const Report report = read_report(run.active_sheet());
        REQUIRE(report.records.size() == 1);
        CHECK(report.at(0, u"Workbook Name") == u"it's a *star* \U0001F600 \"x\".ods");
        CHECK(report.at(0, u"Worksheet Name") == u"O'Brien \"\U0001F600\" & Co");
        if (std::u16string_view(command) == u"UTCelInf") CHECK(report.at(0, u"Cell Name") == u"Start");
        run.application.get(names::ActiveWorkbook).call(names::Close, false);
    }
}

TEST_CASE("a report that does not fit ends with the last row of the worksheet") {
    ToolRun run;
    const Object book = run.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    sheet.get(names::Range, u"A1:A1048576").put(names::Value, 1.0);
    const json shown = run.call(
        u"UTCelInf", script_with_fields_off({"Workbook Name", "Worksheet Name", "Cell Address", "Cell Column",
                                             "Cell Name", "Cell Data Type", "Cell Data Format", "Cell Format Value",
                                             "Cell Formula", "Cell Value", "Cell Comments"},
                                            "ROOT"));
    CHECK(shown["progress"] == json::parse("[1048576, 1048576]"));
    CHECK(run.cell(5, 1) == u"Cell Row");
    CHECK(run.cell(6, 1) == 1.0);
    CHECK(run.cell(1048576, 1) == 1048571.0);
}

TEST_CASE("what goes away under the dialog leaves blank or missing records, and nothing raises") {
    for (const char16_t* command : reports) {
        for (const bool closes : {false, true}) {
            CAPTURE(to_utf8(command));
            CAPTURE(closes);
            ToolRun run;
            const Object kept = run.add_book();
            const Object book = run.add_book();
            book.get(names::Worksheets).call(names::Add);
            book.get(names::Worksheets, 1).put(names::Name, u"Renamed");
            fakes::FakeScreen screen;
            fakes::MemorySettings settings;
            const fakes::InPlace in_place({screen, settings});
            screen.while_modal = [&](Form& form) {
                auto& report = dynamic_cast<ReportForm&>(form);
                TreeView& tree = report.ctlTreeView.treQOR;
                for (std::size_t index = 1; index <= tree.count(); ++index) {
                    tree.node(index).set_image(ctlTree::checked);
                }
                if (closes) {
                    book.call(names::Close, false);
                } else {
                    book.get(names::Worksheets, u"Renamed").put(names::Name, u"Other");
                    book.get(names::Worksheets, 2).call(names::Delete);
                }
                report.cmdButton(0).set_enabled(true);
                report.cmdButton(0).press();
            };
            CHECK_NOTHROW(run.com().call(MemberName(command), run.application));
            CHECK(screen.log.back().starts_with(u"unload frm"));
            CHECK(run.cell(5, 1) == u"Workbook Name");
            CHECK(run.application.get(names::Workbooks).get(names::Count) == (closes ? 2 : 3));
        }
    }
}

}  // namespace qor::calc::tests
