#include "reports/cell_columns.hpp"

#include <algorithm>
#include <array>

#include "runtime/conversion.hpp"
#include "runtime/dates.hpp"
#include "runtime/value_tests.hpp"
#include "services/cell_address.hpp"

namespace qor {
namespace {

// The host takes the apostrophe for the mark of a text, and does not read what follows.
Variant as_text(std::u16string_view text) {
    return u"'" + std::u16string(text);
}

Variant cell_name(ReportedCell& cell) {
    const std::u16string* name = cell.sheet.name(cell.row, cell.column);
    return name ? Variant(*name) : Variant();
}

const Variant* number_format(ReportedCell& cell) {
    return cell.sheet.number_format(cell.row, cell.column);
}

Variant format_as_text(ReportedCell& cell) {
    const Variant* format = number_format(cell);
    return format ? as_text(to_text(*format)) : Variant();
}

const std::u16string* formula_text(ReportedCell& cell) {
    const auto* formula = cell.sheet.formula(cell.place).get_if<std::u16string>();
    return formula && formula->starts_with(u'=') ? formula : nullptr;
}

// Where a text was entered that looks like a formula, value and formula are the same. Only then the host is asked.
bool has_formula(ReportedCell& cell, const std::u16string& formula) {
    const auto* value = cell.value().get_if<std::u16string>();
    if (!value || *value != formula) return true;
    const Variant* answer = cell.sheet.has_formula(cell.row, cell.column);
    return answer && to_boolean(*answer);
}

Variant formula_with_braces_of_arrays(ReportedCell& cell) {
    const std::u16string* formula = formula_text(cell);
    if (!formula || !has_formula(cell, *formula)) return {};
    const Variant* in_array = cell.sheet.has_array(cell.row, cell.column);
    if (!in_array) return {};
    return to_boolean(*in_array) ? as_text(u"{" + *formula + u"}") : as_text(*formula);
}

Variant formula_as_it_begins(ReportedCell& cell) {
    const std::u16string* formula = formula_text(cell);
    return formula ? as_text(*formula) : Variant();
}

Variant comment(ReportedCell& cell) {
    const std::u16string* text = cell.sheet.comment(cell.row, cell.column);
    return text ? as_text(*text) : Variant();
}

// A day without its time of day; noon goes to the even day.
Variant serial_as_text(ReportedCell& cell) {
    if (!cell.value().is(Variant::Kind::date)) return 0;
    return as_text(to_text(to_long(cell.value())));
}

constexpr char16_t month[] = u"m";
constexpr char16_t day[] = u"d";
constexpr char16_t year[] = u"yyyy";

template <const char16_t* interval>
Variant part_of_date(ReportedCell& cell) {
    const auto* date = cell.value().get_if<Date>();
    return date ? date_part(interval, *date) : 0;
}

constexpr std::array shared_columns{
    CellColumn{u"WorkbookName", u"Workbook Name",
               [](ReportedCell& cell) -> Variant { return cell.sheet.workbook_name(); }},
    CellColumn{u"WorksheetName", u"Worksheet Name",
               [](ReportedCell& cell) -> Variant { return cell.sheet.sheet_name(); }},
    CellColumn{u"CellAddress", u"Cell Address",
               [](ReportedCell& cell) -> Variant { return relative_address(cell.row, cell.column); }},
    CellColumn{u"CellRow", u"Cell Row", [](ReportedCell& cell) -> Variant { return cell.row; }},
    CellColumn{u"CellColumn", u"Cell Column", [](ReportedCell& cell) -> Variant { return cell.column; }},
    CellColumn{u"CellName", u"Cell Name", cell_name},
    CellColumn{u"CellDataType", u"Cell Data Type",
               [](ReportedCell& cell) -> Variant { return type_name(cell.value()); }},
    CellColumn{u"CellDataFormat", u"Cell Data Format", format_as_text},
    CellColumn{u"CellFormatValue", u"Cell Format Value", [](ReportedCell& cell) -> Variant { return cell.value(); },
               number_format},
};

template <std::size_t size>
constexpr auto shared_and(const std::array<CellColumn, size>& own) {
    std::array<CellColumn, shared_columns.size() + size> all;
    std::ranges::copy(own, std::ranges::copy(shared_columns, all.begin()).out);
    return all;
}

constexpr auto cell_information = shared_and(std::array{
    CellColumn{u"CellFormula", u"Cell Formula", formula_with_braces_of_arrays},
    CellColumn{u"CellValue", u"Cell Value",
               [](ReportedCell& cell) -> Variant { return as_text(to_text(cell.value())); }},
    CellColumn{u"CellComments", u"Cell Comments", comment},
});

constexpr auto date_review = shared_and(std::array{
    CellColumn{u"CellFormula", u"Cell Formula", formula_as_it_begins},
    CellColumn{u"CellValue", u"Cell Value", serial_as_text},
    CellColumn{u"CellMonth", u"Cell Month", part_of_date<month>},
    CellColumn{u"CellDay", u"Cell Day", part_of_date<day>},
    CellColumn{u"CellYear", u"Cell Year", part_of_date<year>},
});

}  // namespace

std::span<const CellColumn> cell_information_columns() {
    return cell_information;
}

std::span<const CellColumn> date_review_columns() {
    return date_review;
}

}  // namespace qor
