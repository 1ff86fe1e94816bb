#include "reports/worksheet_summary.hpp"

#include <doctest/doctest.h>

#include <algorithm>

#include "reports/reports.hpp"
#include "runtime/compare.hpp"
#include "tests/fakes/form_with.hpp"
#include "tests/reports/report_host.hpp"
#include "tests/support/failing_object.hpp"

using namespace qor;
using fakes::Grid;
using fakes::ReportHost;

namespace {

Variant row(std::vector<Variant> elements) {
    Array array = Array::table(1, elements.size());
    for (std::size_t place = 0; place < elements.size(); ++place) array.at(place) = elements[place];
    return array;
}

bool same(const Variant& left, const Variant& right) {
    return left.kind() == right.kind() && equals(left, right);
}
bool same(const Grid& left, const Grid& right) {
    return std::ranges::equal(left, right, [](const auto& one, const auto& other) {
        return one.first == other.first && same(one.second, other.second);
    });
}

struct Summary : ReportHost {
    std::optional<fakes::FormWith<ctlTree>> form;
    std::vector<std::pair<std::int32_t, std::int32_t>> progress;

    // Three inputs, one of them zero and one an error; four formulas, one of which gives "" and one of which is text;
    // and an empty cell.
    void add_inputs() {
        add_sheet(u"Inputs", row({0.0, u"text", ErrorValue{2007}, 5.0, u"", ErrorValue{2042}, u"=not", Empty{}}),
                  row({u"0", u"text", u"#DIV/0!", u"=2+3", u"=\"\"", u"=NA()", u"=not", u""}));
    }

    std::vector<std::u16string> all_headings() { return ReportFields(worksheet_summary_columns()).checked_headings(); }

