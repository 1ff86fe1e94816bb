#include "hosts/calc/adapter/look/number_formats.hpp"

#include <algorithm>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>
#include <map>

#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/look/kept_row_heights.hpp"
#include "hosts/calc/adapter/look/scattered_formats.hpp"
#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

constexpr sal_Int32 general = 0;

const css::lang::Locale& english() {
    static const css::lang::Locale locale{"en", "US", {}};
    return locale;
}

Ref<css::util::XNumberFormats> formats_of(const Book& book) {
    return Ref<css::util::XNumberFormatsSupplier>(book.document)->getNumberFormats();
}

std::u16string_view code_of(NumberKind kind) {
    switch (kind) {
        case NumberKind::date:
            return u"m/d/yyyy";
        case NumberKind::currency:
            return u"$#,##0.00";
        case NumberKind::boolean:
            return u"BOOLEAN";
        case NumberKind::text:
            return u"@";
        case NumberKind::plain:
            break;
    }
    return u"General";
}

void apply_to_unformatted(const Sheet& sheet, const Cells& cells, NumberKind kind) {
    const std::int32_t key = number_format_key(sheet.book, code_of(kind));
    const Ref<css::container::XIndexAccess> looks(
        Ref{Ref<css::sheet::XUniqueCellFormatRangesSupplier>(cells)->getUniqueCellFormatRanges()});
    for (sal_Int32 i = 0, count = looks->getCount(); i < count; ++i) {
        const Ref<css::uno::XInterface> places(looks->getByIndex(i));
        if (is_general_format(get_property<sal_Int32>(places, "NumberFormat")))
            set_property(places, "NumberFormat", key);
    }
}

// A date and money leave alone what has a format already.
bool keeps_formats(NumberKind kind) {
    return kind == NumberKind::date || kind == NumberKind::currency;
}

void apply_where_unformatted(const Sheet& sheet, const Rectangle& run, NumberKind kind) {
    const Cells cells = cells_at(sheet, run);
    const auto state = Ref<css::beans::XPropertyState>(cells)->getPropertyState("NumberFormat");
    if (state == css::beans::PropertyState_AMBIGUOUS_VALUE) return apply_to_unformatted(sheet, cells, kind);
    if (!is_general_format(get_property<sal_Int32>(cells, "NumberFormat"))) return;
    set_property(cells, "NumberFormat", number_format_key(sheet.book, code_of(kind)));
}

// In all runs of one kind at once.
void apply(const Sheet& sheet, const std::vector<KindRun>& changes, NumberKind kind) {
    std::vector<Rectangle> runs;
    for (const KindRun& change : changes) {
        if (change.kind == kind) runs.push_back(change.cells);
    }
    if (runs.empty()) return;
    const std::int32_t key = number_format_key(sheet.book, code_of(kind));
    const RangeAreas cells = ranges_at(sheet, runs);
    if (cells.areas.together()) return set_scattered_format(cells, key);
    set_property(cells.whole(), "NumberFormat", key);
}

// Which cells of the area, row by row, have a format of dates or money.
std::vector<bool> cells_with_kept_format(const Rectangle& area, const std::vector<KindOfCells>& before) {
    std::vector<bool> result(static_cast<std::size_t>(area.cells()));
    for (const KindOfCells& cells : before) {
        if (!keeps_formats(cells.kind)) continue;
        for (const css::table::CellRangeAddress& at : cells.places) {
            for (std::int32_t row = at.StartRow; row <= at.EndRow; ++row) {
                const auto start = result.begin() + std::int64_t{row - area.top} * area.width() - area.left;
                std::fill(start + at.StartColumn, start + at.EndColumn + 1, true);
            }
        }
    }
    return result;
}

// "[RED]" as "[Red]", "[COLOR10]" as "[Color10]" and "[HH]" as "[hh]"; conditions stay as they are.
std::u16string bracket_of_excel(std::u16string_view part) {
    const std::u16string_view word = part.substr(1, part.size() - 2);
    const bool is_word = std::ranges::all_of(word, [](char16_t c) { return is_letter(c) || is_digit(c); });
    if (!is_word || word.empty() || !is_letter(word.front())) return std::u16string(part);
    constexpr std::u16string_view time_letters = u"HMS";
    const bool is_time = word.find_first_not_of(time_letters) == std::u16string_view::npos;
    return is_time ? to_lower(part) : std::u16string(part.substr(0, 2)) + to_lower(part.substr(2));
}

