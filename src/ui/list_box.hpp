#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <vector>

#include "ui/control.hpp"

namespace qor {

// A list of rows with one text a column. Rows and columns are numbered from 0.
class ListBox final : public Control {
  public:
    struct Column {
        std::u16string caption;
        bool visible = true;
    };
    enum class Selecting : std::uint8_t { one_row, several_rows };

    ListBox(Form& form, std::u16string name, std::vector<Column> columns, Selecting selecting = Selecting::one_row)
        : Control(form, std::move(name)), columns_(std::move(columns)), selecting_(selecting) {}

    const std::vector<Column>& columns() const noexcept { return columns_; }
    Selecting selecting() const noexcept { return selecting_; }

    std::size_t count() const noexcept { return rows_.size(); }
    const std::u16string& text(std::size_t row, std::size_t column) const { return rows_.at(row).at(column); }
    // Texts that are not given are empty.
    void add_row(std::vector<std::u16string> texts);
    void set_text(std::size_t row, std::size_t column, std::u16string text);
    // The rows behind it move up; the selection goes with its rows.
    void remove_row(std::size_t row);
    void clear();

    // Where only one row can be selected, selecting another one ends its selection.
    bool is_selected(std::size_t row) const { return selected_.contains(row); }
    void set_selected(std::size_t row, bool selected);
    const std::set<std::size_t>& selection() const noexcept { return selected_; }
    std::optional<std::size_t> selected_row() const;  // the first one

    // What the user does. A click on a caption sorts by that column, a second one the other way round.
    void click_row(std::size_t row);
    void double_click_row(std::size_t row);
    void click_caption(std::size_t column);

    Event<std::size_t> on_click;
    Event<std::size_t> on_double_click;

  private:
    struct Sorting {
        std::size_t column;
        bool descending;
    };

    std::vector<Column> columns_;
    Selecting selecting_;
    std::vector<std::vector<std::u16string>> rows_;
    std::set<std::size_t> selected_;
    std::optional<Sorting> sorting_;
};

}  // namespace qor