    // A tree with every node checked, or those of these keys.
    void check(const std::vector<std::u16string>& keys = {}) {
        ctlTree& tree = form.emplace(screen, u"frmTree", u"ctlTreeView").control;
        tree.Progress = [&](std::int32_t finished, std::int32_t total) { progress.emplace_back(finished, total); };
        tree.LoadExcel();
        for (std::size_t index = 1; index <= tree.treQOR.count(); ++index) {
            TreeNode& node = tree.treQOR.node(index);
            if (keys.empty() || std::ranges::find(keys, node.key()) != keys.end()) node.set_image(ctlTree::checked);
        }
    }
    // The report on what is checked so.
    void report(const std::vector<std::u16string>& headings, const std::vector<std::u16string>& keys = {}) {
        progress.clear();
        check(keys);
        host_log.calls = 0;
        WkSum(form->control, headings);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Summary, "the title block, the headings and a row for each checked sheet") {
    settings.set_options({{u"chkT4ShowHiddenWorksheets", u"-1"}});
    add_inputs();
    add_sheet(u"Empty", Empty{}, u"", 2);
    start();
    report(all_headings());

    CHECK(done == std::vector<std::u16string>{u"workbook"});
    CHECK(same(value(1, 1), u"Report - Worksheet Summary"));
    CHECK(same(value(2, 1), u"Prepared Date: March 15, 2004"));
    CHECK(same(value(3, 1), u"Prepared By: Pat Doe"));
    const double sizes[] = {16, 11, 10};
    for (std::int32_t line = 1; line <= 3; ++line) {
        CHECK(same(value(line, 1, u"Font.Bold"), true));
        CHECK(same(value(line, 1, u"Font.Size"), sizes[line - 1]));
        CHECK(same(value(line, 1, u"Font.Italic"), line != 3));
    }
    CHECK(value(4, 1).is_missing());

    CHECK(same(value(5, 1), u"Workbook Name"));
    CHECK(same(value(5, 12), u"Number of Hyperlinks"));
    CHECK(same(value(5, 12, u"Font.Bold"), true));
    CHECK(same(value(5, 12, u"Font.Size"), 10.0));
    CHECK(same(value(5, 1, u"Borders9.LineStyle"), 1));
    CHECK(same(value(5, 7, u"Borders9.Weight"), 2));
    CHECK(same(value(5, 12, u"Borders9.ColorIndex"), -4105));
    CHECK(value(5, 1, u"HorizontalAlignment").is_missing());

    const std::vector<Variant> inputs{u"model.xls", u"Inputs", true, false, true, false, 6, 3, 4, 0.75, 3, 5};
    const std::vector<Variant> empty{u"model.xls", u"Empty", true, false, true, true, 0, 0, 0, 0, 3, 5};
    for (std::int32_t column = 1; column <= 12; ++column) {
        CAPTURE(column);
        const auto place = static_cast<std::size_t>(column) - 1;
        CHECK(same(value(6, column), inputs[place]));
        CHECK(same(value(7, column), empty[place]));
        CHECK(same(value(6, column, u"HorizontalAlignment"), -4131));
        CHECK(same(value(7, column, u"HorizontalAlignment"), -4131));
    }
    CHECK(value(8, 1).is_missing());
    CHECK(progress == std::vector<std::pair<std::int32_t, std::int32_t>>{{1, 8}, {1, 1}});
}

TEST_CASE_FIXTURE(Summary, "only a worksheet's own box counts, not that of its workbook") {
    add_sheet(u"One", 1.0, u"1");
    add_sheet(u"Two", 2.0, u"2");
    start();
    report({u"Worksheet Name"}, {u"ROOT", u"model.xls"});
    CHECK(value(6, 1).is_missing());
    CHECK(progress.empty());
    report({u"Worksheet Name"}, {u"model.xls*Two"});
    CHECK(same(value(6, 1), u"Two"));
    CHECK(value(7, 1).is_missing());
}

TEST_CASE_FIXTURE(Summary, "the ratio is rounded to six places and 0 without formulas") {
    std::vector<Variant> values(13, 1.0);
    std::vector<Variant> formulas(13, u"1");
    for (std::size_t place = 0; place < 3; ++place) formulas[place] = u"=1";
    add_sheet(u"Third", row(values), row(formulas));
    add_sheet(u"Inputs only", row({1.0, 2.0}), row({1.0, 2.0}));
    add_sheet(u"One formula", 7.0, u"=7");
    start();
    report({u"Ratio of Data Input to Formulas"});
    CHECK(same(value(6, 1), 3.333333));
    CHECK(same(value(7, 1), 0));
    CHECK(same(value(8, 1), 0.0));
}

TEST_CASE_FIXTURE(Summary, "columns stand in the order asked for, and an unknown heading leaves its column blank") {
    add_inputs();
    start();
    report({u"Hidden", u"hidden", u"Worksheet Name"});
    CHECK(same(value(5, 2), u"hidden"));
    CHECK(same(value(6, 1), false));
    CHECK(value(6, 2).is_missing());
    CHECK(same(value(6, 2, u"HorizontalAlignment"), -4131));
    CHECK(same(value(6, 3), u"Inputs"));
}

TEST_CASE_FIXTURE(Summary, "without any field only the title block shows") {
    add_inputs();
    start();
    report({});
    CHECK(std::ranges::all_of(grid, [](const auto& entry) { return std::get<0>(entry.first) <= 3; }));
    CHECK(progress.size() == 1);
}

TEST_CASE_FIXTURE(Summary, "the options say where the report goes") {
    add_sheet(u"First", 1.0, u"1");
    add_sheet(u"Last", 1.0, u"1");
    start();
    settings.set_options({{u"chkT5ReportNewWorkbook", u"0"}});
    report({});
    settings.set_options({{u"chkT5ReportNewWorkbook", u"0"}, {u"rdoT5ReportLocation0", u"False"}});
    report({});
    settings.set_options({{u"chkT5ReportNewWorkbook", u"-1"}, {u"rdoT5ReportLocation0", u"False"}});
    report({});
    CHECK(done == std::vector<std::u16string>{u"beside First", u"beside Last", u"workbook"});
}

TEST_CASE_FIXTURE(Summary, "where no sheet can be made nothing is written over the user's own") {
    add_inputs();
    start();
    host_log.refuses = [](std::u16string_view, std::u16string_view member, Access) { return member == u"Add"; };
    report(all_headings());
    CHECK(grid.empty());
    CHECK(progress.empty());
}

TEST_CASE_FIXTURE(Summary, "what can't be read leaves its cell blank and the others as they are") {
    add_inputs();
    start();
    host_log.refuses = [](std::u16string_view, std::u16string_view member, Access) {
        return member == u"Comments" || member == u"Formula" || member == u"UserName";
    };
    report(all_headings());
    CHECK(same(value(6, 6), false));
    CHECK(same(value(6, 7), 6));
    for (const std::int32_t blank : {8, 9, 10, 11}) {
        CHECK(value(6, blank).is_missing());
        CHECK(same(value(6, blank, u"HorizontalAlignment"), -4131));
    }
    CHECK(same(value(6, 12), 5));
    CHECK(value(3, 1).is_missing());
    CHECK(same(value(3, 1, u"Font.Bold"), true));
}

TEST_CASE_FIXTURE(Summary, "a sheet that has gone keeps its row, with its names only") {
    add_inputs();
    start();
    host_log.refuses = [](std::u16string_view type, std::u16string_view, Access access) {
        return type == u"Sheet" && access == Access::get;
    };
    TreeView& tree = form.emplace(screen, u"frmTree", u"ctlTreeView").control.treQOR;
    TreeNode& root = tree.add(nullptr, Relationship::child, u"ROOT", u"root", 2);
    TreeNode& window = tree.add(&root, Relationship::child, u"model.xls:1", u"model.xls:1", 2);
    window.set_tag(u"model.xls");
    tree.add(&window, Relationship::child, u"model.xls:1*Gone", u"Gone", 2);
    WkSum(form->control, all_headings());
    CHECK(same(value(6, 1), u"model.xls"));
    CHECK(same(value(6, 2), u"Gone"));
    for (std::int32_t column = 3; column <= 12; ++column) CHECK(value(6, column).is_missing());
}

TEST_CASE_FIXTURE(Summary, "a host that refuses whole rows gets the same report cell by cell") {
    add_inputs();
    start();
    report(all_headings());
    const Grid whole = grid;
    grid.clear();
    host_log.refuses = [](std::u16string_view type, std::u16string_view, Access access) {
        return type == u"Cells" && access == Access::put;
    };
    report(all_headings());
    CHECK(same(grid, whole));
}

TEST_CASE_FIXTURE(Summary, "the number of host calls does not grow with the cells") {
    add_sheet(u"Small", row({1.0, 2.0}), row({u"1", u"2"}));
    start();
    report(all_headings());
    const std::size_t small = host_log.calls;
    sheets.clear();
    add_sheet(u"Large", row(std::vector<Variant>(5000, 1.0)), row(std::vector<Variant>(5000, u"1")));
    start();
    report(all_headings());
    CHECK(host_log.calls == small);
    sheets.clear();
    add_sheet(u"One", 1.0, u"1");
    add_sheet(u"Two", 1.0, u"1");
    start();
    report(all_headings());
    CHECK(host_log.calls < small + 60);
}

TEST_CASE_FIXTURE(Summary, "any one refusal costs one entry at most, and nothing at all is raised") {
    add_inputs();
    add_sheet(u"Other", 1.0, u"1");
    start();
    report(all_headings());
    const Grid whole = grid;
    const auto start_again = [&] {
        begin_command();
        check();
        grid.clear();
        done.clear();
        return host;
    };
    const auto report_again = [&](const Object& failing) {
        gExcel = failing;
        WkSum(form->control, all_headings());
    };
    support::fail_each_access(start_again, report_again, [&](std::int32_t error) {
        CHECK(error == 0);
        if (done.empty()) {
            CHECK(grid.empty());
            return;
        }
        CHECK(grid.size() + 1 >= whole.size());
        for (const auto& [place, entry] : grid) CHECK(same(entry, whole.at(place)));
    });
}
