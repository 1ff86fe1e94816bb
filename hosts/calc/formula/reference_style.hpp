#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "automation/host_numbers.hpp"
#include "hosts/calc/formula/row_column.hpp"

namespace qor::calc {

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
