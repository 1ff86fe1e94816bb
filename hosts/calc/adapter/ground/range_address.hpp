#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// How Excel is asked to write the place of a range.
struct AddressStyle {
    bool row_fixed = true;
    bool column_fixed = true;
    bool r1c1 = false;
    bool external = false;  // with workbook and sheet in front
    Rectangle base = {};    // the cell that relative references in R1C1 style are counted from
};

// All areas, separated by commas: $A$1:$B$2,$D$4 or R1C1:R2C2,R4C4.
std::u16string address_of(const RangeAreas& areas, const AddressStyle& style);

// As a formula refers to it, each area with its sheet: 'Sheet 1'!$A$1,'Sheet 1'!$C$1.
std::u16string reference_to(const RangeAreas& areas);

// Where a range lies, for messages: [Book.xlsx]Sheet1!$A$1. Workbook and sheet come once.
std::u16string place_of(const RangeAreas& areas);

}  // namespace qor::calc
