#include <com/sun/star/awt/Rectangle.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/table/XTableCharts.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>

#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/adapter/ground/range_areas.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// A sheet "My Data" with years in A2:A4 and two series in B and C, and a chart of them.
Object book_with_chart(const Calc& calc) {
    Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    sheet.put(names::Name, u"My Data");
    sheet.get(names::Range, u"B1").put(names::Value, u"Sales");
    sheet.get(names::Range, u"C1").put(names::Value, u"Costs");
    sheet.get(names::Range, u"A2:A4").put(names::Value, u"'y");
    sheet.get(names::Range, u"B2:C4").put(names::Formula, u"=ROW()*COLUMN()");
    const auto host = std::make_shared<Host>(office_context());
    const Sheet raw = Book{host, host->documents().back()}.sheets().front();
    const Ref charts{Ref<css::table::XTableChartsSupplier>(raw.sheet)->getCharts()};
    const auto data = Ref<css::sheet::XCellRangeAddressable>(cells_at(raw, {0, 0, 2, 3}))->getRangeAddress();
    charts->addNewByName("Income", css::awt::Rectangle(8000, 0, 8000, 6000), sequence_of({data}), true, true);
    return book;
}

}  // namespace

TEST_CASE("charts and their series") {
    struct Row {
        std::string file;
        const char16_t* name;  // an xlsx file brings none
    };
    for (const auto& [file, name] : {Row{"", u"Income"}, Row{"chart.ods", u"Income"}, Row{"chart.xlsx", u"Object 1"},
                                     Row{"chart.xls", u"Chart 1"}}) {
        CAPTURE(file);
        const Calc calc;
        Object book = book_with_chart(calc);
        if (!file.empty()) book = calc.reopened(book, file.c_str());
        const Object sheet = book.get(names::Worksheets, 1);
        const Object charts = sheet.get(names::ChartObjects);
        REQUIRE(charts.get(names::Count) == 1);
        CHECK(sheet.get(names::Shapes).get(names::Count) == 1);
        CHECK(sheet.get(names::OLEObjects).get(names::Count) == 0);
        const Object frame = sheet.get(names::ChartObjects, 1);
        CHECK(frame.get(names::Name) == name);
        const Object series = frame.get(names::Chart).get(names::SeriesCollection);
        REQUIRE(series.get(names::Count) == 2);
        CHECK(series.get(names::Item, 1).get(names::Name) == u"Sales");
        CHECK(series.get(names::Item, 1).get(names::Formula) ==
              u"=SERIES('My Data'!$B$1,'My Data'!$A$2:$A$4,'My Data'!$B$2:$B$4,1)");
        CHECK(series.get(names::Item, u"Costs").get(names::Formula) ==
              u"=SERIES('My Data'!$C$1,'My Data'!$A$2:$A$4,'My Data'!$C$2:$C$4,2)");
        CHECK_FALSE(calc.application.get(names::ActiveChart).object());
        sheet.get(names::ChartObjects, frame.get(names::Name)).call(names::Activate);
        const Object active = calc.application.get(names::ActiveChart);
        REQUIRE(active);
        const Object sales = active.get(names::SeriesCollection, u"Sales");
        sales.call(names::Delete);
        CHECK(error_of([&] { sales.get(names::Name); }) == 1004);
        CHECK(series.get(names::Count) == 1);
        CHECK(series.get(names::Item, 1).get(names::Name) == u"Costs");
        CHECK(book.get(names::Saved) == false);
        const Object again = calc.reopened(book, "again.ods").get(names::Worksheets, 1);
        CHECK(again.get(names::ChartObjects, 1).get(names::Chart).get(names::SeriesCollection).get(names::Count) == 1);
        CHECK(error_of([&] { frame.get(names::Name); }) == 1004);
        const Object last = again.get(names::ChartObjects, 1);
        last.call(names::Delete);
        CHECK(again.get(names::ChartObjects).get(names::Count) == 0);
        CHECK(error_of([&] { last.get(names::Name); }) == 1004);
        CHECK(error_of([&] { again.get(names::ChartObjects, 1); }) == 1004);
    }
}

TEST_CASE("a chart is named") {
    const Calc calc;
    const Object book = book_with_chart(calc);
    const Object frame = book.get(names::Worksheets, 1).get(names::ChartObjects, 1);
    frame.put(names::Name, u"Chart 7");
    CHECK(frame.get(names::Chart).get(names::Name) == u"My Data Chart 7");
    const Object again = calc.reopened(book, "named.ods").get(names::Worksheets, 1);
    CHECK(again.get(names::ChartObjects, u"chart 7").get(names::Name) == u"Chart 7");
    again.call(names::Protect);
    CHECK(error_of([&] { again.get(names::ChartObjects, 1).call(names::Delete); }) == 1004);
    CHECK(again.get(names::ChartObjects).get(names::Count) == 1);
}

TEST_CASE("comments count among the shapes") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    CHECK(sheet.get(names::Shapes).get(names::Count) == 0);
    sheet.get(names::Range, u"B2").call(MemberName(u"AddComment"), u"one");
    sheet.get(names::Range, u"B3").call(MemberName(u"AddComment"), u"two");
    sheet.get(names::Range, u"B3").get(names::Comment).put(names::Visible, true);
    CHECK(sheet.get(names::Shapes).get(names::Count) == 2);
}

}  // namespace qor::calc::tests
