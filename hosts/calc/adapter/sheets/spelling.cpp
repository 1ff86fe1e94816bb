#include "hosts/calc/adapter/sheets/spelling.hpp"

#include <algorithm>
#include <com/sun/star/linguistic2/LinguServiceManager.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <set>

#include "hosts/calc/adapter/ground/cell_query.hpp"
#include "hosts/calc/adapter/ground/command.hpp"
#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/sheets/used_area.hpp"
#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

// The speller of one language.
class Speller {
  public:
    explicit Speller(const Book& book) : language_(get_property<css::lang::Locale>(book.document, "CharLocale")) {
        const Ref manager{css::linguistic2::LinguServiceManager::create(book.host->context().reference())};
        speller_ = manager->getSpellChecker();
        // Without a dictionary it takes every word for right.
        const bool known = speller_ && speller_->hasLocale(language_);
        if (!known) {
            throw Error(ErrorNumber::host_refused, {},
                        u"There is no dictionary for the language " + from_uno(language_.Language) + u"-" +
                            from_uno(language_.Country) + u".");
        }
    }

    bool is_right(std::u16string_view word) const { return speller_->isValid(to_uno(word), language_, {}); }

  private:
    css::lang::Locale language_;
    Ref<css::linguistic2::XSpellChecker> speller_;
};

bool is_letter_of_word(char16_t c) {
    constexpr char16_t right_quote = 0x2019;
    return is_letter(c) || (c >= 0x80 && c != right_quote && (c < 0x2000 || c > 0x206F));
}

// Apostrophes within a word belong to it; what has digits in it is no word.
void add_words(std::set<std::u16string>& words, std::u16string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t start = i;
        bool has_digit = false;
        while (i < text.size() &&
               (is_letter_of_word(text[i]) || is_digit(text[i]) ||
                (text[i] == u'\'' && i > start && i + 1 < text.size() && is_letter_of_word(text[i + 1])))) {
            has_digit = has_digit || is_digit(text[i]);
            ++i;
        }
        if (i > start && !has_digit) words.emplace(text.substr(start, i - start));
        if (i == start) ++i;
    }
}

// Those in constants: what a formula gives is nobody's spelling.
std::set<std::u16string> words_in(const RangeAreas& areas) {
    std::set<std::u16string> words;
    const Rectangle used = used_area(areas.sheet);
    for (std::size_t i = 0; i < areas.areas.size(); ++i) {
        const auto within = areas.rectangle(i).common_with(used);
        if (!within) continue;
        const CellPlaces texts = content_places(cells_at(areas.sheet, *within), css::sheet::CellFlags::STRING);
        for (const css::table::CellRangeAddress& at : texts) {
            const Cells run = cells_at(areas.sheet, {at.StartColumn, at.StartRow, at.EndColumn, at.EndRow});
            for (const auto& row : Ref<css::sheet::XCellRangeData>(run)->getDataArray()) {
                for (const css::uno::Any& value : row) {
                    rtl::OUString text;
                    value >>= text;
                    add_words(words, view_of(text));
                }
            }
        }
    }
    return words;
}

}  // namespace

bool is_spelled_right(const Book& book, std::u16string_view word) {
    return Speller(book).is_right(word);
}

bool check_spelling(const RangeAreas& areas) {
    const Book& book = areas.sheet.book;
    const Speller speller(book);
    const std::set<std::u16string> words = words_in(areas);
    const bool right = std::ranges::all_of(words, [&](const std::u16string& word) { return speller.is_right(word); });
    const bool has_screen = book.host->desktop()->getCurrentFrame().is();
    if (!right && has_screen) {
        book.host->activate(book.document);
        activate_sheet(areas.sheet);
        run_command(book, ".uno:SpellDialog");
    }
    return right;
}

}  // namespace qor::calc
