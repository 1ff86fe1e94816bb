#include "tests/calc/support/report_run.hpp"

namespace qor::calc::tests {
namespace {

using nlohmann::json;

const Variant none = Empty{};

}  // namespace

TEST_CASE("the Date Review lists what is a date or reads as one, and takes only true dates apart") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "dates.ods");
    const Object sheet = book.get(names::Worksheets, 1);
    const auto put = [&](const char16_t* address, const Variant& value, const char16_t* format) {
        const Object cell = sheet.get(names::Range, address);
        cell.put(names::NumberFormat, format);
        cell.put(names::Value, value);
    };
    put(u"A1", Date{38061.75}, u"m/d/yyyy h:mm");
    put(u"B1", Date{38062.5}, u"d-mmm-yy");
    put(u"C1", Date{38061.5}, u"d-mmm-yy");
    put(u"A2", u"1/2/2000", u"@");
    put(u"B2", 38061.0, u"0");
    put(u"C2", u"no date", u"General");
    put(u"A3", 5.0, u"General");
    put(u"B3", true, u"General");
    sheet.get(names::Range, u"C3").put(names::NumberFormat, u"yyyy-mm-dd");
    sheet.get(names::Range, u"C3").put(names::Formula, u"=DATE(2004,3,15)");
    book.get(names::Names).call(names::Add, u"Due", u"=Sheet1!$A$1");

    const json shown = run.call(u"UTDatRev", report_on_all());

    CHECK(shown["forms"][0]["name"] == "frmDtRev");
    CHECK(shown["forms"][0]["caption"] == "QOR Plus: Date Review");
    CHECK(shown["forms"][0]["helpId"] == 170080);
    CHECK(shown["progress"] == json::parse("[9, 9]"));
    CHECK(run.cell(1, 1) == u"Report - Date Review");
    const Report report = read_report(run.active_sheet());
    CHECK(report.headings == std::vector<Variant>{u"Workbook Name", u"Worksheet Name", u"Cell Address", u"Cell Row",
                                                  u"Cell Column", u"Cell Name", u"Cell Data Type", u"Cell Data Format",
                                                  u"Cell Format Value", u"Cell Formula", u"Cell Value", u"Cell Month",
                                                  u"Cell Day", u"Cell Year"});
    CHECK(report.column(u"Cell Address") == std::vector<Variant>{u"A1", u"B1", u"C1", u"A2", u"C3"});
    CHECK(report.column(u"Cell Name") == std::vector<Variant>{u"Due", none, none, none, none});
    CHECK(report.column(u"Cell Data Type") == std::vector<Variant>{u"Date", u"Date", u"Date", u"String", u"Date"});
    CHECK(report.column(u"Cell Format Value") ==
          std::vector<Variant>{Date{38061.75}, Date{38062.5}, Date{38061.5}, u"1/2/2000", Date{38061}});
    CHECK(report.column(u"Cell Formula") == std::vector<Variant>{none, none, none, none, u"=DATE(2004,3,15)"});
    // Noon goes to the even day.
    CHECK(report.column(u"Cell Value") == std::vector<Variant>{u"38062", u"38062", u"38062", 0.0, u"38061"});
    CHECK(report.column(u"Cell Month") == std::vector<Variant>{3.0, 3.0, 3.0, 0.0, 3.0});
    CHECK(report.column(u"Cell Day") == std::vector<Variant>{15.0, 16.0, 15.0, 0.0, 15.0});
    CHECK(report.column(u"Cell Year") == std::vector<Variant>{2004.0, 2004.0, 2004.0, 0.0, 2004.0});
}

TEST_CASE("the Date Review of a sheet without a date has its title and headings only") {
    ToolRun run;
    const Object book = run.add_book();
    book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 38061.0);

    run.call(u"UTDatRev", report_on_all());

    CHECK(run.cell(5, 14) == u"Cell Year");
    CHECK(run.cell(6, 1) == none);
    CHECK(run.active_sheet().get(names::UsedRange).call(names::Address) == u"$A$1:$N$5");
}

}  // namespace qor::calc::tests
