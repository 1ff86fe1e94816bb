#include <com/sun/star/util/XMergeable.hpp>

#include "hosts/calc/adapter/ground/range_areas.hpp"
#include "platform/text.hpp"
#include "tests/calc/support/report_run.hpp"

namespace qor::calc::tests {
namespace {

using nlohmann::json;

void put(const Object& sheet, const char16_t* address, const Variant& value) {
    sheet.get(names::Range, address).put(names::Value, value);
}
void put_formula(const Object& sheet, const char16_t* address, const char16_t* formula) {
    sheet.get(names::Range, address).put(names::Formula, formula);
}
void put_format(const Object& sheet, const char16_t* address, const char16_t* format) {
    sheet.get(names::Range, address).put(names::NumberFormat, format);
}

void check_records(const Report& report, const std::vector<std::vector<Variant>>& expected) {
    REQUIRE(report.records.size() == expected.size());
    for (std::size_t record = 0; record < expected.size(); ++record) {
        for (std::size_t place = 0; place < expected[record].size(); ++place) {
            CAPTURE(record);
            CAPTURE(place);
            CHECK(report.records[record][place] == expected[record][place]);
        }
    }
}

const Variant none = Empty{};

}  // namespace

TEST_CASE("the Cell Information says of each cell that is not empty where it stands and what it is") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "cells.ods");
    const Object sheet = book.get(names::Worksheets, 1);
    put(sheet, u"B2", 5.25);
    put_format(sheet, u"B2", u"0.00");
    put(sheet, u"D2", u"some text");
    put_formula(sheet, u"B3", u"=B2*2");
    put_format(sheet, u"B3", u"0.00");
    put(sheet, u"C4", true);
    put(sheet, u"B4", Date{38061.75});
    put_format(sheet, u"B4", u"m/d/yyyy h:mm");
    put(sheet, u"D4", Currency{1234500});
    sheet.get(names::Range, u"D2").call(MemberName(u"AddComment"), u"checked\nby hand");
    book.get(names::Names).call(names::Add, u"Rate", u"=Sheet1!$B$2");
    book.get(names::Names).call(names::Add, u"Both", u"=Sheet1!$B$2:$B$3");

    const json shown = run.call(u"UTCelInf", report_on_all());

    CHECK(shown["forms"][0]["name"] == "frmCellInfo");
    CHECK(shown["forms"][0]["caption"] == "QOR Plus: Cell Information");
    CHECK(shown["forms"][0]["helpId"] == 170030);
    CHECK(shown["progress"] == json::parse("[9, 9]"));
    CHECK(run.cell(1, 1) == u"Report - Cell Information");
    const Report report = read_report(run.active_sheet());
    CHECK(report.headings == std::vector<Variant>{u"Workbook Name", u"Worksheet Name", u"Cell Address", u"Cell Row",
                                                  u"Cell Column", u"Cell Name", u"Cell Data Type", u"Cell Data Format",
                                                  u"Cell Format Value", u"Cell Formula", u"Cell Value",
                                                  u"Cell Comments"});
    const Variant b = u"cells.ods";
    const Variant s = u"Sheet1";
    check_records(
        report,
        {
            {b, s, u"B2", 2.0, 2.0, u"Rate", u"Double", u"0.00", 5.25, none, u"5.25", none},
            {b, s, u"D2", 2.0, 4.0, none, u"String", u"General", u"some text", none, u"some text", u"checked\nby hand"},
            {b, s, u"B3", 3.0, 2.0, none, u"Double", u"0.00", 10.5, u"=B2*2", u"10.5", none},
            {b, s, u"B4", 4.0, 2.0, none, u"Date", u"m/d/yyyy h:mm", Date{38061.75}, none, u"3/15/2004 6:00:00 PM",
             none},
            {b, s, u"C4", 4.0, 3.0, none, u"Boolean", u"General", true, none, u"True", none},
            {b, s, u"D4", 4.0, 4.0, none, u"Currency", u"$#,##0.00", Currency{1234500}, none, u"123.45", none},
        });
    const auto look = [&](std::int32_t row, std::int32_t column, const MemberName& property) {
        return run.active_sheet().get(names::Cells, row, column).get(property);
    };
    CHECK(look(6, 9, names::Text) == u"5.25");
    CHECK(look(9, 9, names::NumberFormat) == u"m/d/yyyy h:mm");
    CHECK(look(9, 8, names::NumberFormat) == u"General");
    for (std::int32_t column = 1; column <= 12; ++column) CHECK(look(8, column, names::HorizontalAlignment) == -4131);
    CHECK(look(12, 1, names::HorizontalAlignment) == 1);
}

TEST_CASE("the Cell Information of formulas, errors, merged cells and cells that only look like something") {
    ToolRun run;
    const Object book = run.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    put_formula(sheet, u"A1", u"=IF(1=1,\"\",2)");
    put_formula(sheet, u"B1", u"=1/0");
    put(sheet, u"C1", u"'=no formula");
    sheet.get(names::Range, u"A2:B2").put(names::FormulaArray, u"={1,2}*3");
    put(sheet, u"A3", 7.0);
    const Sheet raw =
        Book{std::make_shared<Host>(office_context()), Host(office_context()).documents().back()}.sheets().front();
    Ref<css::util::XMergeable>(cells_at(raw, {0, 2, 2, 2}))->merge(true);
    sheet.get(names::Range, u"D4").get(names::Interior).put(names::Color, 255);
    const Object second = book.get(names::Worksheets).call(names::Add, named(names::After, sheet));
    put(second, u"B1", u"next");
    second.put(names::Name, u"Next");
    book.get(names::Worksheets).call(names::Add, named(names::After, second)).put(names::Name, u"Nothing");

    // Of three worksheets two are checked.
    const std::string window = utf8(book.get(names::Name));
    const auto click = [&](const std::string& node) { return json{{"check", "ctlTreeView"}, {"node", node}}; };
    json actions = json::array({{{"check", "treCellInfo"}, {"row", "Workbook Name"}}, click(window + "*Sheet1")});
    actions.push_back(click(window + "*Next"));
    actions.push_back({{"press", "cmdButton(0)"}});
    const json shown = run.call(u"UTCelInf", {{"forms", json::array({actions})}});

    CHECK(shown["progress"] == json::parse("[1, 1]"));
    const Report report = read_report(run.active_sheet());
    CHECK(report.headings.front() == u"Worksheet Name");
    CHECK(report.column(u"Worksheet Name") ==
          std::vector<Variant>{u"Sheet1", u"Sheet1", u"Sheet1", u"Sheet1", u"Sheet1", u"Sheet1", u"Next"});
    CHECK(report.column(u"Cell Address") == std::vector<Variant>{u"A1", u"B1", u"C1", u"A2", u"B2", u"A3", u"B1"});
    CHECK(report.column(u"Cell Data Type") ==
          std::vector<Variant>{u"String", u"Error", u"String", u"Double", u"Double", u"Double", u"String"});
    CHECK(report.column(u"Cell Formula") ==
          std::vector<Variant>{u"=IF(1=1,\"\",2)", u"=1/0", none, u"{={1,2}*3}", u"{={1,2}*3}", none, none});
    CHECK(report.column(u"Cell Value") ==
          std::vector<Variant>{none, u"Error 2007", u"=no formula", u"3", u"6", u"7", u"next"});
    CHECK(run.cell(7, 8) == ErrorValue{2007});
}

}  // namespace qor::calc::tests
