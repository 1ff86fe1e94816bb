#include "hosts/calc/adapter/cells/cell_reader.hpp"

#include <cmath>
#include <com/sun/star/sheet/FormulaResult.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/table/CellContentType.hpp>

#include "hosts/calc/adapter/cells/cell_errors.hpp"
#include "hosts/calc/adapter/ground/cell_query.hpp"
#include "hosts/calc/adapter/ground/number_kinds.hpp"
#include "hosts/calc/adapter/ground/number_text.hpp"
#include "hosts/calc/formula/boolean_result.hpp"
#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

using Data = css::uno::Sequence<css::uno::Sequence<css::uno::Any>>;
using Texts = css::uno::Sequence<css::uno::Sequence<rtl::OUString>>;

// Constants that files bring as formulas without an argument: TRUE, FALSE and the error values.
std::u16string_view constant_in(std::u16string_view formula) {
    if (formula == u"=TRUE()") return u"TRUE";
    if (formula == u"=FALSE()") return u"FALSE";
    if (!formula.starts_with(u"=#")) return {};
    const std::u16string_view text = formula.substr(1);
    return error_constant_at(text, 0).size() == text.size() ? text : std::u16string_view{};
}

Variant typed(double number, NumberKind kind, double shift) {
    constexpr double most_money = 922337203685477.5;
    switch (kind) {
        case NumberKind::boolean:
            return number != 0;
        case NumberKind::date:
            return Date{number + shift};
        case NumberKind::currency:
            if (std::abs(number) < most_money) return Currency{std::llround(number * 10000)};
            return number;
        case NumberKind::text:
        case NumberKind::plain:
            break;
    }
    return number;
}

// Makes of a constant what is entered for it.
void make_text(Variant& constant) {
    if (const double* number = constant.get_if<double>()) constant = number_text(*number);
    if (const bool* truth = constant.get_if<bool>()) constant = *truth ? u"TRUE" : u"FALSE";
    if (constant.is_empty()) constant = u"";
}

bool is_zero_or_one(double number) {
    return number == 0 || number == 1;
}

// What one range holds, as the office hands it out, and the table that is made of it.
class Reading {
  public:
    Reading(const Sheet& sheet, const Cells& cells) : sheet_(sheet), cells_(cells), origin_(rectangle_of(cells)) {}

    Variant values(Typing typing) {
        take_data();
        if (numbers_) apply_kinds(typing);
        if (truths_) apply_constants();
        if (errors_) apply_errors();
        if (empty_texts_) {
            for_each(empty_places(cells_), [&](std::size_t place) { table_.at(place) = Empty{}; });
        }
        return result();
    }

    Variant formulas() {
        take_data();
        const bool may_hold_truth = truths_;
        if (may_hold_truth) apply_kinds(Typing::plain);
        for (std::size_t place = 0; place < table_.size(); ++place) make_text(table_.at(place));
        const CellPlaces places = formula_places(cells_);
        if (places.empty()) return result();
        const Texts texts = formula_texts();
        const FormulaTranslator& translator = sheet_.book.host->translator();
        for_each(places, [&](std::size_t place) {
            const std::u16string_view text = view_of(text_at(texts, place));
            const std::u16string_view constant = constant_in(text);
            table_.at(place) = constant.empty() ? translator.to_excel(text) : std::u16string(constant);
        });
        return result();
    }

    FormulaCounts counts() {
        FormulaCounts result{.cells = origin_.cells()};
        const CellPlaces places = formula_places(cells_);
        if (places.empty()) return result;
        const Texts texts = formula_texts();
        for_each(places, [&](std::size_t place) {
            const std::u16string_view text = view_of(text_at(texts, place));
            if (constant_in(text).empty()) ++result.formulas;
            if (text.starts_with(u'{')) ++result.in_arrays;
        });
        return result;
    }

  private:
    Texts formula_texts() const { return Ref<css::sheet::XCellRangeFormula>(cells_)->getFormulaArray(); }

    const rtl::OUString& text_at(const Texts& texts, std::size_t place) const {
        const auto width = static_cast<std::size_t>(origin_.width());
        return texts[static_cast<sal_Int32>(place / width)][static_cast<sal_Int32>(place % width)];
    }

    void take_data() {
        const Data data = Ref<css::sheet::XCellRangeData>(cells_)->getDataArray();
        std::size_t place = 0;
        for (const auto& row : data) {
            for (const css::uno::Any& value : row) {
                Variant& entry = table_.at(place++);
                double number = 0;
                rtl::OUString text;
                if (value >>= number) {
                    entry = number;
                    numbers_ = true;
                    truths_ = truths_ || is_zero_or_one(number);
                } else if (value >>= text) {
                    entry = from_uno(text);
                    empty_texts_ = empty_texts_ || text.isEmpty();
                } else {
                    errors_ = true;  // stays empty until its code is known
                }
            }
        }
    }

    void apply_kinds(Typing typing) {
        std::optional<double> shift;
        for (const KindOfCells& run : number_kinds(sheet_, cells_)) {
            if (typing == Typing::plain && run.kind != NumberKind::boolean) continue;
            if (run.kind == NumberKind::date && !shift) shift = days_to_null_date(sheet_);
            for_each(run.places, [&](std::size_t place) {
                const double* number = table_.at(place).get_if<double>();
                if (number) table_.at(place) = typed(*number, run.kind, shift.value_or(0));
            });
        }
    }

