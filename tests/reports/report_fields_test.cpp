#include <doctest/doctest.h>

#include "reports/report_fields.hpp"
#include "reports/worksheet_summary.hpp"

using namespace qor;

namespace {

std::vector<std::u16string> keys(const ReportFields& fields) {
    std::vector<std::u16string> all;
    for (const ReportField& field : fields.entries()) all.push_back(field.Key);
    return all;
}

const ReportFields summary(worksheet_summary_columns());

}  // namespace

TEST_CASE("the fields of the Worksheet Summary start in this order, all checked") {
    const std::vector<std::u16string> headings{u"Workbook Name",        u"Worksheet Name",
                                               u"Protected Contents",   u"Protected Drawing Objects",
                                               u"Protected Scenarios",  u"Hidden",
                                               u"Number of Used Cells", u"Number of Data Inputs",
                                               u"Number of Formulas",   u"Ratio of Data Input to Formulas",
                                               u"Number of Comments",   u"Number of Hyperlinks"};
    CHECK(summary.checked_headings() == headings);
    CHECK(keys(summary) == std::vector<std::u16string>{u"WorkbookName", u"WorksheetName", u"ProtectedContents",
                                                       u"ProtectedDrawingObjects", u"ProtectedScenarios", u"Hidden",
                                                       u"NumberofUsedCells", u"NumberofDataInputs", u"NumberofFormulas",
                                                       u"RatioInputToFormulas", u"NumberOfComments",
                                                       u"NumberOfHyperlinks"});
    std::int32_t place = 0;
    for (const ReportField& field : summary.entries()) {
        CHECK(field.Order == place);
        CHECK(field.NewOrder == place);
        CHECK(field.CheckState == 2);
        ++place;
    }
}

TEST_CASE("a toggle goes between checked and unchecked, and an unchecked field keeps its place") {
    ReportFields fields = summary;
    CHECK(fields.toggle(u"Hidden") == 1);
    CHECK(fields.checked_headings().size() == 11);
    CHECK(fields.find(u"Hidden")->Order == 5);
    CHECK(fields.toggle(u"Hidden") == 2);
    CHECK(keys(fields) == keys(summary));
}

TEST_CASE("a field dragged upward takes the target's place and pushes the others down") {
    ReportFields fields = summary;
    fields.move(5, 0);
    const std::vector<std::u16string> start{u"Hidden", u"WorkbookName", u"WorksheetName", u"ProtectedContents"};
    const auto all = keys(fields);
    CHECK(std::vector(all.begin(), all.begin() + 4) == start);
    CHECK(all[6] == u"NumberofUsedCells");
}

TEST_CASE("every move of twelve fields is taking out and putting in") {
    for (std::int32_t dragged = 0; dragged < 12; ++dragged) {
        for (std::int32_t target = 0; target < 12; ++target) {
            CAPTURE(dragged);
            CAPTURE(target);
            ReportFields fields = summary;
            fields.toggle(u"Hidden");
            fields.move(dragged, target);

            auto expected = keys(summary);
            const std::u16string key = expected[static_cast<std::size_t>(dragged)];
            expected.erase(expected.begin() + dragged);
            expected.insert(expected.begin() + target, key);
            CHECK(keys(fields) == expected);
            for (std::size_t place = 0; place < 12; ++place) {
                CHECK(fields.entries()[place].Order == static_cast<std::int32_t>(place));
            }
            CHECK(fields.find(u"Hidden")->CheckState == 1);
        }
    }
}
