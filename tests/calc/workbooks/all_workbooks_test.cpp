#include "tests/calc/support/tool_run.hpp"

namespace qor::calc::tests {

TEST_CASE("all workbooks in Calc are saved and closed") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "plan.xlsx");
    book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 7.0);
    run.call(u"UTSavAll");
    CHECK(book.get(names::Saved) == true);
    book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 8.0);
    run.set_option(u"chkT3AutoSaveB4Close", u"-1");
    run.call(u"UTCloAll");
    CHECK(run.application.get(names::Workbooks).get(names::Count) == 0);
    const Object again = run.open(run.folder() / "plan.xlsx");
    CHECK(again.get(names::Worksheets, 1).get(names::Range, u"A1").get(names::Value) == 8.0);
    CHECK(run.call(u"UTCloAll")["messages"].empty());
    CHECK(run.call(u"UTCloAll")["messages"].size() == 1);
}

}  // namespace qor::calc::tests
