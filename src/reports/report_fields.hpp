#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/variant.hpp"

namespace qor {

// What a report knows about one of its fields: how the user sees it and how its value is read from what a record is
// about. A reader raises what the host raises; the field's cell then stays as it is.
template <class Source>
struct ReportColumn {
    std::u16string_view key;
    std::u16string_view heading;
    Variant (*read)(Source&);
    // The number format that the field's cell takes before the value; null: it keeps its own.
    const Variant* (*format)(Source&) = nullptr;
    // The text by which a heading is known when the report is written.
    std::u16string_view literal = heading;
};

// The column of each heading; null for a heading that the report does not have, which stays blank.
template <class Column>
std::vector<const Column*> columns_for(std::span<const std::u16string> headings, std::span<const Column> all) {
    std::vector<const Column*> columns;
    for (const std::u16string& heading : headings) {
        const auto column = std::ranges::find(all, heading, &Column::literal);
        columns.push_back(column == all.end() ? nullptr : &*column);
    }
    return columns;
}

// What a record holds in these columns; nothing where there is no column and where reading fails.
template <class Source>
std::vector<std::optional<Variant>> values_of(const std::vector<const ReportColumn<Source>*>& columns, Source& source) {
    std::vector<std::optional<Variant>> values(columns.size());
    for (std::size_t place = 0; place < columns.size(); ++place) {
        if (columns[place]) attempt([&] { values[place] = columns[place]->read(source); });
    }
    return values;
}

// One entry of the list of fields in a report's dialog.
struct ReportField {
    static constexpr std::int32_t unchecked = 1;
    static constexpr std::int32_t checked = 2;

    std::u16string Heading;
    std::u16string Key;
    std::int32_t Order = 0;  // place in the list, from 0
    std::int32_t NewOrder = 0;
    std::int32_t CheckState = checked;
};

// The fields in the order of the report's columns.
class ReportFields {
  public:
    ReportFields() = default;
    template <class Columns>
    explicit ReportFields(const Columns& columns) {
        for (const auto& column : columns) add(column.key, column.heading);
    }

    const std::vector<ReportField>& entries() const noexcept { return entries_; }

    // Checked becomes unchecked, anything else becomes checked. Answers the new state.
    std::int32_t toggle(std::u16string_view key);

    // The dragged field takes the target's place; the target and all between move one step towards the place that it
    // left. Neither place may be outside the list.
    void move(std::int32_t dragged, std::int32_t target);

    std::vector<std::u16string> checked_headings() const;

    const ReportField* find(std::u16string_view key) const noexcept;

  private:
    void add(std::u16string_view key, std::u16string_view heading);

    std::vector<ReportField> entries_;
};

}  // namespace qor
