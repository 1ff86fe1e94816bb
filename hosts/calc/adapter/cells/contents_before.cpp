#include "hosts/calc/adapter/cells/contents_before.hpp"

#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>

#include "hosts/calc/adapter/cells/formula_entry.hpp"
#include "hosts/calc/adapter/ground/array_places.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {

ContentsBefore::ContentsBefore(const Sheet& sheet, const Cells& cells)
    : sheet_(sheet),
      cells_(cells),
      data_(Ref<css::sheet::XCellRangeData>(cells)->getDataArray()),
      formulas_(formula_places(cells)),
      formats_(cells),
      rich_texts_(sheet, cells) {
    if (!formulas_.empty()) keep_formulas();
}

void ContentsBefore::keep_formulas() {
    texts_ = Ref<css::sheet::XCellRangeFormula>(cells_)->getFormulaArray();
    for (const Rectangle& place : array_places(sheet_, cells_)) {
        arrays_.push_back({place, Ref<css::sheet::XArrayFormulaRange>(cells_at(sheet_, place))->getArrayFormula()});
    }
    const Rectangle area = rectangle_of(cells_);
    auto* rows = data_.getArray();
    for (const css::table::CellRangeAddress& at : formulas_) {
        for (sal_Int32 row = at.StartRow - area.top; row <= at.EndRow - area.top; ++row) {
            css::uno::Any* values = rows[row].getArray();
            for (sal_Int32 column = at.StartColumn - area.left; column <= at.EndColumn - area.left; ++column) {
                values[column] <<= rtl::OUString();
            }
        }
    }
}

void ContentsBefore::put_back() const {
    Ref<css::sheet::XCellRangeData>(cells_)->setDataArray(data_);
    formats_.put_back();
    rich_texts_.put_back();
    if (!formulas_.empty()) put_back_formulas();
}

void ContentsBefore::put_back_formulas() const {
    const FormulaTranslator& translator = sheet_.book.host->translator();
    const Rectangle area = rectangle_of(cells_);
    std::vector<FormulaForCell> single;
    for (const css::table::CellRangeAddress& at : formulas_) {
        for (sal_Int32 row = at.StartRow; row <= at.EndRow; ++row) {
            for (sal_Int32 column = at.StartColumn; column <= at.EndColumn; ++column) {
                const std::u16string_view text = view_of(texts_[row - area.top][column - area.left]);
                if (text.starts_with(u'{')) continue;
                single.push_back({column - area.left, row - area.top, std::u16string(text),
                                  formula_pattern(translator.to_excel(text), column, row)});
            }
        }
    }
    enter_formulas(cells_, std::move(single));
    for (const ArrayFormula& array : arrays_) {
        const std::u16string_view text = view_of(array.text);
        Ref<css::sheet::XArrayFormulaRange>(cells_at(sheet_, array.place))
            ->setArrayFormula(to_uno(text.substr(1, text.size() - 2)));
    }
}

}  // namespace qor::calc
