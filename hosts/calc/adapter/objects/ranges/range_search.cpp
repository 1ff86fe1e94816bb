#include <algorithm>
#include <array>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/FormulaResult.hpp>
#include <com/sun/star/util/XSearchable.hpp>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/ground/cell_query.hpp"
#include "hosts/calc/adapter/objects/ranges/range_object.hpp"
#include "hosts/calc/adapter/sheets/used_area.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

namespace kind = numbers::special_cells;
namespace values = numbers::special_values;
namespace flag = css::sheet::CellFlags;
namespace result = css::sheet::FormulaResult;

// Truth values are numbers to the office, constant errors are formulas.
sal_Int16 content_flags(std::int32_t value) {
    const sal_Int32 number_flags = value & (values::numbers | values::truths) ? flag::VALUE | flag::DATETIME : 0;
    return static_cast<sal_Int16>(number_flags | (value & values::texts ? flag::STRING : 0));
}
sal_Int32 result_flags(std::int32_t value) {
    return (value & (values::numbers | values::truths) ? result::VALUE : 0) |
           (value & values::texts ? result::STRING : 0) | (value & values::errors ? result::ERROR : 0);
}

struct Kind {
    std::int32_t excel;
    CellPlaces (*find)(const Cells& cells, std::int32_t value);
};
constexpr std::array kinds{
    Kind{kind::comments, [](const Cells& cells, std::int32_t) { return content_places(cells, flag::ANNOTATION); }},
    Kind{kind::constants,
         [](const Cells& cells, std::int32_t value) { return content_places(cells, content_flags(value)); }},
    Kind{kind::formulas,
         [](const Cells& cells, std::int32_t value) { return formula_places(cells, result_flags(value)); }},
    Kind{kind::blanks, [](const Cells& cells, std::int32_t) { return empty_places(cells); }},
    Kind{kind::visible, [](const Cells& cells, std::int32_t) { return visible_places(cells); }},
};

std::int16_t search_type(std::int32_t look_in) {
    if (look_in == numbers::look_in::values) return 1;
    return look_in == numbers::look_in::comments ? 2 : 0;
}

// Excel's sign before a wildcard that stands for itself is a tilde, the office's a backslash.
rtl::OUString pattern(std::u16string_view what) {
    std::u16string text;
    for (std::size_t i = 0; i < what.size(); ++i) {
        const bool escaped = what[i] == u'~' && i + 1 < what.size();
        if (escaped) ++i;
        if (what[i] == u'\\' || (escaped && (what[i] == u'*' || what[i] == u'?'))) text += u'\\';
        text += what[i];
    }
    return to_uno(text);
}

}  // namespace

// Within the used part of the sheet; one cell stands for all of it.
Object RangeObject::special_cells(std::int32_t type, std::optional<std::int32_t> value) {
    const Sheet& sheet = areas_.sheet;
    const Rectangle used = used_area(sheet);
    if (type == kind::last) return make_range(range_at(sheet, {used.right, used.bottom, used.right, used.bottom}));
    const auto* row = std::ranges::find(kinds, type, &Kind::excel);
    if (row == kinds.end()) throw Error(ErrorNumber::host_refused);
    const bool one_cell = areas_.areas.size() == 1 && areas_.rectangle().cells() == 1;
    RangeAreas found{sheet, {}, RangeUnit::cells};
    for (std::size_t i = 0; i < areas_.areas.size(); ++i) {
        const auto within = one_cell ? used : areas_.rectangle(i).common_with(used);
        if (!within) continue;
        for (const css::table::CellRangeAddress& at :
             row->find(cells_at(sheet, *within), value.value_or(values::any))) {
            found.areas.push_back(cells_at(sheet, {at.StartColumn, at.StartRow, at.EndColumn, at.EndRow}));
        }
    }
    if (found.areas.empty()) throw Error(ErrorNumber::host_refused, {}, u"No cells were found.");
    return make_range(std::move(found));
}

// Goes on behind the given cell, or in front of it, and from the other end when it finds none there.
Object RangeObject::find(const std::u16string& what, const Variant& after, std::optional<std::int32_t> look_in,
                         std::optional<std::int32_t> look_at, std::optional<std::int32_t> order,
                         std::optional<std::int32_t> direction, std::optional<bool> match_case) {
    const Ref<css::util::XSearchable> searchable(areas_.whole());
    const Ref settings{searchable->createSearchDescriptor()};
    settings->setSearchString(pattern(what));
    set_property(settings, "SearchBackwards", direction.value_or(0) == numbers::search_direction::previous);
    set_property(settings, "SearchByRow", order.value_or(0) != numbers::search_order::by_columns);
    set_property(settings, "SearchWildcard", true);
    set_property(settings, "SearchWords", look_at.value_or(0) == numbers::look_at::whole);
    set_property(settings, "SearchCaseSensitive", match_case.value_or(false));
    set_property(settings, "SearchFormatted", look_in.value_or(0) == numbers::look_in::values);
    set_property(settings, "SearchType", search_type(look_in.value_or(0)));
    const Rectangle corner = areas_.rectangle();
    const RangeAreas start = after.is_missing()
                                 ? range_at(areas_.sheet, {corner.left, corner.top, corner.left, corner.top})
                                 : areas_of(after);
    Ref<css::uno::XInterface> found{searchable->findNext(start.areas.front().reference(), settings.reference())};
    if (!found) found = Ref<css::uno::XInterface>(searchable->findFirst(settings.reference()));
    if (!found) return {};
    const Rectangle at = rectangle_of(Cells(found));
    return make_range(range_at(areas_.sheet, {at.left, at.top, at.left, at.top}));
}

}  // namespace qor::calc
