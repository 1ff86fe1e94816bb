#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "tests/calc/support/tool_run.hpp"

namespace qor::calc::tests {
namespace {

using namespace nlohmann::literals;

std::u16string caption_of(const Object& book) {
    return to_text(book.get(names::Windows, 1).get(names::Caption));
}

}  // namespace

TEST_CASE("captions in Calc show the name or the full path, and the user stays where he was") {
    ToolRun run;
    const Object saved = run.reopened(run.add_book(), "plan.xlsx");
    const Object fresh = run.add_book();
    fresh.get(names::Worksheets).call(names::Add);
    fresh.get(names::Worksheets, 2).call(names::Activate);
    const std::u16string path = from_utf8((run.folder() / "plan.xlsx").string());
    run.call(u"QUpdateWindowCaption");
    CHECK(caption_of(saved) == u"plan.xlsx");
    CHECK(caption_of(fresh) == to_text(fresh.get(names::Name)));
    CHECK(run.application.get(names::ActiveWorkbook).object().is(fresh));
    CHECK(run.active_sheet().get(names::Index) == 2);

    // The Options dialog does it as soon as the option is applied.
    run.call(u"UTOpt", R"j({"forms": [[{"check": "chkT1AddFullFilePath"}, {"press": "cmdButton(2)"}]]})j"_json);
    CHECK(caption_of(saved) == path);
    CHECK(caption_of(fresh) == to_text(fresh.get(names::Name)));
    CHECK(run.application.get(names::ActiveWorkbook).object().is(fresh));
    CHECK(run.application.get(names::ScreenUpdating) == true);

    saved.call(names::Close, false);
    const Object read_only =
        run.application.get(names::Workbooks).call(names::Open, path, named(names::ReadOnly, true)).object();
    run.call(u"QUpdateWindowCaption");
    CHECK(caption_of(read_only) == path + u" [Read-Only]");
}

}  // namespace qor::calc::tests
