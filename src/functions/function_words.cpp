#include "functions/function_words.hpp"

#include <algorithm>
#include <array>

namespace qor {
namespace {

struct CategoryWords {
    Category category;
    std::u16string_view name;
};
constexpr std::array categories{
    CategoryWords{Category::financial, u"Financial"},
    CategoryWords{Category::date_and_time, u"Date & Time"},
    CategoryWords{Category::text, u"Text"},
    CategoryWords{Category::logical, u"Logical"},
    CategoryWords{Category::information, u"Information"},
};

struct KindWords {
    ValueKind kind;
    std::u16string_view name;
    std::u16string_view phrase;
};
constexpr std::array kinds{
    KindWords{ValueKind::number, u"number", u"A number"},
    KindWords{ValueKind::whole_number, u"whole number", u"A whole number"},
    KindWords{ValueKind::variant, u"value", u"A value of any kind"},
    KindWords{ValueKind::text, u"text", u"A text"},
    KindWords{ValueKind::boolean, u"boolean", u"TRUE or FALSE"},
};

}  // namespace

std::u16string_view category_name(Category category) {
    return std::ranges::find(categories, category, &CategoryWords::category)->name;
}

std::u16string_view kind_name(ValueKind kind) {
    return std::ranges::find(kinds, kind, &KindWords::kind)->name;
}

std::u16string_view kind_phrase(ValueKind kind) {
    return std::ranges::find(kinds, kind, &KindWords::kind)->phrase;
}

}  // namespace qor
