#include "runtime/format_pattern.hpp"

#include <algorithm>

namespace qor {
namespace {

constexpr char16_t lower(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c - u'A' + u'a') : c;
}

}  // namespace

std::vector<Symbol> parse_pattern(std::u16string_view pattern) {
    std::vector<Symbol> symbols;
    symbols.reserve(pattern.size());
    bool is_quoted = false;
    for (std::size_t place = 0; place < pattern.size(); ++place) {
        const char16_t c = pattern[place];
        if (c == u'"') {
            is_quoted = !is_quoted;
        } else if (c == u'\\' && !is_quoted && place + 1 < pattern.size()) {
            symbols.push_back({pattern[++place], true});
        } else {
            symbols.push_back({c, is_quoted});
        }
    }
    return symbols;
}

bool starts_with(Symbols symbols, std::u16string_view letters) {
    return symbols.size() >= letters.size() &&
           std::ranges::equal(symbols.first(letters.size()), letters, [](const Symbol& symbol, char16_t letter) {
               return !symbol.is_literal && lower(symbol.character) == letter;
           });
}

std::vector<Symbols> sections_of(Symbols symbols) {
    std::vector<Symbols> sections;
    for (;;) {
        const auto end = std::ranges::find_if(symbols, [](const Symbol& symbol) { return symbol.is(u';'); });
        const auto size = static_cast<std::size_t>(end - symbols.begin());
        sections.push_back(symbols.first(size));
        if (size == symbols.size()) return sections;
        symbols = symbols.subspan(size + 1);
    }
}

}  // namespace qor
