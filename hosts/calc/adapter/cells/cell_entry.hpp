#pragma once

#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/number_kinds.hpp"

namespace qor::calc {

// How a value gets into a cell.
struct CellEntry {
    enum class Way : std::uint8_t {
        data,     // a number, a plain text or nothing: many cells at once
        formula,  // in Calc's notation
        typed,    // a text that may be a number, a date or the like, for the office to find out
    };

    Way way = Way::data;
    std::variant<std::monostate, double, std::u16string> content;
    NumberKind kind = NumberKind::plain;  // what a number has to look like
    bool seems_more = false;  // a text that seems a number or a formula: the office would make its cell one of text
};

// `days_to_null_date` are those from 30 December 1899. Raises 13 for a value that no cell can hold.
CellEntry entry_of(const Variant& value, const Sheet& sheet, double days_to_null_date);
// Into a cell whose format is that of text: numbers and formulas become texts too.
CellEntry entry_into_text(const Variant& value, const Sheet& sheet, double days_to_null_date);

}  // namespace qor::calc
