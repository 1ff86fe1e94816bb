#include <array>

#include "functions/families.hpp"
#include "functions/number_words.hpp"
#include "runtime/number_text.hpp"
#include "runtime/trim.hpp"

// Numbers and names as people write them.
namespace qor {
namespace {

using Text = std::u16string;

struct NamePart {
    const Text& text;
    std::size_t least_size;  // without the blanks around it
};

Text joined(std::initializer_list<NamePart> parts) {
    Text name;
    for (const auto& [text, least_size] : parts) {
        if (trim(text).size() >= least_size) name.append(text).append(1, u' ');
    }
    return name;
}

// By the last digit.
constexpr std::array<std::u16string_view, 10> ordinal_suffixes{u"TH", u"ST", u"ND", u"RD", u"TH",
                                                               u"TH", u"TH", u"TH", u"TH", u"TH"};

Text ordinal(Text number) {
    if (number.ends_with(u"11") || number.ends_with(u"12") || number.ends_with(u"13")) return number.append(u"TH");
    const auto digit = static_cast<std::size_t>(number.back() - u'0');
    return digit < ordinal_suffixes.size() ? number.append(ordinal_suffixes[digit]) : Text();
}

// A value that has no text is none that could be spelled.
Text text_of(const Variant& value) {
    Text text;
    attempt([&] { text = to_text(value); });
    return text;
}

}  // namespace

std::vector<FunctionDeclaration> number_and_name_functions() {
    return {
        // The title goes in front, and one of a single letter is left out.
        {.name = u"FORMATNAME",
         .help_id = 160000,
         .description = u"Returns formatted name.",
         .parameters = {u"sFirstName",
                        u"sLastName",
                        {u"sMiddleName", Missing{}},
                        {u"sTitle", Missing{}},
                        {u"sSuffix", Missing{}}},
         .formula =
             [](const Text& sFirstName, const Text& sLastName, const Text& sMiddleName, const Text& sTitle,
                const Text& sSuffix) {
                 return joined({{sTitle, 2}, {sFirstName, 1}, {sMiddleName, 1}, {sLastName, 1}, {sSuffix, 1}});
             },
         .examples = {{{u"Ann", u"Lee"}, u"Ann Lee "},
                      {{u"Ann", u"Lee", u"", u"X", u"Jr"}, u"Ann Lee Jr "},
                      {{u"Ann", u"Lee", u"May", u"Dr.", u"PhD"}, u"Dr. Ann May Lee PhD "}}},
        {.name = u"NUMBERTOWORDS",
         .help_id = 160005,
         .description = u"Returns number to words.",
         .parameters = {u"vNumberIn", {u"sAND_or_CHECK_or_DOLLAR", Missing{}}},
         .formula =
             [](const Variant& vNumberIn, const Text& sAND_or_CHECK_or_DOLLAR) {
                 return number_to_words(trim(text_of(vNumberIn)), sAND_or_CHECK_or_DOLLAR);
             },
         .examples = {{{1234}, u"One Thousand Two Hundred Thirty Four "},
                      {{1234, u"and"}, u"One Thousand Two Hundred and Thirty Four "},
                      {{1234.5, u"check"}, u"One Thousand Two Hundred Thirty Four and 50/100"},
                      {{1.01, u"dollar"}, u"One Dollar and One Cent"}}},
        {.name = u"ORDINAL",
         .help_id = 160010,
         .description = u"Returns ordinal string of a number.",
         .parameters = {u"dNum"},
         .formula = [](double dNum) { return ordinal(number_text(dNum)); },
         .examples = {{{1}, u"1ST"}, {{22}, u"22ND"}, {{113}, u"113TH"}, {{1.5}, u"1.5TH"}}},
    };
}

}  // namespace qor
