#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "reports/cell_area.hpp"

namespace qor {

// A property of each cell of an area, such as NumberFormat, that a range answers with one value where its cells agree
// and with Null where they differ. So the host is asked once for the whole area, else once for each column, and only
// in columns that differ for their halves: the calls grow with columns and runs of equal cells. Nothing raises.
class SharedProperty {
  public:
    SharedProperty(Object sheet, const CellArea& area, const MemberName& property);

    // Null pointer where the host does not tell. Equal texts and equal truth values are one and the same Variant.
    const Variant* at(std::int32_t row, std::int32_t column);

  private:
    struct Run {
        std::int32_t last_row;
        const Variant* value;
    };
    using Runs = std::vector<Run>;

    std::optional<const Variant*> ask(const CellArea& part);
    void find_runs(const CellArea& part, Runs& runs);
    const Variant* kept(Variant value);

    Object sheet_;
    CellArea area_;
    const MemberName& property_;
    bool asked_ = false;
    std::optional<const Variant*> of_all_;
    std::vector<Runs> columns_;  // empty until they are needed
    std::deque<Variant> values_;
};

}  // namespace qor
