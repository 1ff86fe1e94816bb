#pragma once

#include <cstdint>

#include "ui/list_box.hpp"

namespace qor {

// For forms with a pair of lists with the same columns.

enum class MoveDirection : std::uint8_t { to_second, to_first };

void SelectAllItems(ListBox& list);
// From the last selected entry to the first, so that they come in the opposite order.
void MoveSelectedItems(ListBox& first, ListBox& second, MoveDirection direction);

}  // namespace qor