// Date letters come in capitals, colours too, and Booleans have a format of their own.
std::u16string in_notation_of_excel(std::u16string_view code) {
    if (code == u"BOOLEAN") return u"General";
    std::u16string result;
    for (std::size_t i = 0; i < code.size();) {
        const char16_t c = code[i];
        if (const std::size_t dollar = masked_dollar(code.substr(i))) {
            result += u'$';
            i += dollar;
        } else if (c == u'"') {
            const std::size_t start = i;
            take_quoted(code, i);
            result += code.substr(start, i - start);
        } else if (c == u'[') {
            const std::size_t end = std::min(code.find(u']', i), code.size() - 1) + 1;
            result += bracket_of_excel(code.substr(i, end - i));
            i = end;
        } else if (code.substr(i).starts_with(u"AM/PM") || code.substr(i).starts_with(u"General")) {
            const std::size_t length = c == u'A' ? 5 : 7;
            result += code.substr(i, length);
            i += length;
        } else if (c == u'\\' && i + 1 < code.size()) {
            result += code.substr(i, 2);
            i += 2;
        } else {
            const bool date_letter = c != u'E' && is_letter(c);
            result += date_letter ? static_cast<char16_t>(c | 0x20) : c;
            ++i;
        }
    }
    return result;
}

}  // namespace

std::int32_t number_format_key(const Book& book, std::u16string_view code) {
    if (code == u"General") return general;
    const auto formats = formats_of(book);
    const sal_Int32 known = formats->queryKey(to_uno(code), english(), false);
    return known >= 0 ? known : formats->addNew(to_uno(code), english());
}

std::u16string number_format_code(const Book& book, std::int32_t key) {
    if (is_general_format(key)) return u"General";
    const Ref format{formats_of(book)->getByKey(key)};
    const auto code = get_property<rtl::OUString>(format, "FormatString");
    return in_notation_of_excel(view_of(code));
}

void write_number_formats(const RangeAreas& areas, const Array& codes) {
    std::map<std::u16string, std::vector<Rectangle>> places;
    for (std::size_t i = 0; i < areas.areas.size(); ++i) {
        const Rectangle area = areas.rectangle(i);
        const auto size = [](std::size_t given, std::int32_t wanted) {
            return given == 1 ? wanted : std::min(wanted, static_cast<std::int32_t>(given));
        };
        for (std::int32_t column = 0; column < size(codes.columns(), area.width()); ++column) {
            for (std::int32_t row = 0; row < size(codes.rows(), area.height()); ++row) {
                const std::size_t from_row = codes.rows() == 1 ? 0 : static_cast<std::size_t>(row);
                const std::size_t from_column = codes.columns() == 1 ? 0 : static_cast<std::size_t>(column);
                std::vector<Rectangle>& runs = places[to_text(codes.at(from_row, from_column))];
                const Rectangle cell{area.left + column, area.top + row, area.left + column, area.top + row};
                const bool below = !runs.empty() && runs.back().left == cell.left && runs.back().bottom + 1 == cell.top;
                if (!below) runs.push_back(cell);
                runs.back().bottom = cell.bottom;
            }
        }
    }
    std::vector<std::pair<std::int32_t, RangeAreas>> changes;
    for (const auto& [code, runs] : places) {
        changes.emplace_back(number_format_key(areas.sheet.book, code), ranges_at(areas.sheet, runs));
    }
    before_formatting(areas);
    for (const auto& [key, cells] : changes) {
        cells.areas.together() ? set_scattered_format(cells, key) : set_property(cells.whole(), "NumberFormat", key);
    }
}

std::vector<KindRun> number_kind_changes(const Rectangle& area, const std::vector<KindOfCells>& before,
                                         const std::vector<NumberKind>& kinds) {
    std::vector<KindRun> changes;
    for (const KindOfCells& cells : before) {
        if (cells.kind != NumberKind::boolean) continue;
        for (const css::table::CellRangeAddress& at : cells.places) {
            changes.push_back({{at.StartColumn, at.StartRow, at.EndColumn, at.EndRow}, NumberKind::plain});
        }
    }
    if (std::ranges::all_of(kinds, [](NumberKind kind) { return kind == NumberKind::plain; })) return changes;
    const std::vector<bool> kept = cells_with_kept_format(area, before);
    const auto width = static_cast<std::size_t>(area.width());
    for (std::size_t column = 0; column < width; ++column) {
        const auto kind_at = [&](std::size_t row) {
            const std::size_t place = row * width + column;
            return keeps_formats(kinds[place]) && kept[place] ? NumberKind::plain : kinds[place];
        };
        for (std::size_t row = 0, count = kinds.size() / width; row < count;) {
            const NumberKind kind = kind_at(row);
            std::size_t end = row + 1;
            while (end < count && kind_at(end) == kind) ++end;
            const auto left = area.left + static_cast<std::int32_t>(column);
            const auto top = area.top + static_cast<std::int32_t>(row);
            const auto bottom = area.top + static_cast<std::int32_t>(end) - 1;
            if (kind != NumberKind::plain) changes.push_back({{left, top, left, bottom}, kind});
            row = end;
        }
    }
    return changes;
}

void apply_number_kinds(const Sheet& sheet, const std::vector<KindRun>& changes) {
    if (changes.empty()) return;
    const KeptRowHeights heights(sheet.book.document);
    for (const NumberKind kind : {NumberKind::plain, NumberKind::boolean}) apply(sheet, changes, kind);
    for (const KindRun& change : changes) {
        if (keeps_formats(change.kind)) apply_where_unformatted(sheet, change.cells, change.kind);
    }
}

}  // namespace qor::calc
