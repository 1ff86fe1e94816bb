#include <doctest/doctest.h>

#include <fstream>

#include "ground/product.hpp"
#include "platform/text.hpp"
#include "tests/calc_user/users_calc.hpp"

namespace qor::calc::tests {
namespace {

constexpr const char* nonsense = R"([Options]
chkT1AutoAdjWin=perhaps
chkT1AddFullFilePath=-1e400
chkT2AlternateTemplate=-1
txtT2AlternateTemplateFile=@TEMPLATE@
chkT2AlwaysCreateBackupUponSave=-1
txtT2AlwaysCreateBackupUponSave=/no/such/folder
chkT2DefaultSave=-1
txtT2DefaultSaveFolder=/no/such/folder either
chkT3SaveWorkbooksEvery=-1
txtT3SaveWorkbooksEvery=soon
chkT4UseCellEvents=-1
txtT4CellEventMinutes=99999999999999999999
T6BInsSinCol=blue
[TBReport]
Position=left
Top=1e9
Width=-40
Visible=perhaps
)";

void keep_nonsense(const UsersHome& home) {
    const auto no_template = home.path() / "none.xlt";
    std::ofstream(no_template, std::ios::binary) << "\x50\x4b\x03\x04 no workbook at all";
    std::string text = nonsense;
    const std::string mark = "@TEMPLATE@";
    text.replace(text.find(mark), mark.size(), no_template.native());
    std::ofstream(home.settings_file()) << text;
    std::filesystem::create_directories(home.data());
    std::ofstream(home.data() / "Bookmarks.dat") << std::string(100'000, '\xbf');
}

}  // namespace

TEST_CASE(
    "settings that are none, folders that are gone, a template that is none, an address that "
    "nothing opens: the user goes on working") {
    const UsersHome home;
    keep_nonsense(home);
    constexpr int failed_action = 4;
    home.note_opened_addresses(failed_action);
    UsersCalc calc(home);
    calc.keys({"alt+q", "u", "h"});  // the home page, for which there is no program that opens it
    CHECK(comes_to([&] { return home.opened_address() == to_utf8(product::home_page); }));
    CHECK_FALSE(calc.sees_window("QOR Plus$"));  // nothing is said
    calc.open_options();
    calc.keys({"ctrl+Page_Down", "ctrl+Page_Down"});
    calc.key("Escape");
    REQUIRE(calc.loses("QOR Plus: Options"));

    const auto toolbar = calc.toolbar_with(u"New File - Alternate Template");
    REQUIRE(toolbar);
    calc.click(*toolbar->middle_of(u"New File - Alternate Template"));
    REQUIRE(calc.shows("QOR Plus$"));  // a message that says why there is no new workbook
    calc.key("Escape");
    REQUIRE(calc.loses("QOR Plus$"));

    const auto before = std::filesystem::last_write_time(home.model());
    calc.type("1234");
    calc.keys({"Return", "ctrl+s"});
    REQUIRE(calc.shows("Confirm File Format"));
    calc.click({770, 507});  // the button that keeps it
    CHECK(comes_to([&] { return std::filesystem::last_write_time(home.model()) > before; }));
    calc.open_options();  // the host answers as before
    calc.key("Escape");
    CHECK(calc.loses("QOR Plus: Options"));
    CHECK(home.setting("txtT3SaveWorkbooksEvery") == "soon");
}

}  // namespace qor::calc::tests
