#include "hosts/calc/formula/scanner.hpp"
#include "hosts/calc/formula/translator.hpp"
#include "platform/file_address.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

// What stands in front of a reference: the address of another book, and a sheet.
struct Place {
    std::u16string book;
    std::u16string sheet;
    bool sheet_deleted = false;
    bool any = false;
};

// The reverse of what the translation to Calc does with a book.
std::u16string path_of_book(std::u16string_view address) {
    static constexpr std::u16string_view scheme = u"file://";
    if (!address.starts_with(scheme)) return std::u16string(address);
    const std::u16string_view path = address.substr(scheme.size());
    return path_of_address(path.starts_with(u'/') ? address : path);
}

class ToExcel {
  public:
    ToExcel(const FunctionNames& names, std::u16string_view formula) : names_(names), in_(formula) {}

    std::u16string run() {
        while (!in_.at_end()) step();
        return in_.take_result();
    }

  private:
    // One part alone, as [[#Headers]], which Excel writes in one pair of brackets.
    bool is_part_of_table() {
        const std::u16string_view rest = in_.text().substr(in_.position());
        return rest.starts_with(u"[[#") && rest.find(u']') == rest.find(u"]]") && rest.find(u"]]") != rest.npos;
    }

    void step() {
        const char16_t c = in_.here();
        if (c == u'{' || c == u'}') {
            in_array_ = c == u'{';
            in_.put(in_.take());
        } else if (c == u'[' && is_part_of_table()) {
            in_.take();
            in_.copy_brackets(u';', u',');
            in_.take();
        } else if (c == u'[') {
            in_.copy_brackets(u';', u',');
        } else if (c == u';' || c == u'~') {
            in_.take();
            in_.put(u',');
        } else if (c == u'|' && in_array_) {
            in_.take();
            in_.put(u';');
        } else if (c == u'!') {
            in_.take();
            in_.put(u' ');
        } else if (!placed_reference() && !reference({}) && !number() && !in_.copy_constant()) {
            word();
        }
    }

    // Reads [$]Sheet. or [$]'a sheet'. or 'file:///a book'#[$]Sheet. or #REF!. ; moves only when it is there.
    Place take_place() {
        const std::size_t start = in_.position();
        Place place;
        if (in_.here() == u'\'') {
            std::size_t end = start;
            std::u16string name = take_quoted(in_.text(), end);
            if (end < in_.text().size() && in_.text()[end] == u'#') {
                place.book = std::move(name);
                place.any = true;
                in_.position() = end + 1;
            }
        }
        const std::size_t sheet_start = in_.position();
        in_.take_if(u"$");
        if (in_.here() == u'\'') {
            place.sheet = take_quoted(in_.text(), in_.position());
            if (in_.take_if(u".")) return place.any = true, place;
        } else if (in_.take_if(u"#REF!.")) {
            place.sheet_deleted = place.any = true;
            return place;
        } else {
            // In a name dots may stand too, so the sheet ends at the last dot that a reference can follow.
            const std::size_t word_start = in_.position();
            const bool fixed = word_start != sheet_start;
            const std::u16string_view word = in_.take_word();
            const std::size_t dot = fixed ? word.find(u'.') : word.rfind(u'.');
            if (dot != std::u16string_view::npos && dot > 0 && (fixed || reference_follows(word_start + dot + 1))) {
                place.sheet = word.substr(0, dot);
                place.any = true;
                in_.position() = word_start + dot + 1;
                return place;
            }
        }
        place.sheet.clear();
        in_.position() = place.any ? sheet_start : start;
        return place;
    }

    bool reference_follows(std::size_t position) const {
        const auto corner = take_corner(in_.text(), position);
        if (!corner) return false;
        return corner->deleted || corner->is_cell() || (position < in_.text().size() && in_.text()[position] == u':');
    }

    bool placed_reference() {
        const Place place = take_place();
        if (!place.any) return false;
        if (reference(place)) return true;
        put_place(place, {});
        in_.put(in_.take_word());
        return true;
    }

    bool reference(const Place& place) {
        const std::size_t start = in_.position();
        const auto first = take_corner(in_.text(), in_.position());
        if (!first) return false;
        if (in_.take_if(u":")) {
            const std::size_t behind_colon = in_.position();
            const Place second_place = take_place();
            const auto last = take_corner(in_.text(), in_.position());
            if (last && (first->deleted || last->deleted || same_kind(*first, *last))) {
                put_place(place, second_place.sheet);
                // A row of sheets over one cell.
                const bool one_cell = !second_place.sheet.empty() && corner_text(*first) == corner_text(*last);
                in_.put(one_cell ? corner_text(*first) : range_text(*first, *last));
                return true;
            }
            in_.position() = behind_colon - 1;
        }
        if (!first->deleted && !first->is_cell()) {
            in_.position() = start;
            return false;
        }
        // A lone #REF! is an error constant, which copies itself.
        put_place(place, {});
        in_.put(corner_text(*first));
        return true;
    }

    static bool same_kind(const Corner& first, const Corner& last) {
        return (first.column < 0) == (last.column < 0) && (first.row < 0) == (last.row < 0);
    }

    void put_place(const Place& place, std::u16string_view last_sheet) {
        if (!place.any) return;
        if (place.sheet_deleted) {
            in_.put(u"#REF!");
            return;
        }
        std::u16string text;
        if (!place.book.empty()) {
            const std::u16string path = path_of_book(place.book);
            const std::size_t name = path.rfind(u'/') + 1;
            text = place.sheet.empty() ? path : path.substr(0, name) + u"[" + path.substr(name) + u"]";
        }
        text += place.sheet;
        bool quotes = !place.book.empty() || needs_quotes(place.sheet);
        if (!last_sheet.empty() && last_sheet != place.sheet) {
            quotes = quotes || needs_quotes(last_sheet);
            text += u":";
            text += last_sheet;
        }
        in_.put(quotes ? in_quotes(text) : text);
        in_.put(u'!');
    }

    // Calc writes three digits of an exponent.
    bool number() {
        const std::u16string_view text = in_.take_number();
        if (text.empty()) return false;
        const std::size_t exponent = text.find_first_of(u"+-") + 1;  // 0 when there is none
        std::size_t digits = exponent;
        while (exponent > 0 && text.size() - digits > 2 && text[digits] == u'0') ++digits;
        in_.put(text.substr(0, exponent));
        in_.put(text.substr(digits));
        return true;
    }

    // A function, a name, or a single character that both notations share.
    void word() {
        const std::u16string_view word = in_.take_word();
        if (word.empty()) {
            in_.put(in_.take());
            return;
        }
        if (in_.here() != u'(') {
            in_.put(word);
            return;
        }
        const std::u16string name = to_upper(word);
        if ((name == u"TRUE" || name == u"FALSE") && in_.take_if(u"()")) {
            in_.put(name);
            return;
        }
        static constexpr std::u16string_view add_in = u"_XLL.";
        if (name.starts_with(add_in) && !names_.calc_by_excel.contains(name.substr(add_in.size()))) {
            in_.put(word.substr(add_in.size()));
            return;
        }
        const auto known = names_.excel_by_calc.find(name);
        in_.put(known == names_.excel_by_calc.end() ? word : std::u16string_view(known->second));
    }

    const FunctionNames& names_;
    Scanner in_;
    bool in_array_ = false;
};

}  // namespace

std::u16string FormulaTranslator::to_excel(std::u16string_view formula) const {
    if (formula.starts_with(u"{=") && formula.ends_with(u"}")) formula = formula.substr(1, formula.size() - 2);
    return ToExcel(names_, formula).run();
}

}  // namespace qor::calc
