#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "automation/variant.hpp"

namespace qor {

// Texts of cells that the host keeps in lists of its own, by row and column. They are read once for all cells.
using CellTexts = std::map<std::pair<std::int32_t, std::int32_t>, std::u16string>;

// The defined names of a workbook that refer to one single cell, by worksheet. Of several for a cell the host's first.
class CellNames {
  public:
    // Raises what the host raises, and then asks again the next time.
    const CellTexts& on(const std::u16string& workbook_name, const std::u16string& sheet_name);

  private:
    std::map<std::u16string, std::map<std::u16string, CellTexts>> workbooks_;
};

// The comments of a worksheet. Raises what the host raises.
CellTexts comment_texts(const Object& sheet);

}  // namespace qor
