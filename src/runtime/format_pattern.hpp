#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace qor {

// A character of a pattern. A literal one came out of quotes or from behind a backslash.
struct Symbol {
    char16_t character;
    bool is_literal;

    bool is(char16_t sign) const { return !is_literal && character == sign; }
};

using Symbols = std::span<const Symbol>;

std::vector<Symbol> parse_pattern(std::u16string_view pattern);

// The pattern begins with these letters, which are lower case, in either case.
bool starts_with(Symbols symbols, std::u16string_view letters);

// The parts between semicolons, at least one.
std::vector<Symbols> sections_of(Symbols symbols);

}  // namespace qor