    // Some files bring Booleans as plain numbers: constants as formulas, and results of formulas.
    void apply_constants() {
        const CellPlaces places = formula_places(cells_, css::sheet::FormulaResult::VALUE);
        if (places.empty()) return;
        const Texts texts = formula_texts();
        for_each(places, [&](std::size_t place) {
            Variant& entry = table_.at(place);
            const double* number = entry.get_if<double>();
            if (number && is_zero_or_one(*number) && gives_boolean(view_of(text_at(texts, place))))
                entry = *number == 1;
        });
    }

    void apply_errors() {
        const CellPlaces places = formula_places(cells_, css::sheet::FormulaResult::ERROR);
        for (const CellError& error : cell_errors(cells_, places)) {
            table_.at(place_of(error.column, error.row)) = ErrorValue{error.code};
        }
    }

    std::size_t place_of(sal_Int32 column, sal_Int32 row) const {
        return static_cast<std::size_t>(row - origin_.top) * table_.columns() +
               static_cast<std::size_t>(column - origin_.left);
    }

    // Visits the cells of the places that lie in the range.
    template <class Places, class Visit>
    void for_each(const Places& places, Visit visit) {
        for (const css::table::CellRangeAddress& at : places) {
            for (sal_Int32 row = at.StartRow; row <= at.EndRow; ++row) {
                for (sal_Int32 column = at.StartColumn; column <= at.EndColumn; ++column) visit(place_of(column, row));
            }
        }
    }

    Variant result() {
        if (table_.size() == 1) return std::move(table_.at(0));
        return Variant(std::move(table_));
    }

    const Sheet& sheet_;
    const Cells& cells_;
    Rectangle origin_;
    Array table_ = Array::table(static_cast<std::size_t>(origin_.height()), static_cast<std::size_t>(origin_.width()));
    bool numbers_ = false;
    bool truths_ = false;  // some number is 0 or 1
    bool empty_texts_ = false;
    bool errors_ = false;
};

// A single cell, read in as few calls as there can be.
class SingleCell {
  public:
    SingleCell(const Sheet& sheet, const Cells& cells)
        : reads_(sheet), sheet_(sheet), cells_(cells), cell_(cells), type_(cell_ ? cell_->getType() : CellType()) {}

    // False for a range of more cells.
    explicit operator bool() const { return bool(cell_); }
    bool is_formula() const { return type_ == css::table::CellContentType_FORMULA; }

    // None where a formula gives an error.
    std::optional<Variant> value(Typing typing) const {
        if (is_formula()) return result(typing);
        if (type_ == css::table::CellContentType_EMPTY) return Empty{};
        return type_ == css::table::CellContentType_TEXT ? text() : number(typing);
    }

    // In Calc's notation.
    rtl::OUString formula() const { return cell_->getFormula(); }

  private:
    using CellType = css::table::CellContentType;

    Variant text() const {
        return from_uno(value_of<rtl::OUString>(Ref<css::sheet::XCellRangeData>(cells_)->getDataArray()[0][0]));
    }

    Variant number(Typing typing) const {
        const double number = cell_->getValue();
        if (typing == Typing::plain && !is_zero_or_one(number)) return number;
        const NumberKind kind = kind_of_format(sheet_, get_property<sal_Int32>(cell_, "NumberFormat"));
        if (typing == Typing::plain && kind != NumberKind::boolean) return number;
        return typed(number, kind, kind == NumberKind::date ? days_to_null_date(sheet_) : 0);
    }

    std::optional<Variant> result(Typing typing) const {
        const auto kind = get_property<sal_Int32>(cell_, "FormulaResultType2");
        if (kind == css::sheet::FormulaResult::STRING) return text();
        if (kind != css::sheet::FormulaResult::VALUE) return {};
        Variant value = number(typing);
        const double* plain = value.get_if<double>();
        const bool may_be_truth = plain && is_zero_or_one(*plain);
        if (may_be_truth && gives_boolean(view_of(formula()))) return *plain == 1;
        return value;
    }

    Sheet::OnlyReads reads_;
    const Sheet& sheet_;
    const Cells& cells_;
    Ref<css::table::XCell> cell_;
    CellType type_;
};

}  // namespace

Variant read_values(const Sheet& sheet, const Cells& cells, Typing typing) {
    if (const SingleCell cell(sheet, cells); cell) {
        if (auto value = cell.value(typing)) return *std::move(value);
    }
    return Reading(sheet, cells).values(typing);
}

Variant read_formulas(const Sheet& sheet, const Cells& cells) {
    const SingleCell cell(sheet, cells);
    if (!cell) return Reading(sheet, cells).formulas();
    if (!cell.is_formula()) {
        Variant constant = *cell.value(Typing::plain);
        make_text(constant);
        return constant;
    }
    const rtl::OUString text = cell.formula();
    const std::u16string_view constant = constant_in(view_of(text));
    return constant.empty() ? sheet.book.host->translator().to_excel(view_of(text)) : std::u16string(constant);
}

FormulaCounts count_formulas(const Sheet& sheet, const Cells& cells) {
    const SingleCell cell(sheet, cells);
    if (!cell) return Reading(sheet, cells).counts();
    if (!cell.is_formula()) return {.cells = 1};
    const rtl::OUString text = cell.formula();
    const bool is_constant = !constant_in(view_of(text)).empty();
    return {.cells = 1, .formulas = is_constant ? 0 : 1, .in_arrays = view_of(text).starts_with(u'{') ? 1 : 0};
}

}  // namespace qor::calc
