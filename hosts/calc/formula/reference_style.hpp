#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "hosts/calc/formula/row_column.hpp"

namespace qor::calc {

// The numbers are Excel's.
enum class ReferenceStyle : std::int32_t { letters = 1, row_column = -4150 };
enum class ReferenceKind : std::int32_t { absolute = 1, absolute_row = 2, absolute_column = 3, relative = 4 };

struct ReferenceConversion {
    ReferenceStyle from = ReferenceStyle::letters;
    ReferenceStyle to = ReferenceStyle::letters;
    std::optional<ReferenceKind> kind{};  // what all references become; without it each stays what it is
    CellPlace base{};                     // what relative references by number are counted from
};

// A formula in Excel's notation with its references in another style or of another kind. All else stays as it is
// written. None when its brackets or quotes are not closed.
std::optional<std::u16string> convert_references(std::u16string_view formula, const ReferenceConversion& conversion);

}  // namespace qor::calc
