#include "session/range_text.hpp"

#include <algorithm>

#include "automation/member_names.hpp"
#include "runtime/conversion.hpp"
#include "session/json_value.hpp"

namespace qor {
namespace {

using nlohmann::json;

// A part of a range, counted from 1.
struct Part {
    std::int32_t first_row;
    std::int32_t first_column;
    std::int32_t rows;
    std::int32_t columns;
};

Object part_of(const Object& range, const Part& part) {
    const Object cells = range.get(names::Cells).object();
    const Variant first = cells.get(names::Item, part.first_row, part.first_column);
    const Variant last = cells.get(names::Item, part.first_row + part.rows - 1, part.first_column + part.columns - 1);
    return range.get(names::Worksheet).get(names::Range, first, last).object();
}

// The host answers one format for a range that has only one: a range that has several is asked in halves.
void read_formats(const Object& range, const Part& part, json& table) {
    const Variant format = part_of(range, part).get(names::NumberFormat);
    if (!format.is(Variant::Kind::null) || (part.rows == 1 && part.columns == 1)) {
        const json text = to_json(format);
        const auto rows = table.begin() + (part.first_row - 1);
        for (auto row = rows; row != rows + part.rows; ++row)
            std::fill_n(row->begin() + (part.first_column - 1), part.columns, text);
        return;
    }
    Part first = part;
    Part second = part;
    if (part.rows > 1) {
        first.rows = part.rows / 2;
        second.rows = part.rows - first.rows;
        second.first_row = part.first_row + first.rows;
    } else {
        first.columns = part.columns / 2;
        second.columns = part.columns - first.columns;
        second.first_column = part.first_column + first.columns;
    }
    read_formats(range, first, table);
    read_formats(range, second, table);
}

json table_of(const Variant& value) {
    if (value.array()) return to_json(value);
    return json::array({json::array({to_json(value)})});
}

json formulas_of(const Object& range) {
    json table = table_of(range.get(names::Formula));
    for (json& row : table) {
        for (json& cell : row) {
            if (cell.is_string() && cell.get_ref<const std::string&>().empty()) cell = nullptr;
        }
    }
    return table;
}

}  // namespace

json read_range(const Object& range) {
    json values = table_of(range.get(names::Value));
    json formulas = formulas_of(range);
    json formats = json::array_t(values.size(), json::array_t(values.front().size()));
    read_formats(range,
                 {1, 1, static_cast<std::int32_t>(values.size()), static_cast<std::int32_t>(values.front().size())},
                 formats);
    return {{"values", std::move(values)}, {"formulas", std::move(formulas)}, {"formats", std::move(formats)}};
}

}  // namespace qor
