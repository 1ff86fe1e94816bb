#include <doctest/doctest.h>

#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>

#include "platform/text.hpp"
#include "stores/data_file.hpp"
#include "tests/calc_user/users_calc.hpp"

namespace qor::calc::tests {
namespace {

// The sheet and the corners of what is selected, counted from 0: such as u"Inputs 1 2 3 4".
std::string selection(const UsersCalc& calc) {
    const Ref document{css::frame::Desktop::create(calc.context())->getCurrentComponent()};
    const Ref selected{Ref<css::frame::XModel>(document)->getCurrentSelection()};
    const Ref<css::sheet::XSheetCellRange> range(selected);
    if (!range) return {};
    const auto place = Ref<css::sheet::XCellRangeAddressable>(range)->getRangeAddress();
    const Ref<css::container::XNamed> sheet(Ref{range->getSpreadsheet()});
    std::string text = to_utf8(view_of(sheet->getName()));
    for (const sal_Int32 corner : {place.StartColumn, place.StartRow, place.EndColumn, place.EndRow})
        text += ' ' + std::to_string(corner);
    return text;
}

void keep_bookmarks(const UsersHome& home, std::int32_t count) {
    std::filesystem::create_directories(home.data());
    PropertyBag bag;
    bag.write(u"NumberOfItems", count, 0);
    for (std::int32_t place = 1; place <= count; ++place) {
        const std::u16string number = from_utf8(std::to_string(place));
        bag.write(number + u"Bookmark", u"Bookmark " + number);
        bag.write(number + u"Workbook", u"model.xlsx");
        bag.write(number + u"WorkbookFullPath", from_utf8(home.model().native()));
        bag.write(number + u"Worksheet", place == 1 ? u"Sales" : u"Inputs");
        bag.write(number + u"Range", place == 1 ? u"A1" : u"B3:C5");
    }
    REQUIRE(save_data_file(from_utf8((home.data() / "Bookmarks.dat").native()), bag));
}

void choose_second(const UsersCalc& calc) {
    const auto place = calc.toolbar_with(u"Set Scroll Area")->middle_of_list();
    REQUIRE(place);
    calc.click(*place);
    calc.take_picture("calc-bookmarks");
    constexpr int second_line = 37;  // pixels below the list's middle
    calc.click({place->X, place->Y + second_line});
}

}  // namespace

TEST_CASE("a bookmark chosen from the list on the toolbar is jumped to, and again when it is chosen again") {
    const UsersHome home;
    std::int32_t count = 2;
    SUBCASE("of two") {}
    SUBCASE("of ten thousand") {
        count = 10'000;
    }
    keep_bookmarks(home, count);
    UsersCalc calc(home);
    CHECK(selection(calc) == "Cover 0 0 0 0");
    choose_second(calc);
    CHECK(comes_to([&] { return selection(calc) == "Inputs 1 2 2 4"; }));
    calc.key("ctrl+Home");
    CHECK(comes_to([&] { return selection(calc) == "Inputs 0 0 0 0"; }));
    choose_second(calc);
    CHECK(comes_to([&] { return selection(calc) == "Inputs 1 2 2 4"; }));
    calc.close_window();
    CHECK(calc.ends());
}

}  // namespace qor::calc::tests
