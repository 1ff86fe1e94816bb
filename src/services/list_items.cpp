#include "services/list_items.hpp"

namespace qor {

void SelectAllItems(ListBox& list) {
    for (std::size_t row = 0; row < list.count(); ++row) list.set_selected(row, true);
}

void MoveSelectedItems(ListBox& first, ListBox& second, MoveDirection direction) {
    ListBox& from = direction == MoveDirection::to_second ? first : second;
    ListBox& to = direction == MoveDirection::to_second ? second : first;
    for (std::size_t row = from.count(); row-- > 0;) {
        if (!from.is_selected(row)) continue;
        std::vector<std::u16string> texts;
        for (std::size_t column = 0; column < from.columns().size(); ++column) texts.push_back(from.text(row, column));
        from.remove_row(row);
        to.add_row(std::move(texts));
    }
}

}  // namespace qor
