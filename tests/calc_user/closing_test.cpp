#include <doctest/doctest.h>

#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCellRange.hpp>

#include "tests/calc_user/users_calc.hpp"

namespace qor::calc::tests {
namespace {

double value_of_first_cell(const UsersCalc& calc) {
    const Ref document{css::frame::Desktop::create(calc.context())->getCurrentComponent()};
    const Ref<css::container::XIndexAccess> sheets(Ref{Ref<css::sheet::XSpreadsheetDocument>(document)->getSheets()});
    const Ref<css::table::XCellRange> sheet(sheets->getByIndex(0));
    return sheet->getCellByPosition(0, 0)->getValue();
}

}  // namespace

TEST_CASE("closing Calc's window while a dialog is open closes the dialog; then Calc asks to save") {
    const UsersHome home;
    UsersCalc calc(home);
    calc.type("1234");
    calc.key("Return");
    REQUIRE(comes_to([&] { return value_of_first_cell(calc) == 1234; }));
    calc.open_options();
    calc.keys({"Tab", "space"});
    calc.close_window();
    CHECK(calc.loses("QOR Plus: Options"));
    REQUIRE(calc.shows("Save Document"));
    CHECK(home.setting("chkT1AutoAdjWin") == "none");
    calc.key("Escape");
    REQUIRE(calc.loses("Save Document"));
    CHECK(value_of_first_cell(calc) == 1234);

    calc.open_options();  // all is usable again
    calc.key("Escape");
    CHECK(calc.loses("QOR Plus: Options"));
    calc.close_window();
    REQUIRE(calc.shows("Save Document"));
    calc.key("alt+n");
    CHECK(calc.ends());
    CHECK(home.setting("Visible") == "True");
}

TEST_CASE("a request to end while a dialog is open closes the dialog, and then Calc ends") {
    const UsersHome home;
    UsersCalc calc(home);
    calc.open_options();
    CHECK_FALSE(css::frame::Desktop::create(calc.context())->terminate());
    CHECK(calc.ends());
    CHECK(home.setting("Visible") == "True");
    CHECK(home.setting("chkT1AutoAdjWin") == "none");
}

}  // namespace qor::calc::tests
