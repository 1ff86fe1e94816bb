#include <fstream>

#include "platform/text.hpp"
#include "tests/calc/support/tool_run.hpp"

namespace qor::calc::tests {

TEST_CASE("an alternate template in Calc makes a workbook; one that is none is told") {
    ToolRun run;
    const Object book = run.add_book();
    book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, u"from the template");
    const std::u16string path = from_utf8((run.folder() / "plan.xlsx").string());
    book.call(names::SaveAs, path);
    book.call(names::Close, false);
    run.set_option(u"chkT2AlternateTemplate", u"-1");
    run.set_option(u"txtT2AlternateTemplateFile", path);
    run.call(u"UTAltTem");
    REQUIRE(run.application.get(names::Workbooks).get(names::Count) == 1);
    CHECK(run.cell(1, 1) == u"from the template");
    CHECK(run.application.get(names::ActiveWorkbook).get(names::Path) == u"");
    std::ofstream(run.folder() / "none.xlt") << "no template";
    run.set_option(u"txtT2AlternateTemplateFile", from_utf8((run.folder() / "none.xlt").string()));
    CHECK_NOTHROW(attempt([&] { run.call(u"UTAltTem"); }));
    run.set_option(u"txtT2AlternateTemplateFile", u"/no/such/template.xlt");
    CHECK(error_of([&] { run.call(u"UTAltTem"); }) == 1004);
}

}  // namespace qor::calc::tests
