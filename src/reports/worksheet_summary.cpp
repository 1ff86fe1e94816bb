#include "reports/worksheet_summary.hpp"

#include <algorithm>
#include <array>

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"
#include "runtime/rounding.hpp"

namespace qor {
namespace {

// A number or a truth value is a used cell, whatever it is. So is an error value: it can't be compared with a text,
// but something stands there; and where no formula made it, somebody typed it in.
bool is_used(const Variant& value) {
    const auto* text = value.get_if<std::u16string>();
    return text ? !text->empty() : !value.is_empty();
}

bool is_formula(const Variant& formula) {
    const auto* text = formula.get_if<std::u16string>();
    return text && text->starts_with(u'=');
}

// A range's property as an array; the host answers a single cell's as the value itself.
const Array& read_cells(Variant& kept, const Object& range, const MemberName& property) {
    if (!kept.array()) {
        Variant answer = range.get(property);
        kept = answer.array() ? std::move(answer) : Variant(Array::list({std::move(answer)}));
    }
    return *kept.array();
}

Variant ratio_of_inputs_to_formulas(SummarizedSheet& sheet) {
    // The Application has no such property, so the report's cell keeps its General format. The attempt stays, in case
    // a host has it.
    attempt([] { gExcel.put(names::NumberFormat, u"0.0000"); });
    const std::int32_t inputs = sheet.data_inputs();
    const std::int32_t formulas = sheet.formulas();
    if (formulas < 1) return 0;
    return round_half_even(static_cast<double>(inputs) / formulas, 6);
}

template <const MemberName& property>
Variant sheet_property(SummarizedSheet& sheet) {
    return sheet.sheet().get(property);
}

template <const MemberName& collection>
Variant count_of(SummarizedSheet& sheet) {
    return sheet.sheet().get(collection).get(names::Count);
}

constexpr std::array<WorksheetSummaryColumn, 12> columns{{
    {u"WorkbookName", u"Workbook Name", [](SummarizedSheet& sheet) -> Variant { return sheet.workbook_name(); }},
    {u"WorksheetName", u"Worksheet Name", [](SummarizedSheet& sheet) -> Variant { return sheet.sheet_name(); }},
    {u"ProtectedContents", u"Protected Contents", sheet_property<names::ProtectContents>},
    {u"ProtectedDrawingObjects", u"Protected Drawing Objects", sheet_property<names::ProtectDrawingObjects>},
    {u"ProtectedScenarios", u"Protected Scenarios", sheet_property<names::ProtectScenarios>},
    {u"Hidden", u"Hidden",
     [](SummarizedSheet& sheet) -> Variant {
         return to_long(sheet.sheet().get(names::Visible)) != numbers::visibility::visible;
     }},
    {u"NumberofUsedCells", u"Number of Used Cells",
     [](SummarizedSheet& sheet) -> Variant { return sheet.used_cells(); }},
    {u"NumberofDataInputs", u"Number of Data Inputs",
     [](SummarizedSheet& sheet) -> Variant { return sheet.data_inputs(); }},
    {u"NumberofFormulas", u"Number of Formulas", [](SummarizedSheet& sheet) -> Variant { return sheet.formulas(); }},
    {u"RatioInputToFormulas", u"Ratio of Data Input to Formulas", ratio_of_inputs_to_formulas},
    {u"NumberOfComments", u"Number of Comments", count_of<names::Comments>},
    {u"NumberOfHyperlinks", u"Number of Hyperlinks", count_of<names::Hyperlinks>},
}};

}  // namespace

std::span<const WorksheetSummaryColumn> worksheet_summary_columns() {
    return columns;
}

const Object& SummarizedSheet::sheet() {
    if (!sheet_) sheet_ = gExcel.get(names::Workbooks, workbook_name_).get(names::Worksheets, sheet_name_);
    return sheet_;
}

const Object& SummarizedSheet::used_range() {
    if (!used_range_) used_range_ = sheet().get(names::UsedRange);
    return used_range_;
}

const Array& SummarizedSheet::values() {
    return read_cells(values_, used_range(), names::Value);
}

const Array& SummarizedSheet::formula_texts() {
    return read_cells(formula_texts_, used_range(), names::Formula);
}

std::int32_t SummarizedSheet::used_cells() {
    return static_cast<std::int32_t>(std::ranges::count_if(values(), is_used));
}

std::int32_t SummarizedSheet::data_inputs() {
    const Array& formulas = formula_texts();
    const Array& cell_values = values();
    std::int32_t count = 0;
    for (std::size_t place = 0; place < std::min(formulas.size(), cell_values.size()); ++place) {
        if (!is_formula(formulas.at(place)) && is_used(cell_values.at(place))) ++count;
    }
    return count;
}

std::int32_t SummarizedSheet::formulas() {
    return static_cast<std::int32_t>(std::ranges::count_if(formula_texts(), is_formula));
}

}  // namespace qor
