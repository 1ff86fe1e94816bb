#pragma once

#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Sequence.hxx>

#include "hosts/calc/adapter/cells/formats_before.hpp"
#include "hosts/calc/adapter/cells/rich_texts.hpp"
#include "hosts/calc/adapter/ground/cell_query.hpp"

namespace qor::calc {

// What cells hold and the formats of their numbers, kept to put it back when a change fails halfway.
class ContentsBefore {
  public:
    ContentsBefore(const Sheet& sheet, const Cells& cells);

    void put_back() const;

  private:
    struct ArrayFormula {
        Rectangle place;
        rtl::OUString text;
    };

    void keep_formulas();
    void put_back_formulas() const;

    Sheet sheet_;
    Cells cells_;
    css::uno::Sequence<css::uno::Sequence<css::uno::Any>> data_;
    css::uno::Sequence<css::uno::Sequence<rtl::OUString>> texts_;  // empty when there is no formula
    CellPlaces formulas_;
    std::vector<ArrayFormula> arrays_;
    FormatsBefore formats_;
    RichTexts rich_texts_;
};

}  // namespace qor::calc
