#include "ui/list_box.hpp"

#include <algorithm>
#include <numeric>

#include "platform/text.hpp"

namespace qor {

void ListBox::add_row(std::vector<std::u16string> texts) {
    texts.resize(columns_.size());
    rows_.push_back(std::move(texts));
    changed();
}

void ListBox::set_text(std::size_t row, std::size_t column, std::u16string text) {
    assign(rows_.at(row).at(column), std::move(text));
}

void ListBox::remove_row(std::size_t row) {
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
    std::set<std::size_t> selected;
    for (const std::size_t other : selected_) {
        if (other != row) selected.insert(other < row ? other : other - 1);
    }
    selected_ = std::move(selected);
    changed();
}

void ListBox::clear() {
    rows_.clear();
    selected_.clear();
    changed();
}

void ListBox::set_selected(std::size_t row, bool selected) {
    std::set<std::size_t> selection = selected_;
    if (selected && selecting_ == Selecting::one_row) selection.clear();
    if (selected) {
        selection.insert(row);
    } else {
        selection.erase(row);
    }
    assign(selected_, std::move(selection));
}

std::optional<std::size_t> ListBox::selected_row() const {
    if (selected_.empty()) return {};
    return *selected_.begin();
}

void ListBox::click_row(std::size_t row) {
    if (!enabled() || row >= count()) return;
    if (selecting_ == Selecting::one_row) set_selected(row, true);
    on_click(row);
}

void ListBox::double_click_row(std::size_t row) {
    if (enabled() && row < count()) on_double_click(row);
}

void ListBox::click_caption(std::size_t column) {
    if (!enabled() || column >= columns_.size()) return;
    const bool again = sorting_ && sorting_->column == column;
    sorting_ = Sorting{column, again && !sorting_->descending};
    std::vector<std::size_t> order(rows_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](std::size_t left, std::size_t right) {
        if (sorting_->descending) std::swap(left, right);
        return to_upper(rows_[left][column]) < to_upper(rows_[right][column]);
    });
    std::vector<std::vector<std::u16string>> rows;
    std::set<std::size_t> selected;
    for (const std::size_t place : order) {
        if (selected_.contains(place)) selected.insert(rows.size());
        rows.push_back(std::move(rows_[place]));
    }
    rows_ = std::move(rows);
    selected_ = std::move(selected);
    changed();
}

}  // namespace qor
