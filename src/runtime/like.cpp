#include "runtime/like.hpp"

#include <algorithm>
#include <vector>

#include "automation/error.hpp"
#include "runtime/text_reader.hpp"

namespace qor {
namespace {

// What one code unit of the text is compared with; a run takes any number of them.
struct Element {
    enum class Kind : std::uint8_t { unit, any, digit, set, run };
    struct Range {
        char16_t first;
        char16_t last;
    };

    bool matches(char16_t unit) const {
        switch (kind) {
            case Kind::unit:
                return unit == character;
            case Kind::digit:
                return is_digit(unit);
            case Kind::set:
                return is_negated != std::ranges::any_of(ranges, [unit](const Range& range) {
                           return range.first <= unit && unit <= range.last;
                       });
            case Kind::any:
            case Kind::run:
                break;
        }
        return true;
    }

    Kind kind;
    char16_t character = 0;
    bool is_negated = false;
    std::vector<Range> ranges = {};
};

Element set_of(std::u16string_view list) {
    Element set{.kind = Element::Kind::set};
    if (list.size() > 1 && list.front() == u'!') {
        set.is_negated = true;
        list.remove_prefix(1);
    }
    for (std::size_t place = 0; place < list.size(); ++place) {
        const bool is_range = place + 2 < list.size() && list[place + 1] == u'-';
        const Element::Range range{list[place], is_range ? list[place + 2] : list[place]};
        if (range.first > range.last) throw Error(ErrorNumber::invalid_pattern);
        set.ranges.push_back(range);
        if (is_range) place += 2;
    }
    return set;
}

std::vector<Element> elements_of(std::u16string_view pattern) {
    std::vector<Element> elements;
    for (std::size_t place = 0; place < pattern.size(); ++place) {
        switch (pattern[place]) {
            case u'?':
                elements.push_back({.kind = Element::Kind::any});
                break;
            case u'#':
                elements.push_back({.kind = Element::Kind::digit});
                break;
            case u'*':
                elements.push_back({.kind = Element::Kind::run});
                break;
            case u'[': {
                const std::size_t end = pattern.find(u']', place);
                if (end == std::u16string_view::npos) throw Error(ErrorNumber::invalid_pattern);
                const std::u16string_view list = pattern.substr(place + 1, end - place - 1);
                if (!list.empty()) elements.push_back(set_of(list));
                place = end;
                break;
            }
            default:
                elements.push_back({.kind = Element::Kind::unit, .character = pattern[place]});
        }
    }
    return elements;
}

}  // namespace

bool like(std::u16string_view text, std::u16string_view pattern) {
    const std::vector<Element> elements = elements_of(pattern);
    std::size_t place = 0;
    std::size_t element = 0;
    // Only the last run met can need to take more: the elements before it matched where they ended first.
    bool has_run = false;
    std::size_t run_element = 0;
    std::size_t run_end = 0;
    while (place < text.size()) {
        if (element < elements.size() && elements[element].kind == Element::Kind::run) {
            has_run = true;
            run_element = ++element;
            run_end = place;
        } else if (element < elements.size() && elements[element].matches(text[place])) {
            ++element;
            ++place;
        } else if (has_run) {
            element = run_element;
            place = ++run_end;
        } else {
            return false;
        }
    }
    return std::all_of(elements.begin() + static_cast<std::ptrdiff_t>(element), elements.end(),
                       [](const Element& one) { return one.kind == Element::Kind::run; });
}

}  // namespace qor
