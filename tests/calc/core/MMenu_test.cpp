#include "runtime/conversion.hpp"
#include "tests/calc/support/tool_run.hpp"

namespace qor::calc::tests {

TEST_CASE("the menu stands in Calc until it is taken down") {
    ToolRun run;
    const Object book = run.add_book();
    const Object bars = run.application.get(names::CommandBars);
    const auto count = [&] { return to_long(bars.get(names::Count)); };
    const Object main = run.application.get(names::CommandBars, 1);
    const std::int32_t before = count();
    const auto find = [&] {
        return main.call(names::FindControl, named(names::Type, 10), named(names::Tag, u"QOR Plus")).object();
    };
    run.call(u"QMenuCreate");
    CHECK(count() == before + 3);
    const Object top = find();
    REQUIRE(top);
    CHECK(top.get(names::Caption) == u"&QOR Plus");
    const Object help = main.call(names::FindControl, named(names::Type, 10), named(names::Id, 30010));
    CHECK(to_long(help.get(names::Index)) == to_long(top.get(names::Index)) + 1);
    const Object reports = top.get(names::Controls, 1);
    CHECK(reports.get(names::Caption) == u"&Reports");
    CHECK(to_text(run.application.get(names::CommandBars, u"QOR Plus - Workbook Manager")
                      .get(names::Controls, u"Save All")
                      .get(names::OnAction)) == u"UTSavAll");
    run.call(u"QMenuCreate");
    CHECK(count() == before + 3);
    run.call(u"QMenuDelete");
    CHECK(count() == before);
    CHECK_FALSE(find());
}

}  // namespace qor::calc::tests
