#include "functions/number_words.hpp"

#include <doctest/doctest.h>

#include <algorithm>
#include <map>
#include <sstream>

#include "platform/text.hpp"
#include "tests/functions/call.hpp"

#ifdef QOR_RAPIDCHECK
#include <rapidcheck.h>
#endif

using namespace qor;

namespace {

std::string words(Variant number, Variant mode = Missing{}) {
    const Variant result = find_function(u"NUMBERTOWORDS")->invoke({std::move(number), std::move(mode)});
    REQUIRE(result.get_if<std::u16string>());
    return to_utf8(*result.get_if<std::u16string>());
}

struct Spelling {
    Variant number;
    std::string words;
    Variant mode = Missing{};
};

void check_spellings(const std::vector<Spelling>& spellings) {
    for (const Spelling& spelling : spellings) {
        CAPTURE(spelling.words);
        CHECK(words(spelling.number, spelling.mode) == spelling.words);
    }
}

constexpr auto* improperly_formed = "Error - Number improperly formed";
constexpr auto* improper_commas = "Error - Improper use of commas";
constexpr auto* too_large = "Error - Number too large";

// Reads words back as a person would: what was said so far of a group, of the whole, and the digits behind the point.
struct Reading {
    explicit Reading(const std::string& text) {
        static const std::map<std::string, std::int64_t> scales{{"Thousand", 1'000},
                                                                {"Million", 1'000'000},
                                                                {"Billion", 1'000'000'000},
                                                                {"Trillion", 1'000'000'000'000},
                                                                {"Quadrillion", 1'000'000'000'000'000}};
        static const std::map<std::string, int> numbers{
            {"Zero", 0},      {"One", 1},       {"Two", 2},       {"Three", 3},    {"Four", 4},     {"Five", 5},
            {"Six", 6},       {"Seven", 7},     {"Eight", 8},     {"Nine", 9},     {"Ten", 10},     {"Eleven", 11},
            {"Twelve", 12},   {"Thirteen", 13}, {"Fourteen", 14}, {"Fifteen", 15}, {"Sixteen", 16}, {"Seventeen", 17},
            {"Eighteen", 18}, {"Nineteen", 19}, {"Twenty", 20},   {"Thirty", 30},  {"Forty", 40},   {"Fifty", 50},
            {"Sixty", 60},    {"Seventy", 70},  {"Eighty", 80},   {"Ninety", 90}};
        std::istringstream in(text);
        std::int64_t group = 0;
        bool is_behind_point = false;
        for (std::string word; in >> word;) {
            if (word == "Minus") {
                is_negative = true;
            } else if (word == "Point") {
                is_behind_point = true;
            } else if (word == "Hundred") {
                group *= 100;
            } else if (const auto scale = scales.find(word); scale != scales.end()) {
                whole += group * scale->second;
                group = 0;
            } else if (const auto number = numbers.find(word); number == numbers.end()) {
                rest.push_back(word);
            } else if (is_behind_point) {
                decimals += std::to_string(number->second);
            } else {
                group += number->second;
            }
        }
        whole += group;
    }

    bool is_negative = false;
    std::int64_t whole = 0;
    std::string decimals;
    std::vector<std::string> rest;
};

std::u16string with_commas(std::string digits) {
    for (std::size_t place = digits.size(); place > 3;) digits.insert(place -= 3, 1, ',');
    return from_utf8(digits);
}

}  // namespace

TEST_CASE("whole numbers are spelled without hyphens and with a blank at the end") {
    check_spellings({
        {0, "Zero "},
        {7, "Seven "},
        {10, "Ten "},
        {19, "Nineteen "},
        {20, "Twenty "},
        {21, "Twenty One "},
        {90, "Ninety "},
        {100, "One Hundred "},
        {110, "One Hundred Ten "},
        {999, "Nine Hundred Ninety Nine "},
        {1000, "One Thousand "},
        {1234, "One Thousand Two Hundred Thirty Four "},
        {1e6, "One Million "},
        {1e9, "One Billion "},
        {1e12, "One Trillion "},
        {u"1000000000000000", "One Quadrillion "},
        {u"123456789012345678",
         "One Hundred Twenty Three Quadrillion Four Hundred Fifty Six Trillion Seven Hundred Eighty Nine Billion "
         "Twelve Million Three Hundred Forty Five Thousand Six Hundred Seventy Eight "},
    });
}

TEST_CASE("the and stands before the last tens of a number from 99 on") {
    check_spellings({
        {1234, "One Thousand Two Hundred and Thirty Four ", u"and"},
        {45, "Forty Five ", u"and"},
        {98, "Ninety Eight ", u"and"},
        {99, "and Ninety Nine ", u"and"},
        {100, "One Hundred and ", u"and"},
        {1000, "One Thousand ", u"and"},
        {1001, "One Thousand and One ", u"and"},
        {1100, "One Thousand One Hundred and ", u"and"},
        {101'000, "One Hundred One Thousand ", u"and"},
        {u"1000000001", "One Billion and One ", u"and"},
        {0, "Zero ", u"and"},
    });
}

TEST_CASE("decimals are told digit by digit") {
    check_spellings({
        {1.5, "One Point Five"},
        {0.5, "Zero Point Five"},
        {u".5", "Zero Point Five"},
        {u"1.050", "One Point Zero Five Zero"},
        {u"1.", "One "},
        {1234.5, "One Thousand Two Hundred and Thirty Four Point Five", u"and"},
    });
}

TEST_CASE("a cheque shows hundredths") {
    check_spellings({
        {1234.5, "One Thousand Two Hundred Thirty Four and 50/100", u"check"},
        {1234, "One Thousand Two Hundred Thirty Four and 00/100", u"check"},
        {u"5.", "Five and 00/100", u"check"},
        {1.005, "One and 01/100", u"check"},
        {1.004, "One and 00/100", u"check"},
        {u"3.14159", "Three and 14/100", u"check"},
        {-2.5, "Minus Two and 50/100", u"check"},
        {100, "One Hundred and 00/100", u"check"},
    });
}

TEST_CASE("hundredths carry into a whole part of nines only") {
    check_spellings({
        {12.999, "Twelve and 00/100", u"check"},
        {0.999, "Zero and 00/100", u"check"},
        {0.995, "Zero and 00/100", u"check"},
        {9.994, "Nine and 99/100", u"check"},
        {9.995, "Ten and 00/100", u"check"},
        {9.999, "Ten and 00/100", u"check"},
        {99.999, "One Hundred and 00/100", u"check"},
        {9.999, "Ten Dollars", u"dollar"},
        {19.999, "Nineteen Dollars", u"dollar"},
        {u"999999999.999", "One Billion and 00/100", u"check"},
        {u"999999999999999999.999", too_large, u"check"},
        {u".999", "One and 00/100", u"check"},  // not one digit that is no nine
    });
}

TEST_CASE("dollars and cents are singular where the words are exactly One") {
    check_spellings({
        {1.01, "One Dollar and One Cent", u"dollar"},
        {1, "One Dollar", u"dollar"},
        {2, "Two Dollars", u"dollar"},
        {0.5, "Zero Dollars and Fifty Cents", u"dollar"},
        {1001, "One Thousand One Dollars", u"dollar"},
        {-1.21, "Minus One Dollar and Twenty One Cents", u"dollar"},
    });
}

TEST_CASE("a mode is known in any case, and any other text is none") {
    check_spellings({
        {145, "One Hundred and Forty Five ", u"AND"},
        {1.5, "One and 50/100", u"Check"},
        {2, "Two Dollars", u"DOLLAR"},
        {1.5, "One Point Five", u" check"},
        {145, "One Hundred Forty Five ", u""},
        {145, "One Hundred Forty Five ", u"cheque"},
    });
}

TEST_CASE("a sign is spelled in front") {
    check_spellings({
        {-7, "Minus Seven "},
        {u"+7", "Plus Seven "},
        {u"-.5", "Minus Zero Point Five"},
        {u"-1,234", "Minus One Thousand Two Hundred Thirty Four "},
    });
}

TEST_CASE("commas divide groups of three digits") {
    check_spellings({
        {u"1,234", "One Thousand Two Hundred Thirty Four "},
        {u"1,000,000", "One Million "},
        {u"1,234.5", "One Thousand Two Hundred Thirty Four Point Five"},
        {u"1000,000", "One Million "},
        {u"1,234", "One Thousand Two Hundred Thirty Four Dollars", u"dollar"},
    });
    for (const auto* number :
         {u"1,23", u"12,34", u"1,,000", u"1,000,0", u"1,234.5,6", u"1,.5", u"1.,5", u"1,234.567,8"}) {
        CAPTURE(to_utf8(number));
        CHECK(words(number) == improper_commas);
    }
}

TEST_CASE("what is no plain number is refused in words") {
    for (const auto* number :
         {u"abc", u"", u"   ", u".", u"1 2", u"(5)", u"$5", u"5-", u"1E5", u"&HFF", u"- 7", u"+-7"}) {
        CAPTURE(to_utf8(number));
        CHECK(words(number) == improperly_formed);
    }
    check_spellings({
        {Empty{}, improperly_formed},
        {Null{}, improperly_formed},
        {ErrorValue{2007}, improperly_formed},
        {true, improperly_formed},
        {Date{38061}, improperly_formed},
        {u"  7  ", "Seven "},
    });
}

TEST_CASE("a number that is written with an exponent is refused") {
    check_spellings({
        {1e20, improperly_formed},
        {1.5e20, improperly_formed},
        {1.5e-7, improperly_formed},
        {1.5e20, improperly_formed, u"dollar"},
    });
}

TEST_CASE("eighteen whole digits are the most") {
    check_spellings({
        {u"1234567890123456789", too_large},
        {u"1,234,567,890,123,456,789", too_large},
    });
    CHECK(words(u"-100000000000000000").starts_with("Minus One Hundred Quadrillion "));
    CHECK(words(u"0000000000") == "");  // zeros in the upper half leave nothing to say
}

#ifdef QOR_RAPIDCHECK
TEST_CASE("the words read back into the number") {
    CHECK(rc::check("whole numbers with and without the and, with and without commas", [] {
        const auto digits = *rc::gen::inRange(1, 19);
        const auto limit =
            static_cast<std::int64_t>(std::stoll("1" + std::string(static_cast<std::size_t>(digits), '0')));
        const auto number = *rc::gen::inRange<std::int64_t>(0, limit);
        const bool is_negative = *rc::gen::arbitrary<bool>();
        const bool has_and = *rc::gen::arbitrary<bool>();
        const std::string text = std::to_string(number);
        const std::u16string sign = is_negative ? u"-" : u"";
        const std::u16string mode = has_and ? u"and" : u"";
        for (const std::u16string& shown : {from_utf8(text), with_commas(text)}) {
            const Reading reading(words(sign + shown, mode));
            RC_ASSERT(reading.whole == number);
            RC_ASSERT(reading.is_negative == is_negative);
            RC_ASSERT(reading.rest.size() <= (has_and ? 1U : 0U));
        }
    }));
    CHECK(rc::check("decimals", [] {
        const auto whole = *rc::gen::inRange<std::int64_t>(0, 1'000'000'000'000);
        const auto decimals = *rc::gen::container<std::string>(rc::gen::inRange('0', static_cast<char>('9' + 1)));
        const Reading reading(words(from_utf8(std::to_string(whole) + "." + decimals)));
        RC_ASSERT(reading.whole == whole);
        RC_ASSERT(reading.decimals == decimals);
    }));
    CHECK(rc::check("cents", [] {
        const auto dollars = *rc::gen::inRange<std::int64_t>(0, 1'000'000'000);
        const auto cents = *rc::gen::inRange(1, 100);
        const std::string decimals = std::to_string(100 + cents).substr(1);
        const std::string text = words(from_utf8(std::to_string(dollars) + "." + decimals), u"dollar");
        const std::size_t joint = text.find(" and ");
        RC_ASSERT(joint != std::string::npos);
        RC_ASSERT(Reading(text.substr(0, joint)).whole == dollars);
        RC_ASSERT(Reading(text.substr(joint)).whole == cents);
        RC_ASSERT(
            words(from_utf8(std::to_string(dollars) + "." + decimals), u"check").ends_with(" " + decimals + "/100"));
    }));
}

TEST_CASE("no text makes an error leave the function") {
    CHECK(rc::check("any text of the characters of numbers", [] {
        const auto text = *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789.,+-eE$() &H")));
        const auto mode = *rc::gen::element<std::string>("", "and", "check", "dollar");
        RC_ASSERT(attempt([&] { words(from_utf8(text), from_utf8(mode)); }) == 0);
    }));
}
#endif
