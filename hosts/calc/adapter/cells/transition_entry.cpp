#include "hosts/calc/adapter/cells/transition_entry.hpp"

#include "hosts/calc/adapter/ground/defined_names.hpp"
#include "hosts/calc/adapter/ground/range_address.hpp"
#include "hosts/calc/adapter/sheets/sheet_marks.hpp"
#include "hosts/calc/formula/scanner.hpp"
#include "hosts/calc/formula/translator.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

bool is_constant(std::u16string_view formula) {
    Scanner scanner(formula);
    return scanner.copy_constant() && scanner.at_end();
}

// What a name is replaced by in a formula on this sheet; empty for one that stays.
std::u16string meaning_of(const DefinedName& name, const Sheet& sheet) {
    const std::u16string formula = name.refers_to().substr(1);
    if (is_constant(formula)) return formula;
    std::u16string result;
    attempt([&] {
        const RangeAreas cells = name.cells();
        const std::u16string address = address_text(cells.rectangle());
        const std::u16string sheet_name = cells.sheet.name();
        const std::u16string full = (needs_quotes(sheet_name) ? in_quotes(sheet_name) : sheet_name) + u"!" + address;
        if (formula == full) result = cells.sheet.index() == sheet.index() ? address : full;
    });
    return result;
}

// Whether a word between these characters is a function, a table or part of a reference such as $A$1 or A:C.
bool is_part_of_more(char16_t before, std::u16string_view word, char16_t behind) {
    constexpr std::size_t longest_column = 3;
    if (behind == u'(' || behind == u'[' || behind == u'$' || before == u'$') return true;
    return word.size() <= longest_column && (before == u':' || behind == u':');
}

}  // namespace

void TransitionEntry::find_meanings() {
    meanings_.emplace();
    if (!sheet_marks(sheet_).transition_form_entry) return;
    const std::u16string own_sheet = sheet_.name();
    for (const DefinedName& name : defined_names(sheet_.book)) {
        const std::u16string meaning = meaning_of(name, sheet_);
        if (meaning.empty()) continue;
        meanings_->insert_or_assign(to_upper(name.text()), meaning);
    }
    // Without a sheet in front a name means that of the own sheet first.
    for (const DefinedName& name : defined_names(sheet_.book)) {
        if (name.sheet != own_sheet) continue;
        const auto qualified = meanings_->find(to_upper(name.text()));
        const std::u16string alone = to_upper(view_of(name.range->getName()));
        if (qualified == meanings_->end()) {
            meanings_->erase(alone);
        } else {
            meanings_->insert_or_assign(alone, qualified->second);
        }
    }
}

std::optional<std::u16string> TransitionEntry::replaced(const Variant& value) {
    const auto* formula = value.get_if<std::u16string>();
    if (!formula || !formula->starts_with(u'=') || !is_closed(*formula)) return {};
    if (!meanings_) find_meanings();
    if (meanings_->empty()) return {};
    Scanner scanner(*formula);
    while (!scanner.at_end()) {
        if (scanner.copy_constant()) continue;
        if (scanner.here() == u'[') {
            scanner.copy_brackets(u',', u',');
            continue;
        }
        const std::size_t start = scanner.position();
        if (scanner.here() == u'\'') {
            take_quoted(*formula, scanner.position());
        } else if (scanner.take_word().empty()) {
            scanner.put(scanner.take());
            continue;
        }
        if (scanner.here() == u'!') {
            scanner.take();
            scanner.take_word();
        }
        const std::u16string_view name = std::u16string_view(*formula).substr(start, scanner.position() - start);
        const auto meaning = meanings_->find(to_upper(name));
        const bool stays = meaning == meanings_->end() || is_part_of_more((*formula)[start - 1], name, scanner.here());
        scanner.put(stays ? name : std::u16string_view(meaning->second));
    }
    return scanner.take_result();
}

}  // namespace qor::calc
