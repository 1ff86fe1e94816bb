#include "runtime/format_text.hpp"

#include <algorithm>

#include "platform/text.hpp"

namespace qor {
namespace {

bool is_place(const Symbol& symbol) {
    return symbol.is(u'@') || symbol.is(u'&');
}

std::u16string in_case_of(std::u16string_view text, Symbols section) {
    for (const Symbol& symbol : section) {
        if (symbol.is(u'<')) return to_lower(text);
        if (symbol.is(u'>')) return to_upper(text);
    }
    return std::u16string(text);
}

}  // namespace

std::u16string format_text(std::u16string_view text, Symbols pattern) {
    const std::vector<Symbols> sections = sections_of(pattern);
    const Symbols section = text.empty() && sections.size() > 1 ? sections[1] : sections[0];
    const std::u16string shown = in_case_of(text, section);
    const bool fills_from_left = std::ranges::any_of(section, [](const Symbol& symbol) { return symbol.is(u'!'); });
    const auto places = static_cast<std::size_t>(std::ranges::count_if(section, is_place));

    // The places that stay empty are the first ones, unless the text fills them from the left. What the places do not
    // hold stands before the first, or behind the last.
    const std::size_t empty_before = !fills_from_left && places > shown.size() ? places - shown.size() : 0;
    const std::size_t excess = shown.size() > places ? shown.size() - places : 0;
    std::u16string result;
    std::size_t place = 0;
    std::size_t taken = 0;
    for (const Symbol& symbol : section) {
        if (!is_place(symbol)) {
            if (!symbol.is(u'<') && !symbol.is(u'>') && !symbol.is(u'!')) result += symbol.character;
            continue;
        }
        if (place == 0 && !fills_from_left) {
            result.append(shown, 0, excess);
            taken = excess;
        }
        if (place >= empty_before && taken < shown.size()) {
            result += shown[taken++];
        } else if (symbol.is(u'@')) {
            result += u' ';
        }
        ++place;
    }
    return result.append(shown, taken);
}

}  // namespace qor
