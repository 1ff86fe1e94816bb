#pragma once

#include <vector>

#include "hosts/calc/adapter/ground/range_areas.hpp"

namespace qor::calc {

// The formats of the numbers in a range, kept to put them back.
class FormatsBefore {
  public:
    explicit FormatsBefore(const Cells& cells);

    void put_back() const;

  private:
    struct Format {
        Ref<css::uno::XInterface> cells;
        css::uno::Any key;  // void where it is the style's
    };
    std::vector<Format> formats_;
};

}  // namespace qor::calc
