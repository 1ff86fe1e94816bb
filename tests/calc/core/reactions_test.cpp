#include <fstream>

#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "tests/calc/support/tool_run.hpp"

namespace qor::calc::tests {
namespace {

using namespace nlohmann::literals;
using nlohmann::json;

std::u16string caption_of(const Object& book) {
    return to_text(book.get(names::Windows, 1).get(names::Caption));
}

const MemberName QDoSelectionChange(u"QDoSelectionChange"), QWorksheetName(u"QWorksheetName"),
    QTargetAddress(u"QTargetAddress"), AddComment(u"AddComment");

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

TEST_CASE("windows in Calc are arranged in the user's style, or not at all") {
    ToolRun run;
    const Object book = run.add_book();
    run.set_option(u"chkT1AutoAdjWin", u"-1");
    run.call(u"QAutoUpdateWindowPositions");
    for (const auto* style : {u"rdoT1AutoAdjWin3", u"rdoT1AutoAdjWin2", u"rdoT1AutoAdjWin1", u"rdoT1AutoAdjWin0"}) {
        run.set_option(style, u"True");
        CHECK_NOTHROW(run.call(u"QAutoUpdateWindowPositions"));
    }
    run.set_option(u"chkT1AutoAdjWinWorkbookOnly", u"-1");
    CHECK_NOTHROW(run.call(u"QAutoUpdateWindowPositions"));
}

TEST_CASE("a backup in Calc is the workbook as it stands") {
    ToolRun run;
    const Object book = run.reopened(run.add_book(), "plan.xlsx");
    book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 7.0);
    const std::filesystem::path backups = run.folder() / "backups";
    run.set_option(u"chkT2AlwaysCreateBackupUponSave", u"-1");
    run.set_option(u"txtT2AlwaysCreateBackupUponSave", from_utf8(backups.string()));
    CHECK(run.call(u"QAlwCreBacBefSav", json::object(), {u"plan.xlsx"})["messages"].empty());
    CHECK_FALSE(std::filesystem::exists(backups));

    std::filesystem::create_directory(backups);
    run.call(u"QAlwCreBacBefSav", json::object(), {u"plan.xlsx"});
    REQUIRE(std::filesystem::exists(backups / "plan.xlk"));
    CHECK(book.get(names::Name) == u"plan.xlsx");
    CHECK(book.get(names::Saved) == false);

    std::filesystem::resize_file(backups / "plan.xlk", 0);
    run.set_option(u"chkT2WarnBackupExists", u"-1");
    const json asked = run.call(u"QAlwCreBacBefSav", R"({"answers": ["No"]})"_json, {u"plan.xlsx"});
    CHECK(asked["messages"][0]["text"] == "Do you wish to replace existing backup?");
    CHECK(std::filesystem::file_size(backups / "plan.xlk") == 0);
    run.call(u"QAlwCreBacBefSav", R"({"answers": ["Yes"]})"_json, {u"plan.xlsx"});
    CHECK(std::filesystem::file_size(backups / "plan.xlk") > 0);
    book.call(names::Close, false);
    const Object copy = run.open(backups / "plan.xlk");
    CHECK(copy.get(names::Worksheets, 1).get(names::Range, u"A1").get(names::Value) == 7.0);
}

TEST_CASE("a comment in Calc shows while its cell is selected") {
    ToolRun run;
    const Object sheet = run.add_sheet();
    const auto comment_at = [&](const char16_t* cell) { return sheet.get(names::Range, cell).get(names::Comment); };
    sheet.get(names::Range, u"B2").call(AddComment, u"first");
    sheet.get(names::Range, u"C3").call(AddComment, u"second");
    run.com().put(QDoSelectionChange, true);
    const auto select = [&](const std::u16string& cell) {
        const std::u16string name = to_text(sheet.get(names::Name));
        run.call(u"QSheetSelectionChange", json::object(), {name, cell});
        run.com().put(QWorksheetName, name);
        run.com().put(QTargetAddress, cell);
    };
    select(u"B2");
    CHECK(comment_at(u"B2").get(names::Visible) == true);
    select(u"C3");
    CHECK(comment_at(u"B2").get(names::Visible) == false);
    CHECK(comment_at(u"C3").get(names::Visible) == true);
    select(u"A1");
    CHECK(comment_at(u"C3").get(names::Visible) == false);
}

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
