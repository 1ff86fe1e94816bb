#include "hosts/calc/adapter/ground/range_areas.hpp"

#include <algorithm>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeReferrer.hpp>
#include <optional>
#include <span>

#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/service.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

// Splits at commas that stand outside of quotes.
std::vector<std::u16string_view> split_areas(std::u16string_view text) {
    std::vector<std::u16string_view> parts;
    std::size_t start = 0;
    bool inside_quotes = false;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        if (i < text.size() && text[i] == u'\'') inside_quotes = !inside_quotes;
        if (i < text.size() && (text[i] != u',' || inside_quotes)) continue;
        parts.push_back(text.substr(start, i - start));
        start = i + 1;
    }
    return parts;
}

Rectangle rectangle_between(const CornerPair& pair, const Rectangle& origin) {
    const auto ends = [](std::int32_t a, std::int32_t b, std::int32_t offset, std::int32_t limit) {
        if (a < 0) return std::pair{0, limit - 1};
        return std::pair{std::min(a, b) + offset, std::max(a, b) + offset};
    };
    const auto [left, right] = ends(pair.first.column, pair.last.column, origin.left, column_limit);
    const auto [top, bottom] = ends(pair.first.row, pair.last.row, origin.top, row_limit);
    return {left, top, right, bottom};
}

std::optional<RangeAreas> range_of_name(const Sheet& sheet, std::u16string_view name) {
    for (const auto& defined : {get_property<Ref<css::container::XNameAccess>>(sheet.sheet, "NamedRanges"),
                                get_property<Ref<css::container::XNameAccess>>(sheet.book.document, "NamedRanges")}) {
        for (const rtl::OUString& candidate : defined->getElementNames()) {
            if (!equal_ignoring_case(view_of(candidate), name)) continue;
            const Ref<css::sheet::XCellRangeReferrer> referrer(defined->getByName(candidate));
            const Ref cells{referrer->getReferredCells()};
            const auto address = Ref<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress();
            const Sheet target = sheet.book.sheets().at(static_cast<std::size_t>(address.Sheet));
            return RangeAreas{target, {cells}};
        }
    }
    return {};
}

[[noreturn]] void refuse_text() {
    throw Error(ErrorNumber::host_refused, {}, u"Method 'Range' of object '_Global' failed");
}

// The sheet in front of the exclamation mark, with or without a workbook in brackets. Raises 9 when there is none.
Sheet sheet_of_prefix(const Sheet& sheet, std::u16string_view prefix) {
    std::u16string place(prefix);
    std::size_t position = 0;
    if (prefix.starts_with(u'\'')) place = take_quoted(prefix, position);
    const std::size_t close = place.find(u']');
    if (!place.starts_with(u'[') || close == std::u16string::npos) return sheet.book.sheet(place);
    return book_named(sheet.book.host, place.substr(1, close - 1)).sheet(place.substr(close + 1));
}

std::u16string_view without_blanks(std::u16string_view text) {
    while (text.starts_with(u' ')) text.remove_prefix(1);
    while (text.ends_with(u' ')) text.remove_suffix(1);
    return text;
}

RangeAreas one_area(const Sheet& default_sheet, std::u16string_view text, const Rectangle& origin) {
    text = without_blanks(text);
    Sheet sheet = default_sheet;
    Rectangle offset = origin;
    if (const std::size_t mark = text.rfind(u'!'); mark != std::u16string_view::npos) {
        if (attempt([&] { sheet = sheet_of_prefix(default_sheet, text.substr(0, mark)); }) != 0) refuse_text();
        text = text.substr(mark + 1);
        offset = {};
    }
    if (const auto pair = parse_range(text)) return range_at(sheet, rectangle_between(*pair, offset));
    if (auto found = range_of_name(sheet, text)) return *std::move(found);
    refuse_text();
}

// Areas that all name cells of this sheet by their places; nothing where one of them does not.
std::optional<RangeAreas> areas_by_place(const Sheet& sheet, const std::vector<std::u16string_view>& parts,
                                         const Rectangle& origin) {
    std::vector<Rectangle> areas;
    for (const std::u16string_view part : parts) {
        const auto pair = parse_range(without_blanks(part));
        if (!pair) return {};
        areas.push_back(rectangle_between(*pair, origin));
    }
    return ranges_at(sheet, areas);
}

}  // namespace

void AreaList::push_back(Cells area) {
    each();
    together_ = {};
    areas_.push_back(std::move(area));
}

const std::vector<Cells>& AreaList::each() const {
    while (together_ && areas_.size() < size_together_) {
        areas_.emplace_back(together_->getByIndex(static_cast<sal_Int32>(areas_.size())));
    }
    return areas_;
}

