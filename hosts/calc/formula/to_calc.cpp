#include <vector>

#include "hosts/calc/formula/scanner.hpp"
#include "hosts/calc/formula/translator.hpp"
#include "platform/file_address.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

// Calc has the scheme in front of whatever stands for a book, also where its folder is not told from the root.
std::u16string book_address_of(std::u16string_view path) {
    const std::u16string address = address_of_path(path);
    return address.find(u"://") == std::u16string::npos ? u"file://" + address : address;
}

class ToCalc {
  public:
    ToCalc(const FunctionNames& names, std::u16string_view formula, const FormulaTranslator::BookAddress& books)
        : names_(names), books_(books), in_(formula) {}

    std::u16string run() {
        while (!in_.at_end()) step();
        return in_.take_result();
    }

  private:
    enum class Inside : std::uint8_t { brackets, function, array };

    void step() {
        const char16_t c = in_.here();
        if (c == u' ') {
            spaces();
        } else if (c == u'[' && in_.position() > 0 && is_word(in_.text()[in_.position() - 1])) {
            copy_brackets();
        } else if (prefixed() || reference({}, {})) {
            after_operand_ = true;
        } else if (in_.copy_constant()) {
            after_operand_ = false;
        } else if (is_word(c)) {
            word();
        } else {
            sign();
        }
    }

    void sign() {
        const char16_t c = in_.take();
        after_operand_ = c == u')';
        const bool in_array = !inside_.empty() && inside_.back() == Inside::array;
        switch (c) {
            case u'(':
                inside_.push_back(Inside::brackets);
                return in_.put(c);
            case u'{':
                inside_.push_back(Inside::array);
                return in_.put(c);
            case u')':
            case u'}':
                if (!inside_.empty()) inside_.pop_back();
                return in_.put(c);
            case u',':
                return in_.put(inside_.empty() || inside_.back() == Inside::brackets ? u'~' : u';');
            case u';':
                return in_.put(in_array ? u'|' : u';');
            default:
                return in_.put(c);
        }
    }

    // Between two references spaces are the intersection.
    void spaces() {
        const std::size_t start = in_.position();
        while (in_.here() == u' ') in_.take();
        if (after_operand_ && operand_follows()) {
            in_.put(u'!');
        } else {
            in_.put(in_.text().substr(start, in_.position() - start));
        }
    }

    bool operand_follows() {
        const char16_t c = in_.here();
        if (is_letter(c) || c == u'_' || c == u'$' || c == u'\'' || c == u'(' || c == u'[') return true;
        if (error_constant_at(in_.text(), in_.position()) == u"#REF!") return true;
        // A whole row: 3:4.
        std::size_t ahead = 0;
        while (is_digit(in_.peek(ahead))) ++ahead;
        return ahead > 0 && in_.peek(ahead) == u':';
    }

    // Calc knows a part of a table, such as #Headers, in brackets of its own only.
    void copy_brackets() {
        const bool is_part = in_.peek(1) == u'#';
        if (is_part) in_.put(u'[');
        in_.copy_brackets(u',', u';');
        if (is_part) in_.put(u']');
        after_operand_ = true;
    }

    // Reads what stands in front of an exclamation mark: sheets, with or without a book.
    bool prefixed() {
        const std::size_t start = in_.position();
        std::u16string place;
        if (in_.here() == u'\'') {
            place = take_quoted(in_.text(), in_.position());
        } else if (error_constant_at(in_.text(), start) == u"#REF!") {
            in_.position() = start + 5;
            if (const auto corner = take_corner(in_.text(), in_.position())) {
                in_.put(u"#REF!");
                skip_second_corner();
                return true;
            }
            in_.position() = start;
            return false;
        } else {
            if (in_.here() == u'[') {
                while (!in_.at_end() && in_.here() != u']') in_.take();
                in_.take_if(u"]");
            }
            in_.take_word();
            if (in_.take_if(u":")) in_.take_word();
            place = in_.text().substr(start, in_.position() - start);
        }
        if (place.empty() || !in_.take_if(u"!")) {
            in_.position() = start;
            return false;
        }
        behind_place(place);
        return true;
    }

