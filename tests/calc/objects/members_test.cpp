#include <map>

#include "tests/calc/objects/every_object.hpp"

namespace qor::calc::tests {

TEST_CASE("every object knows its application and what it belongs to") {
    const Calc calc;
    const Object book = full_book(calc);
    std::vector<Object> objects = objects_of_book(book);
    for (const MemberName& member : {names::Application, names::CommandBars, names::RecentFiles, names::ThisWorkbook,
                                     names::Windows, names::Workbooks, names::WorksheetFunction}) {
        objects.push_back(calc.application.get(member));
    }
    const std::map<std::string, std::string> parents{{"Application", "Application"},
                                                     {"Areas", "Range"},
                                                     {"Border", "Range"},
                                                     {"Chart", "ChartObject"},
                                                     {"ChartObject", "Worksheet"},
                                                     {"ChartObjects", "Worksheet"},
                                                     {"CommandBars", "Application"},
                                                     {"Comment", "Range"},
                                                     {"Comments", "Worksheet"},
                                                     {"DocumentProperties", "Workbook"},
                                                     {"DocumentProperty", "Workbook"},
                                                     {"Font", "Range"},
                                                     {"FormatCondition", "Range"},
                                                     {"FormatConditions", "Range"},
                                                     {"Hyperlinks", "Range"},
                                                     {"Interior", "Range"},
                                                     {"Name", "Workbook"},
                                                     {"Names", "Workbook"},
                                                     {"OLEObject", "Worksheet"},
                                                     {"OLEObjects", "Worksheet"},
                                                     {"Range", "Worksheet"},
                                                     {"RecentFiles", "Application"},
                                                     {"Series", "Chart"},
                                                     {"SeriesCollection", "Chart"},
                                                     {"Shapes", "Worksheet"},
                                                     {"Sheets", "Workbook"},
                                                     {"ThisWorkbook", "Application"},
                                                     {"Window", "Workbook"},
                                                     {"Windows", "Workbook"},
                                                     {"Workbook", "Application"},
                                                     {"Workbooks", "Application"},
                                                     {"Worksheet", "Workbook"},
                                                     {"WorksheetFunction", "Application"}};
    std::map<std::string, std::string> found;
    for (const Object& object : objects) {
        found.emplace(kind_of(object), kind_of(object.get(names::Parent)));
        Variant application;
        if (error_of([&] { application = object.get(names::Application); }) == 438) continue;
        CAPTURE(kind_of(object));
        CHECK(kind_of(application.object()) == "Application");
    }
    CHECK(found == parents);
    CHECK(kind_of(calc.application.get(names::Windows).get(names::Parent)) == "Application");
    for (const Object& object : objects_of_sheet(book.get(names::Worksheets, 1))) {
        const Object parent = object.get(names::Parent);
        if (kind_of(parent) == "Worksheet") CHECK(parent.get(names::Name) == u"First");
        if (kind_of(parent) == "Workbook") CHECK(parent.is(book));
    }
}

TEST_CASE("the application's shorthands stand for the active workbook and sheet") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    CHECK(calc.application.get(names::Name) == u"LibreOffice Calc");
    CHECK(calc.application.get(names::Columns, 2).get(names::Address) == u"$B:$B");
    CHECK(calc.application.get(names::Rows, u"2:3").get(names::Address) == u"$2:$3");
    CHECK(calc.application.get(names::Sheets).get(names::Count) == 1);
    CHECK(book.get(names::Sheets, u"Sheet1").object().is(sheet));
    sheet.get(names::Range, u"C3").call(names::Activate);
    CHECK(calc.application.get(names::ActiveCell).get(names::Address) == u"$C$3");
    CHECK(calc.application.get(names::ActiveWindow).get(names::Selection).get(names::Address) == u"$C$3");
}

TEST_CASE("recalculating draws new random numbers") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object cell = sheet.get(names::Range, u"A1");
    cell.put(names::Formula, u"=RAND()");
    const Variant first = cell.get(names::Value);
    calc.application.call(names::Calculate);
    const Variant second = cell.get(names::Value);
    CHECK_FALSE(second == first);
    sheet.call(names::Calculate);
    CHECK_FALSE(cell.get(names::Value) == second);
}

TEST_CASE("members that say the same in another way") {
    const Calc calc;
    const Object book = full_book(calc);
    const Object sheet = book.get(names::Worksheets, 1);
    const Object cell = sheet.get(names::Range, u"D1");
    cell.put(names::Value2, Date{45000});
    CHECK(cell.get(names::Value2) == 45000.0);
    cell.put(names::Value2, u"text");
    CHECK(cell.get(names::Value) == u"text");

    const Object name = book.get(names::Names, u"First!Local");
    CHECK(name.get(names::Value) == u"=First!$A$1");
    name.put(names::Value, u"=First!$B$2");
    CHECK(name.get(names::RefersTo) == u"=First!$B$2");

    const Object font = cell.get(names::Font);
    font.put(names::ColorIndex, 3);
    CHECK(font.get(names::Color) == 255);
    CHECK(font.get(names::ColorIndex) == 3);
    font.put(names::ColorIndex, -4105);
    CHECK(font.get(names::ColorIndex) == -4105);

    CHECK(sheet.get(names::Comments, 1).get(MemberName(u"Author")) == u"");
    const Object frame = sheet.get(names::ChartObjects, 1);
    const Object series = frame.get(names::Chart).get(names::SeriesCollection);
    REQUIRE(series.get(names::Count) == 1);
    CHECK(series.get(names::Item, 1).get(MemberName(u"PlotOrder")) == 1);
    CHECK_FALSE(book.get(names::ActiveChart).object());
    frame.call(names::Select);
    CHECK(book.get(names::ActiveChart).get(names::Name) == u"First Income");
    sheet.get(names::OLEObjects, u"Inner").call(names::Activate);
    CHECK_FALSE(calc.application.get(names::Selection).object());
    CHECK_FALSE(book.get(names::ActiveChart).object());
}

}  // namespace qor::calc::tests
