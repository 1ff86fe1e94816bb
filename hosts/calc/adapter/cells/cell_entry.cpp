#include "hosts/calc/adapter/cells/cell_entry.hpp"

#include <algorithm>
#include <array>
#include <string_view>

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "hosts/calc/adapter/ground/number_text.hpp"
#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/formula/translator.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

// The words that stand in dates, times and numbers as they are typed.
bool is_word_of_numbers(std::u16string_view word) {
    static constexpr std::array<std::u16string_view, 36> words{
        u"am",   u"pm",    u"a",     u"p",      u"e",         u"t",       u"jan",      u"january",  u"feb",
        u"mar",  u"march", u"april", u"apr",    u"february",  u"may",     u"jun",      u"june",     u"jul",
        u"july", u"aug",   u"sep",   u"august", u"september", u"october", u"oct",      u"november", u"nov",
        u"dec",  u"mon",   u"tue",   u"wed",    u"thu",       u"fri",     u"december", u"sat",      u"sun"};
    return std::ranges::find(words, word) != words.end();
}

// Those of them that only mean something behind a number: "5 PM", "1e5". Addresses such as "A5" are none.
bool follows_number(std::u16string_view word) {
    static constexpr std::array<std::u16string_view, 6> words{u"am", u"pm", u"a", u"p", u"e", u"t"};
    return std::ranges::find(words, word) != words.end();
}

// False only for text that cannot be anything else. A digit alone does not make it a number: "Sheet1" is none.
bool may_be_more_than_text(std::u16string_view text) {
    const std::u16string lower = to_lower(text);
    if (lower == u"true" || lower == u"false") return true;
    if (std::ranges::none_of(text, is_digit)) return false;
    for (std::size_t i = 0; i < lower.size();) {
        const std::size_t start = i;
        while (i < lower.size() && is_letter(lower[i])) ++i;
        const std::u16string_view word = std::u16string_view(lower).substr(start, i - start);
        if (!word.empty()) {
            if (!is_word_of_numbers(word)) return false;
            if (follows_number(word) && std::ranges::none_of(lower.substr(0, start), is_digit)) return false;
        }
        if (i == start) ++i;
    }
    return true;
}

struct ErrorText {
    std::int32_t code;
    std::u16string_view text;
};
constexpr std::array error_texts{
    ErrorText{numbers::cell_error::null, u"#NULL!"},
    ErrorText{numbers::cell_error::division_by_zero, u"#DIV/0!"},
    ErrorText{numbers::cell_error::value, u"#VALUE!"},
    ErrorText{numbers::cell_error::reference, u"#REF!"},
    ErrorText{numbers::cell_error::name, u"#NAME?"},
    ErrorText{numbers::cell_error::number, u"#NUM!"},
    ErrorText{numbers::cell_error::not_available, u"#N/A"},
};

CellEntry number(double value, NumberKind kind = NumberKind::plain) {
    return {CellEntry::Way::data, value, kind};
}

CellEntry text(const std::u16string& value, const Sheet& sheet) {
    if (value.empty()) return {};
    if (value.starts_with(u'\'')) {
        const std::u16string plain = value.substr(1);
        const bool seems_more = plain.starts_with(u'=') || may_be_more_than_text(plain);
        return {CellEntry::Way::data, plain, NumberKind::plain, seems_more};
    }
    if (value.starts_with(u'=') && value.size() > 1) {
        if (!is_closed(value)) throw Error(ErrorNumber::host_refused);
        const HostPointer& host = sheet.book.host;
        const auto address = [&](std::u16string_view book) {
            std::u16string found;
            attempt([&] { found = from_uno(book_named(host, book).model()->getURL()); });
            return found;
        };
        return {CellEntry::Way::formula, host->translator().to_calc(value, address)};
    }
    if (error_constant_at(value, 0).size() == value.size()) return {CellEntry::Way::formula, u"=" + value};
    return {may_be_more_than_text(value) ? CellEntry::Way::typed : CellEntry::Way::data, value};
}

CellEntry error(ErrorValue value) {
    const auto* row = std::ranges::find(error_texts, value.code, &ErrorText::code);
    if (row == error_texts.end()) throw Error(ErrorNumber::host_refused);
    return {CellEntry::Way::formula, u"=" + std::u16string(row->text)};
}

}  // namespace

CellEntry entry_of(const Variant& value, const Sheet& sheet, double days_to_null_date) {
    return value.visit([&](const auto& held) -> CellEntry {
        using Held = std::remove_cvref_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, Empty> || std::is_same_v<Held, Null>) {
            return {};
        } else if constexpr (std::is_same_v<Held, bool>) {
            return number(held ? 1 : 0, NumberKind::boolean);
        } else if constexpr (std::is_arithmetic_v<Held>) {
            return number(static_cast<double>(held));
        } else if constexpr (std::is_same_v<Held, Currency>) {
            return number(static_cast<double>(held.ten_thousandths) / 10000, NumberKind::currency);
        } else if constexpr (std::is_same_v<Held, Date>) {
            return number(held.serial - days_to_null_date, NumberKind::date);
        } else if constexpr (std::is_same_v<Held, std::u16string>) {
            return text(held, sheet);
        } else if constexpr (std::is_same_v<Held, ErrorValue>) {
            return error(held);
        } else if constexpr (std::is_same_v<Held, Object>) {
            return entry_of(held.get(names::Value), sheet, days_to_null_date);
        } else {
            throw Error(ErrorNumber::type_mismatch);
        }
    });
}

CellEntry entry_into_text(const Variant& value, const Sheet& sheet, double days_to_null_date) {
    return value.visit([&](const auto& held) -> CellEntry {
        using Held = std::remove_cvref_t<decltype(held)>;
        const auto as_text = [](std::u16string text) { return CellEntry{CellEntry::Way::data, std::move(text)}; };
        if constexpr (std::is_same_v<Held, std::u16string>) {
            return held.empty() ? CellEntry{} : as_text(held.substr(held.starts_with(u'\'') ? 1 : 0));
        } else if constexpr (std::is_same_v<Held, bool>) {
            return as_text(held ? u"TRUE" : u"FALSE");
        } else if constexpr (std::is_arithmetic_v<Held>) {
            return as_text(number_text(static_cast<double>(held)));
        } else if constexpr (std::is_same_v<Held, Currency> || std::is_same_v<Held, Date>) {
            return as_text(to_text(value));
        } else if constexpr (std::is_same_v<Held, Object>) {
            return entry_into_text(held.get(names::Value), sheet, days_to_null_date);
        } else {
            return entry_of(value, sheet, days_to_null_date);
        }
    });
}

}  // namespace qor::calc
