#include <doctest/doctest.h>
#include <rapidcheck.h>

#include <array>
#include <chrono>
#include <random>

#include "hosts/calc/formula/reference_style.hpp"
#include "hosts/calc/formula/translator.hpp"
#include "platform/text.hpp"
#include "tests/support/formula_grammar.hpp"

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

}  // namespace

TEST_CASE("a formula comes back as it went") {
    CHECK(rc::check("to Calc and back", [] {
        static constexpr std::array<std::u16string_view, 8> places{
            u"Sheet2!",        u"'my sheet'!", u"'it''s, so; 1.5'!", u"'A1'!",
            u"Sheet1:Sheet3!", u"'c d'!",      u"'/p q/[f.ods]S'!",  u"Übersicht!"};
        const std::u16string formula =
            qor::support::FormulaGrammar(places, *rc::gen::arbitrary<std::uint32_t>()).formula();
        RC_ASSERT(qor::to_utf8(translator().to_excel(translator().to_calc(formula))) == qor::to_utf8(formula));
    }));
}

TEST_CASE("a formula comes back from the other style of references") {
    using qor::ReferenceStyle;
    CHECK(rc::check("by numbers and back", [] {
        static constexpr std::array<std::u16string_view, 2> places{u"Sheet2!", u"'my sheet'!"};
        const std::u16string formula =
            qor::support::FormulaGrammar(places, *rc::gen::arbitrary<std::uint32_t>()).formula();
        const qor::calc::CellPlace base{*rc::gen::inRange(0, 16384), *rc::gen::inRange(0, 1048576)};
        const auto numbered = qor::calc::convert_references(formula, {.to = ReferenceStyle::row_column, .base = base});
        const auto back = qor::calc::convert_references(*numbered, {.from = ReferenceStyle::row_column, .base = base});
        RC_ASSERT(qor::to_utf8(*back) == qor::to_utf8(formula));
    }));
}

TEST_CASE("any text goes through both ways") {
    using namespace std::chrono_literals;
    static constexpr std::u16string_view pieces[] = {
        u"=",      u"'",        u"\"",     u"[",      u"]",   u"{",    u"}",    u"(",    u")",    u"!",       u"$",
        u"#REF!",  u".",        u":",      u";",      u",",   u"~",    u"|",    u"#",    u"A1",   u"B2",      u"1",
        u"Sheet1", u" ",        u"@",      u"e",      u"E+5", u"%",    u"TRUE", u"SUM(", u"A:A",  u"1048577", u"/",
        u"\\",     u"file://%", u"\u00e4", u"\xD800", u"XFD", u"XFE1", u"#N/A", u"R1",   u"C[-1]"};
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
        const auto numbered = qor::calc::convert_references(
            text, {.to = qor::ReferenceStyle::row_column, .base = {.column = 5000, .row = 500000}});
        const auto lettered = qor::calc::convert_references(
            text, {.from = qor::ReferenceStyle::row_column, .base = {.column = 5000, .row = 500000}});
        REQUIRE((!numbered || numbered->size() <= 12 * text.size() + 32));
        REQUIRE((!lettered || lettered->size() <= 12 * text.size() + 32));
    }
    CHECK(texts > 1000);
}