bool Rectangle::within_sheet() const {
    return left >= 0 && top >= 0 && left <= right && top <= bottom && right < column_limit && bottom < row_limit;
}

bool Rectangle::contains(const Rectangle& other) const {
    return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
}

std::optional<Rectangle> Rectangle::common_with(const Rectangle& other) const {
    const Rectangle common{std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                           std::min(bottom, other.bottom)};
    return common.left <= common.right && common.top <= common.bottom ? std::optional(common) : std::nullopt;
}

Rectangle rectangle_of(const Cells& cells) {
    const auto address = Ref<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress();
    return {address.StartColumn, address.StartRow, address.EndColumn, address.EndRow};
}

Rectangle RangeAreas::rectangle(std::size_t area) const {
    return rectangle_of(areas[area]);
}

Ref<css::uno::XInterface> RangeAreas::whole() const {
    if (areas.together()) return Ref<css::uno::XInterface>(areas.together());
    if (areas.size() == 1) return Ref<css::uno::XInterface>(areas.front());
    auto all =
        create_in<css::sheet::XSheetCellRangeContainer>(sheet.book.document, "com.sun.star.sheet.SheetCellRanges");
    for (const Cells& area : areas) {
        all->addRangeAddress(Ref<css::sheet::XCellRangeAddressable>(area)->getRangeAddress(), false);
    }
    return Ref<css::uno::XInterface>(all);
}

Cells cells_at(const Sheet& sheet, const Rectangle& rectangle) {
    if (!rectangle.within_sheet()) throw Error(ErrorNumber::host_refused);
    return sheet.cells(rectangle.left, rectangle.top, rectangle.right, rectangle.bottom);
}

RangeAreas range_at(const Sheet& sheet, const Rectangle& rectangle, RangeUnit unit) {
    return {sheet, {cells_at(sheet, rectangle)}, unit};
}

RangeAreas ranges_at(const Sheet& sheet, const std::vector<Rectangle>& rectangles) {
    if (rectangles.size() == 1) return range_at(sheet, rectangles.front());
    if (!std::ranges::all_of(rectangles, &Rectangle::within_sheet)) throw Error(ErrorNumber::host_refused);
    std::vector<css::table::CellRangeAddress> addresses;
    const auto index = static_cast<sal_Int16>(sheet.index());
    for (const Rectangle& area : rectangles)
        addresses.emplace_back(index, area.left, area.top, area.right, area.bottom);
    const auto all = ranges_in(sheet.book.document, {addresses.data(), static_cast<sal_Int32>(addresses.size())});
    return {sheet, {Ref<css::container::XIndexAccess>(all), rectangles.size()}};
}

Ref<css::sheet::XSheetCellRangeContainer> ranges_in(const Document& document,
                                                    const css::uno::Sequence<css::table::CellRangeAddress>& places) {
    auto all = create_in<css::sheet::XSheetCellRangeContainer>(document, "com.sun.star.sheet.SheetCellRanges");
    all->addRangeAddresses(places, false);
    return all;
}

RangeAreas whole_strips(const RangeAreas& areas, RangeUnit unit) {
    RangeAreas result{areas.sheet, {}, unit};
    for (std::size_t i = 0; i < areas.areas.size(); ++i) {
        const Rectangle area = areas.rectangle(i);
        result.areas.push_back(cells_at(areas.sheet, unit == RangeUnit::rows
                                                         ? Rectangle{0, area.top, column_limit - 1, area.bottom}
                                                         : Rectangle{area.left, 0, area.right, row_limit - 1}));
    }
    return result;
}

RangeAreas range_named(const Sheet& sheet, std::u16string_view text, const Rectangle& origin) {
    const std::vector<std::u16string_view> parts = split_areas(text);
    if (parts.size() > 1) {
        if (auto areas = areas_by_place(sheet, parts, origin)) return *std::move(areas);
    }
    RangeAreas result = one_area(sheet, parts.front(), origin);
    for (const std::u16string_view part : std::span(parts).subspan(1)) {
        for (const Cells& area : one_area(sheet, part, origin).areas) result.areas.push_back(area);
    }
    return result;
}

std::u16string address_text(const Rectangle& rectangle, bool row_fixed, bool column_fixed) {
    const Corner first{rectangle.left, rectangle.top, column_fixed, row_fixed};
    const Corner last{rectangle.right, rectangle.bottom, column_fixed, row_fixed};
    return rectangle.cells() == 1 ? corner_text(first) : range_text(first, last);
}

}  // namespace qor::calc
