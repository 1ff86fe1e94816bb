#include <doctest/doctest.h>

#include <cstdlib>
#include <fstream>

#include "tests/calc_user/users_calc.hpp"

namespace qor::calc::tests {
namespace {

css::awt::Point middle_of(const UsersCalc& calc, std::u16string_view button) {
    const auto toolbar = calc.toolbar_with(button);
    REQUIRE(toolbar);
    const auto place = toolbar->middle_of(button);
    REQUIRE(place);
    return *place;
}

// What Calc would go on knowing of the add-in's toolbars without it: entries that are not struck out.
std::vector<std::string> kept_toolbars(const UsersHome& home) {
    std::vector<std::string> kept;
    std::ifstream lines(home.registry());
    for (std::string line; std::getline(lines, line);) {
        if (line.find("custom_qorplus") != line.npos && line.find("oor:op=\"remove\"") == line.npos)
            kept.push_back(line);
    }
    return kept;
}

}  // namespace

TEST_CASE(
    "a button opens its dialog, and a toolbar that was moved stands there again when Calc is started again; "
    "Calc keeps nothing of it") {
    const UsersHome home;
    css::awt::Point before;
    css::awt::Point moved;
    {
        UsersCalc calc(home);
        calc.take_picture("calc-toolbars");
        calc.click(middle_of(calc, u"Worksheet Summary"));
        CHECK(calc.shows("QOR Plus: Worksheet Summary"));
        calc.key("Escape");
        CHECK(calc.loses("QOR Plus: Worksheet Summary"));

        before = middle_of(calc, u"Save All");
        constexpr int title_above = 30;  // of the buttons' middle, pixels
        const css::awt::Point title{before.X - 80, before.Y - title_above};
        calc.drag(title, {title.X + 400, title.Y + 300});
        moved = middle_of(calc, u"Save All");
        // The window manager follows a hand as quick as this one only a part of the way.
        CHECK(moved.X >= before.X + 30);
        CHECK(moved.Y >= before.Y + 20);
        calc.close_window();
        REQUIRE(calc.ends());
    }
    CHECK(home.setting("Position") == "4");
    UsersCalc again(home);
    const css::awt::Point place = middle_of(again, u"Save All");
    CHECK(std::abs(place.X - moved.X) <= 3);
    CHECK(std::abs(place.Y - moved.Y) <= 3);
    again.close_window();
    CHECK(again.ends());
    CHECK(kept_toolbars(home).empty());
}

}  // namespace qor::calc::tests
