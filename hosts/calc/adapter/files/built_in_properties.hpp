#pragma once

#include <span>
#include <string_view>

#include "automation/host_numbers.hpp"
#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// One of the properties that every document has in Excel.
struct BuiltInProperty {
    std::u16string_view name;
    PropertyKind kind;
    Variant (*read)(const Book& book);                      // Empty when it was never set; null when Calc has no such
    void (*write)(const Book& book, const Variant& value);  // null when it cannot be written
};

// In Excel's order: the first has the index 1.
std::span<const BuiltInProperty> built_in_properties();

}  // namespace qor::calc
