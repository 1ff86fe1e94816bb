#include "reports/report_forms.hpp"
#include "runtime/clock.hpp"
#include "tests/calc/support/report_run.hpp"
#include "tests/fakes/form_with.hpp"

namespace qor::calc::tests {
namespace {

using namespace std::chrono_literals;
using Steps = std::vector<std::pair<std::int32_t, std::int32_t>>;

// A workbook with 3000 rows of two dates, and what the user hears of the reports on it.
struct ProgressRun {
    ToolRun run;
    Object book = run.add_book();
    fakes::FakeScreen screen;
    fakes::MemorySettings settings;
    fakes::InPlace in_place{{screen, settings}, run.application};
    std::function<std::chrono::steady_clock::time_point()> real_clock = running_clock();

    ProgressRun() { book.get(names::Worksheets, 1).get(names::Range, u"A1:B3000").put(names::Value, Date{38061.0}); }
    ~ProgressRun() { running_clock() = real_clock; }
    ProgressRun(const ProgressRun&) = delete;
    ProgressRun& operator=(const ProgressRun&) = delete;

    // Each look at the clock finds it later by `step`.
    Steps hear(const ReportKind& report, std::chrono::milliseconds step) {
        std::chrono::steady_clock::time_point time;
        running_clock() = [&] { return time += step; };
        Steps steps;
        fakes::FormWith<ctlTree> form(screen, u"frmTree", u"ctlTreeView");
        form.control.Progress = [&](std::int32_t done, std::int32_t total) { steps.emplace_back(done, total); };
        form.control.LoadExcel();
        TreeView& tree = form.control.treQOR;
        for (std::size_t index = 1; index <= tree.count(); ++index) tree.node(index).set_image(ctlTree::checked);
        report.write(form.control, report.fields().checked_headings());
        run.application.get(names::ActiveWorkbook).call(names::Close, false);
        return steps;
    }
};

}  // namespace

TEST_CASE("a report of cells tells how far it is as often as a user can see, and at the end of each sheet") {
    ProgressRun run;
    const Steps once{{6000, 6000}};
    const Steps of_each_block{{1024, 6000}, {2048, 6000}, {3072, 6000}, {4096, 6000}, {5120, 6000}, {6000, 6000}};
    CHECK(run.hear(cell_information, 0ms) == once);
    CHECK(run.hear(cell_information, 60ms) == of_each_block);
    CHECK(run.hear(date_review, 0ms) == once);
    CHECK(run.hear(date_review, 60ms) == of_each_block);
}

TEST_CASE("a summary tells of each of its records") {
    ProgressRun run;
    run.book.get(names::Worksheets).call(names::Add);
    CHECK(run.hear(worksheet_summary, 0ms) == Steps{{1, 1}, {1, 6000}});
    // The root, the window and two sheets.
    CHECK(run.hear(workbook_summary, 0ms) == Steps{{1, 4}});
}

}  // namespace qor::calc::tests
