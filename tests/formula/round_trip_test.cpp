#include <doctest/doctest.h>
#include <rapidcheck.h>

#include <chrono>
#include <random>

#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/formula/translator.hpp"
#include "platform/text.hpp"

namespace {

using qor::calc::FormulaTranslator;
using qor::calc::FunctionNames;

const FormulaTranslator& translator() {
    static const FormulaTranslator built(FunctionNames{
        {{u"FORMULA", u"FORMULATEXT"}, {u"CEILING.XCL", u"CEILING"}},
        {{u"FORMULATEXT", u"FORMULA"}, {u"CEILING", u"CEILING.XCL"}},
    });
    return built;
}

std::u16string decimal(int number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

// A formula of Excel in the spelling that reading it back gives.
std::u16string random_formula(int depth) {
    const auto below = [](int limit) { return *rc::gen::inRange(0, limit); };
    const auto cell = [&] {
        const std::u16string letters = qor::calc::column_letters(below(200));
        return std::u16string(below(2) ? u"$" : u"") + letters + (below(2) ? u"$" : u"") + decimal(below(5000) + 1);
    };
    const auto area = [&] { return cell() + u":" + cell(); };
    static const std::u16string sheets[] = {u"Sheet2!",        u"'my sheet'!", u"'it''s, so; 1.5'!", u"'A1'!",
                                            u"Sheet1:Sheet3!", u"'c d'!",      u"'/p q/[f.ods]S'!",  u"Übersicht!"};
    const auto part = [&] { return random_formula(depth - 1); };
    if (depth == 0) {
        switch (below(7)) {
            case 0:
                return cell();
            case 1:
                return area();
            case 2: {
                const int sheet = below(8);
                return sheets[sheet] + (sheet == 4 ? area() : cell());
            }
            case 3:
                return decimal(below(1000)) + (below(2) ? u".25" : u"");
            case 4:
                return below(2) ? u"\"a,b;\"\"c\"\"!\"" : u"\"'Sheet1'!A1\"";
            case 5:
                return below(2) ? u"TRUE" : u"#N/A";
            default:
                return below(2) ? u"my_name" : u"{1,-2;\"x\",TRUE}";
        }
    }
    switch (below(6)) {
        case 0:
            return part() + u"+" + part();
        case 1:
            return u"(" + part() + u")&" + part();
        case 2:
            return u"IF(" + part() + u"," + part() + u"," + part() + u")";
        case 3:
            return u"FORMULATEXT(" + cell() + u")";
        case 4:
            return u"SUM((" + area() + u"," + cell() + u")," + part() + u")";
        default:
            return u"CEILING(" + part() + u",$A:$C " + area() + u")";
    }
}

}  // namespace

TEST_CASE("a formula comes back as it went") {
    CHECK(rc::check("to Calc and back", [] {
        const std::u16string formula = u"=" + random_formula(*rc::gen::inRange(0, 4));
        RC_ASSERT(qor::to_utf8(translator().to_excel(translator().to_calc(formula))) == qor::to_utf8(formula));
    }));
}

TEST_CASE("any text goes through both ways") {
    using namespace std::chrono_literals;
    static constexpr std::u16string_view pieces[] = {
        u"=",   u"'",       u"\"",     u"[",  u"]",        u"{",      u"}",      u"(",   u")",    u"!",
        u"$",   u"#REF!",   u".",      u":",  u";",        u",",      u"~",      u"|",   u"#",    u"A1",
        u"B2",  u"1",       u"Sheet1", u" ",  u"@",        u"e",      u"E+5",    u"%",   u"TRUE", u"SUM(",
        u"A:A", u"1048577", u"/",      u"\\", u"file://%", u"\u00e4", u"\xD800", u"XFD", u"XFE1", u"#N/A"};
    std::mt19937 random(20240229);
    std::size_t texts = 0;
    const auto end = std::chrono::steady_clock::now() + 2s;
    for (; std::chrono::steady_clock::now() < end; ++texts) {
        std::u16string text;
        for (auto length = random() % 24; length > 0; --length) {
            if (random() % 4 == 0) {
                text += static_cast<char16_t>(random() % 0x180);
            } else {
                text += pieces[random() % std::size(pieces)];
            }
        }
        const std::u16string there = translator().to_calc(text);
        const std::u16string back = translator().to_excel(text);
        // No character makes more than a handful of others.
        REQUIRE(there.size() <= 12 * text.size() + 32);
        REQUIRE(back.size() <= 12 * text.size() + 32);
        qor::calc::is_closed(text);
    }
    CHECK(texts > 1000);
}
