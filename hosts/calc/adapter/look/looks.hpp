#pragma once

#include <com/sun/star/uno/Any.hxx>
#include <vector>

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// How the cells of a range look, kept because filling spreads the look of the first cell over all.
class Looks {
  public:
    explicit Looks(const Cells& cells);

    // Whether the cells look all alike, so that there is nothing to give back.
    bool alike() const noexcept { return looks_.size() <= 1; }
    // Whether give_back knows all that makes the looks differ. Conditional formats and validity it does not.
    bool can_be_given_back() const;
    // To be called when all cells have the look of the first one, or any part of them has its own again.
    void give_back() const;

  private:
    struct Look {
        Ref<css::uno::XInterface> cells;
        css::uno::Sequence<css::uno::Any> values;
        css::uno::Sequence<css::beans::PropertyState> states;
    };

    std::vector<Look> looks_;  // the first cell's comes first
};

}  // namespace qor::calc
