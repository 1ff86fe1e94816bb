#include "hosts/calc/formula/reference_style.hpp"

#include "hosts/calc/formula/scanner.hpp"
#include "hosts/calc/formula/translator.hpp"

namespace qor::calc {
namespace {

// A range that was counted over an edge of the sheet has its corners in another order.
CornerPair in_order(CornerPair range) {
    if (range.first.column > range.last.column) {
        std::swap(range.first.column, range.last.column);
        std::swap(range.first.column_fixed, range.last.column_fixed);
    }
    if (range.first.row > range.last.row) {
        std::swap(range.first.row, range.last.row);
        std::swap(range.first.row_fixed, range.last.row_fixed);
    }
    return range;
}

class Converter {
  public:
    Converter(std::u16string_view formula, const ReferenceConversion& conversion) : wanted_(conversion), in_(formula) {}

    std::u16string run() {
        while (!in_.at_end()) step();
        return in_.take_result();
    }

  private:
    void step() {
        const char16_t c = in_.here();
        if (c == u'\'') {
            const std::size_t start = in_.position();
            take_quoted(in_.text(), in_.position());
            in_.put(in_.text().substr(start, in_.position() - start));
        } else if (c == u'[') {
            in_.copy_brackets(u',', u',');
            in_.put(in_.take_word());  // the sheet of the book in the brackets
        } else if (!reference() && !in_.copy_constant()) {
            const std::u16string_view word = in_.take_word();
            in_.put(word.empty() ? std::u16string_view(&c, 1) : word);
            if (word.empty()) in_.take();
        }
    }

    std::optional<Corner> take_one() {
        return wanted_.from == ReferenceStyle::letters ? take_corner(in_.text(), in_.position())
                                                       : take_row_column(in_.text(), in_.position(), wanted_.base);
    }

    bool reference() {
        const std::size_t start = in_.position();
        const auto first = take_one();
        if (!first || first->deleted) {
            in_.position() = start;
            return false;
        }
        const std::size_t behind_first = in_.position();
        if (in_.take_if(u":")) {
            const auto last = take_one();
            const bool range = last && !last->deleted && (first->column < 0) == (last->column < 0) &&
                               (first->row < 0) == (last->row < 0);
            if (range) {
                put_range(in_order({of_kind(*first), of_kind(*last)}));
                return true;
            }
            in_.position() = behind_first;
        }
        if (first->is_cell()) {
            const Corner cell = of_kind(*first);
            in_.put(wanted_.to == ReferenceStyle::letters ? corner_text(cell) : row_column_text(cell, wanted_.base));
            return true;
        }
        if (wanted_.from == ReferenceStyle::row_column) {
            put_range({of_kind(*first), of_kind(*first)});
            return true;
        }
        in_.position() = start;
        return false;
    }

    Corner of_kind(Corner corner) const {
        if (!wanted_.kind) return corner;
        const bool all = *wanted_.kind == ReferenceKind::absolute;
        corner.row_fixed = all || *wanted_.kind == ReferenceKind::absolute_row;
        corner.column_fixed = all || *wanted_.kind == ReferenceKind::absolute_column;
        return corner;
    }

    void put_range(const CornerPair& range) {
        in_.put(wanted_.to == ReferenceStyle::letters ? range_text(range.first, range.last)
                                                      : row_column_range_text(range.first, range.last, wanted_.base));
    }

    const ReferenceConversion& wanted_;
    Scanner in_;
};

}  // namespace

std::optional<std::u16string> convert_references(std::u16string_view formula, const ReferenceConversion& conversion) {
    if (!is_closed(formula)) return {};
    return Converter(formula, conversion).run();
}

}  // namespace qor::calc
