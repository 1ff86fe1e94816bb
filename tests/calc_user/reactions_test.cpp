#include <doctest/doctest.h>

#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/sheet/XSheetAnnotationAnchor.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <fstream>

#include "tests/calc_user/users_calc.hpp"

namespace qor::calc::tests {
namespace {

using namespace std::chrono_literals;

// Whether the comment of C4 on the first worksheet shows.
bool comment_shows(const UsersCalc& calc) {
    const Ref document{css::frame::Desktop::create(calc.context())->getCurrentComponent()};
    const Ref<css::container::XIndexAccess> sheets(Ref{Ref<css::sheet::XSpreadsheetDocument>(document)->getSheets()});
    const Ref cell{Ref<css::table::XCellRange>(sheets->getByIndex(0))->getCellByPosition(2, 3)};
    return Ref {
        Ref<css::sheet::XSheetAnnotationAnchor>(cell)->getAnnotation()
        } -> getIsVisible();
}

}  // namespace

TEST_CASE(
    "at the first start there are data files, and captions, comments, backups and timed saves follow the options") {
    const UsersHome home;
    const auto backups = home.path() / "backups";
    std::filesystem::create_directories(backups);
    std::ofstream(home.settings_file()) << "[Options]\nchkT1AddFullFilePath=-1\nchkT4ViewCellCommentsUponEntry=-1\n"
                                        << "chkT3SaveWorkbooksEvery=-1\ntxtT3SaveWorkbooksEvery=1\n"
                                        << "chkT2AlwaysCreateBackupUponSave=-1\n"
                                        << "txtT2AlwaysCreateBackupUponSave=" << backups.native() << '\n';
    UsersCalc calc(home);
    for (const char* name : {"Bookmarks.dat", "DateFormat.dat", "FileGroups.dat", "PrintGroups.dat"}) {
        CAPTURE(name);
        CHECK(std::filesystem::exists(home.data() / name));
    }
    CHECK(calc.shows(home.model().native()));

    CHECK_FALSE(comment_shows(calc));
    calc.keys({"Down", "Down", "Down", "Right", "Right"});
    CHECK(comes_to([&] { return comment_shows(calc); }));
    calc.key("Down");
    CHECK(comes_to([&] { return !comment_shows(calc); }));

    const auto size = std::filesystem::file_size(home.model());
    calc.key("ctrl+s");
    REQUIRE(calc.shows("Confirm File Format"));
    calc.click({770, 507});  // the button that keeps it
    CHECK(comes_to([&] { return std::filesystem::exists(backups / "model.xlk"); }));
    CHECK(comes_to([&] { return std::filesystem::file_size(home.model()) != size; }));

    calc.key("ctrl+Home");
    const auto saved = std::filesystem::last_write_time(home.model());
    calc.type("1234");
    calc.key("Return");
    CHECK(comes_to([&] { return std::filesystem::last_write_time(home.model()) > saved; }, 90s));
}

}  // namespace qor::calc::tests
