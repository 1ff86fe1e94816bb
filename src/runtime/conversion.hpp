#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include "automation/variant.hpp"

namespace qor {

// Conversion of a host value into one kind, by the run time's rules. They raise 13 (no such value), 6 (out of range),
// 94 (Null), 449 (an argument that was left out), 91 (Nothing) and 438 (an object, which has no value of its own here).
// True counts as -1. Text is a number as parse_number reads it.
bool to_boolean(const Variant& value);          // "True" and "False" in any case, too
std::int16_t to_integer(const Variant& value);  // rounds half to even, as to_long does
std::int32_t to_long(const Variant& value);
float to_single(const Variant& value);
double to_double(const Variant& value);
Currency to_currency(const Variant& value);  // to ten-thousandths, half to even
Date to_date(const Variant& value);          // 1 January 100 to 31 December 9999; text as parse_date reads it, too

// Numbers in 15 significant digits (singles in 7), dates as "3/15/2004 1:05:00 PM" without a time that is midnight or a
// day that is 30 December 1899, both in the country's form; booleans as "True" and "False", errors as "Error 2007".
std::u16string to_text(const Variant& value);

Object to_object(const Variant& value);  // Nothing is an object; any other value that is none raises 424

// The conversion into a type of C++; a Variant is whatever comes.
template <class T>
T convert(const Variant& value) {
    if constexpr (std::is_same_v<T, Variant>) {
        return value;
    } else if constexpr (std::is_same_v<T, bool>) {
        return to_boolean(value);
    } else if constexpr (std::is_same_v<T, std::int16_t>) {
        return to_integer(value);
    } else if constexpr (std::is_same_v<T, std::int32_t>) {
        return to_long(value);
    } else if constexpr (std::is_same_v<T, float>) {
        return to_single(value);
    } else if constexpr (std::is_same_v<T, double>) {
        return to_double(value);
    } else if constexpr (std::is_same_v<T, Currency>) {
        return to_currency(value);
    } else if constexpr (std::is_same_v<T, Date>) {
        return to_date(value);
    } else if constexpr (std::is_same_v<T, std::u16string>) {
        return to_text(value);
    } else {
        static_assert(std::is_same_v<T, Object>, "no conversion into this type");
        return to_object(value);
    }
}

}  // namespace qor
