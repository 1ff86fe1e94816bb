#include "hosts/calc/formula/boolean_result.hpp"

#include <algorithm>
#include <array>

#include "hosts/calc/formula/scanner.hpp"

namespace qor::calc {
namespace {

constexpr auto tests = std::to_array<std::u16string_view>(
    {u"AND", u"EXACT", u"FALSE", u"ISBLANK", u"ISERR", u"ISERROR", u"ISEVEN", u"ISFORMULA", u"ISLOGICAL", u"ISNA",
     u"ISNONTEXT", u"ISNUMBER", u"ISODD", u"ISREF", u"ISTEXT", u"NOT", u"OR", u"TRUE", u"XOR"});

// What stands outside of all brackets.
struct Outline {
    bool compares = false;
    bool is_one_bracket = false;      // the whole is one pair of brackets, with or without a word in front
    std::u16string_view word;         // in front of that pair
    std::u16string_view in_brackets;  // between that pair
};

Outline outline_of(std::u16string_view formula) {
    Outline result;
    Scanner scanner(formula);
    result.word = scanner.take_word();
    const std::size_t opening = scanner.position();
    std::size_t closing = std::u16string_view::npos;
    for (int depth = 0; !scanner.at_end();) {
        if (scanner.copy_constant()) continue;
        if (scanner.here() == u'\'') {
            take_quoted(formula, scanner.position());
            continue;
        }
        const std::size_t at = scanner.position();
        const char16_t c = scanner.take();
        if (c == u'(' || c == u'{') ++depth;
        if (c == u')' || c == u'}') --depth;
        if (depth == 0 && (c == u'=' || c == u'<' || c == u'>')) result.compares = true;
        if (depth == 0 && c == u')' && closing == std::u16string_view::npos) closing = at;
    }
    result.is_one_bracket = opening < formula.size() && formula[opening] == u'(' && closing + 1 == formula.size();
    if (result.is_one_bracket) result.in_brackets = formula.substr(opening + 1, closing - opening - 1);
    return result;
}

}  // namespace

bool gives_boolean(std::u16string_view formula) {
    if (formula.starts_with(u'{') && formula.ends_with(u'}')) formula = formula.substr(1, formula.size() - 2);
    if (!formula.starts_with(u'=')) return false;
    for (formula.remove_prefix(1);;) {
        const Outline outline = outline_of(formula);
        if (outline.compares) return true;
        if (!outline.is_one_bracket) return false;
        if (!outline.word.empty()) return std::ranges::find(tests, outline.word) != tests.end();
        formula = outline.in_brackets;
    }
}

}  // namespace qor::calc
