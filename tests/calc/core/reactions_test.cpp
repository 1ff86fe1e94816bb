#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "tests/calc/support/tool_run.hpp"

namespace qor::calc::tests {
namespace {

using namespace nlohmann::literals;
using nlohmann::json;

const MemberName QDoSelectionChange(u"QDoSelectionChange"), QWorksheetName(u"QWorksheetName"),
    QTargetAddress(u"QTargetAddress"), AddComment(u"AddComment");

}  // namespace

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

}  // namespace qor::calc::tests
