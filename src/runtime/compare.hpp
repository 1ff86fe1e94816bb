#pragma once

#include <compare>

#include "automation/variant.hpp"

namespace qor {

// The order of two host values that are both of changing kind: numbers (booleans and dates among them) by value, texts
// by their code units, any number before any text. Empty is 0 beside a number and the empty text beside a text.
// Unordered if a value is Null. Raises 13 for an error, an array or an argument left out, 91 and 438 for an object.
std::partial_ordering compare(const Variant& left, const Variant& right);

// False if a value is Null.
bool equals(const Variant& left, const Variant& right);

}  // namespace qor
