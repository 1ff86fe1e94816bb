#pragma once

#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "runtime/format.hpp"
#include "runtime/locale.hpp"
#include "tests/runtime/country.hpp"

namespace qor::test {

struct FormatRow {
    Variant value;
    std::u16string_view pattern;
    std::u16string_view text;
};

inline void check_formats(const std::vector<FormatRow>& rows) {
    for (const FormatRow& row : rows) {
        CAPTURE(std::string(row.pattern.begin(), row.pattern.end()));
        const std::u16string text = format(row.value, row.pattern);
        CAPTURE(std::string(text.begin(), text.end()));
        CHECK((text == row.text));
    }
}

inline constexpr Date afternoon{38061.545138888889};  // Monday, 15 March 2004, 1:05 PM
inline constexpr Date morning{38054.378483796296};    // Monday, 8 March 2004, 9:05:01 AM

}  // namespace qor::test
