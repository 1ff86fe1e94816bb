#pragma once

#include <optional>
#include <string>

#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/host.hpp"

namespace qor::calc {

// Excel's ConvertFormula: the styles and the kind are its numbers, `relative_to` a range or Missing for the active
// cell. Error value 2015 for text that cannot be a formula; raises 1004 for numbers that mean nothing.
Variant convert_formula(const HostPointer& host, const std::u16string& formula, std::int32_t from_style,
                        std::optional<std::int32_t> to_style, std::optional<std::int32_t> kind,
                        const Variant& relative_to);

}  // namespace qor::calc
