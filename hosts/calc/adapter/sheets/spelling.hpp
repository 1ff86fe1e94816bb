#pragma once

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// Whether the word is in the dictionary of the workbook's language. Raises 1004 when there is no dictionary for it.
bool is_spelled_right(const Book& book, std::u16string_view word);

// Whether all words in the texts of the cells are spelled right. Where they are not and the office has a screen, its
// spelling dialog is opened on the sheet.
bool check_spelling(const RangeAreas& areas);

}  // namespace qor::calc
