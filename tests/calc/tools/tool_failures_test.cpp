#include "screens/script/script_error.hpp"
#include "tests/calc/support/tool_run.hpp"
#include "tests/support/failing_object.hpp"

namespace qor::calc::tests {

TEST_CASE("whatever access of the Worksheet Summary fails, the host is usable again") {
    ToolRun run;
    const Object book = run.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    sheet.get(names::Range, u"A1:B2").put(names::Value, 1.0);
    const nlohmann::json script = {
        {"forms", {{{{"check", "ctlTreeView"}, {"node", "ROOT"}}, {{"press", "cmdButton(0)"}}}}}};
    const Object books = run.application.get(names::Workbooks);
    const auto work = [&](const Object& host) {
        try {
            run.call(u"UTWorSum", script, host);
        } catch (const ScriptError&) {
            // The dialog had less to press than the script wants.
        }
    };
    double next = 0;
    const auto check = [&](std::int32_t) {
        CHECK(run.application.get(names::ScreenUpdating) == true);
        CHECK(run.application.get(names::DisplayAlerts) == true);
        for (const Variant& one : books.items()) {
            if (!one.object().is(book)) one.call(names::Close, false);
        }
        CHECK(books.get(names::Count) == 1);
        CHECK(sheet.get(names::Range, u"B2").get(names::Value) == 1.0);
        sheet.get(names::Range, u"C3").put(names::Value, ++next);
        CHECK(sheet.get(names::Range, u"C3").get(names::Value) == next);
    };
    CHECK(support::fail_each_access([&] { return run.application; }, work, check) > 20);
}

}  // namespace qor::calc::tests
