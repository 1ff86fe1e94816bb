#include "screens/script/script_error.hpp"
#include "tests/calc/support/report_run.hpp"
#include "tests/calc/support/whole_document.hpp"
#include "tests/support/failing_host_calls.hpp"
#include "tests/support/failing_object.hpp"

namespace qor::calc::tests {
namespace {

const std::vector<const char16_t*> reports{u"UTCelInf", u"UTDatRev", u"UTWokSum", u"UTWorSum"};

// A small workbook with something for every field; the reports go into it as its first sheet.
struct SmallBook {
    ToolRun run;
    Object book = run.add_book();
    Object sheet = book.get(names::Worksheets, 1);

    SmallBook() {
        run.set_option(u"chkT5ReportNewWorkbook", u"0");
        sheet.get(names::Range, u"A1").put(names::Value, Date{38061.5});
        sheet.get(names::Range, u"B1").put(names::Value, u"'1/2/2000");
        sheet.get(names::Range, u"B2").put(names::Formula, u"=1/0");
        sheet.get(names::Range, u"B2").call(MemberName(u"AddComment"), u"why?");
        book.get(names::Names).call(names::Add, u"Start", u"=Sheet1!$A$1");
    }

    void call(const char16_t* command, const Object& host) {
        try {
            run.call(command, report_on_all(), host);
        } catch (const ScriptError&) {
            // The dialog had less to press than the script wants.
        }
    }
    void check_usable() const {
        CHECK(run.application.get(names::ScreenUpdating) == true);
        CHECK(run.application.get(names::DisplayAlerts) == true);
        CHECK(run.application.get(names::Workbooks).get(names::Count) == 1);
    }
};

// One undo at the most, and the workbook is what it was.
void check_undone(const SmallBook& small, UnchangedDocument& document) {
    small.check_usable();
    REQUIRE(undo_titles().size() <= 1);
    if (!undo_titles().empty()) undo();
    document.check();
}

}  // namespace

TEST_CASE("whatever call into the office fails in a report, one undo brings the workbook back") {
    for (const char16_t* command : reports) {
        SmallBook small;
        UnchangedDocument document;
        const std::uint64_t failures = support::fail_each_host_call(
            clear_undo, [&] { small.call(command, small.run.application); },
            [&](std::int32_t error) {
                CAPTURE(error);
                check_undone(small, document);
            });
        document.check_now();
        CHECK(failures > 100);
    }
}

TEST_CASE("whatever access of a report fails, the host is usable again") {
    for (const char16_t* command : reports) {
        SmallBook small;
        UnchangedDocument document;
        const auto prepare = [&] {
            clear_undo();
            return small.run.application;
        };
        const std::uint64_t failures = support::fail_each_access(
            prepare, [&](const Object& host) { small.call(command, host); },
            [&](std::int32_t) { check_undone(small, document); });
        document.check_now();
        CHECK(failures > 50);
    }
}

TEST_CASE("each report is one step of undo and redo with its title") {
    const std::vector<const char*> titles{"Cell Information", "Date Review", "Workbook Summary", "Worksheet Summary"};
    for (std::size_t place = 0; place < reports.size(); ++place) {
        SmallBook small;
        clear_undo();
        const std::string before = whole_document();
        small.call(reports[place], small.run.application);
        const std::string after = whole_document();
        CHECK((before != after));
        REQUIRE(undo_titles() == std::vector<std::string>{titles[place]});
        undo();
        CHECK((whole_document() == before));
        redo();
        CHECK((whole_document() == after));
    }
}

}  // namespace qor::calc::tests