    void behind_place(std::u16string_view place) {
        std::u16string prefix;
        const std::size_t open = place.find(u'[');
        const std::size_t close = place.find(u']');
        std::u16string_view sheets = place;
        if (open != std::u16string_view::npos && close != std::u16string_view::npos && close > open) {
            const std::u16string_view book = place.substr(open + 1, close - open - 1);
            const std::u16string address = open > 0
                                               ? book_address_of(std::u16string(place.substr(0, open)).append(book))
                                               : (books_ ? books_(book) : std::u16string());
            sheets = place.substr(close + 1);
            prefix = address.empty() ? u"#REF!" : in_quotes(address) + u"#";
        } else if (place.find(u'/') != std::u16string_view::npos) {
            in_.put(in_quotes(book_address_of(place)) + u"#");
            in_.put(in_.take_word());
            return;
        } else if (const std::u16string address = books_ ? books_(place) : std::u16string(); !address.empty()) {
            in_.put(in_quotes(address) + u"#");
            in_.put(in_.take_word());
            return;
        }
        const std::size_t colon = sheets.find(u':');
        const std::u16string first = sheet_text(sheets.substr(0, colon));
        const std::u16string last =
            colon == std::u16string_view::npos ? std::u16string() : sheet_text(sheets.substr(colon + 1));
        if (prefix == u"#REF!") {
            in_.put(prefix);
            std::size_t& position = in_.position();
            if (take_corner(in_.text(), position)) {
                skip_second_corner();
            } else {
                in_.take_word();
            }
            return;
        }
        if (reference(prefix + first, last)) return;
        if (in_.take_if(u"#REF!")) return in_.put(u"#REF!");
        in_.put(prefix + first);
        in_.put(in_.take_word());
    }

    void skip_second_corner() {
        const std::size_t start = in_.position();
        if (in_.take_if(u":") && take_corner(in_.text(), in_.position())) return;
        in_.position() = start;
    }

    static std::u16string sheet_text(std::u16string_view sheet) {
        // Calc takes a dot for the end of the name.
        const bool quotes = needs_quotes(sheet) || sheet.find(u'.') != std::u16string_view::npos;
        return u"$" + (quotes ? in_quotes(sheet) : std::u16string(sheet)) + u".";
    }

    // `place` and `last_place` stand in front of the two corners.
    bool reference(std::u16string_view place, std::u16string_view last_place) {
        const std::size_t start = in_.position();
        if (in_.here() == u'#') return false;
        const auto first = take_corner(in_.text(), in_.position());
        if (!first) return false;
        const std::size_t behind_first = in_.position();
        if (in_.take_if(u":")) {
            const auto last = take_corner(in_.text(), in_.position());
            const bool range = last && !last->deleted && (first->column < 0) == (last->column < 0) &&
                               (first->row < 0) == (last->row < 0);
            if (range) {
                in_.put(place);
                in_.put(corner_text(*first) + u":");
                in_.put(last_place);
                in_.put(corner_text(*last));
                return true;
            }
            in_.position() = behind_first;
        }
        if (!first->is_cell()) {
            in_.position() = start;
            return false;
        }
        in_.put(place);
        in_.put(corner_text(*first));
        if (!last_place.empty()) {
            in_.put(u':');
            in_.put(last_place);
            in_.put(corner_text(*first));
        }
        return true;
    }

    void word() {
        const std::u16string_view word = in_.take_word();
        const std::u16string name = to_upper(word);
        after_operand_ = in_.here() != u'(';
        if (in_.take_if(u"(")) {
            const auto known = names_.calc_by_excel.find(name);
            in_.put(known == names_.calc_by_excel.end() ? word : std::u16string_view(known->second));
            in_.put(u'(');
            inside_.push_back(Inside::function);
        } else if (name == u"TRUE" || name == u"FALSE") {
            // In a constant array the bare word is the value itself.
            const bool in_array = !inside_.empty() && inside_.back() == Inside::array;
            in_.put(in_array ? name : name + u"()");
        } else {
            in_.put(word);
        }
    }

    const FunctionNames& names_;
    const FormulaTranslator::BookAddress& books_;
    Scanner in_;
    std::vector<Inside> inside_;
    bool after_operand_ = false;  // a reference, a name or a closing bracket came last
};

}  // namespace

bool is_closed(std::u16string_view formula) {
    std::u16string open;
    for (std::size_t i = 0; i < formula.size(); ++i) {
        const char16_t c = formula[i];
        if (c == u'"' || c == u'\'') {
            // A doubled quote closes one part and opens the next.
            i = formula.find(c, i + 1);
            if (i == std::u16string_view::npos) return false;
        } else if (c == u'(' || c == u'{') {
            open += c == u'(' ? u')' : u'}';
        } else if (c == u')' || c == u'}') {
            if (open.empty() || open.back() != c) return false;
            open.pop_back();
        }
    }
    return open.empty();
}

std::u16string FormulaTranslator::to_calc(std::u16string_view formula, const BookAddress& address_of_book) const {
    return ToCalc(names_, formula, address_of_book).run();
}

}  // namespace qor::calc
