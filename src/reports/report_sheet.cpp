#include "reports/report_sheet.hpp"

#include <algorithm>
#include <limits>
#include <map>
#include <ranges>
#include <vector>

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/option_table.hpp"
#include "reports/cell_area.hpp"
#include "runtime/clock.hpp"
#include "runtime/conversion.hpp"
#include "runtime/format.hpp"
#include "services/cell_address.hpp"

namespace qor {
namespace {

constexpr std::int32_t heading_row = 5;

// Adds the workbook or the worksheet that takes the report; either becomes the active one.
void make_destination() {
    bool new_workbook = false;
    attempt([&] { new_workbook = is_on(option::chkT5ReportNewWorkbook); });
    if (new_workbook) {
        gExcel.get(names::Workbooks).call(names::Add);
        return;
    }
    bool first = false;
    attempt([&] { first = is_on(option::rdoT5ReportLocation[0]); });
    const Object worksheets = gExcel.get(names::ActiveWorkbook).get(names::Worksheets);
    if (first) {
        worksheets.call(names::Add, named(names::Before, worksheets.get(names::Item, 1)));
    } else {
        worksheets.call(names::Add, named(names::After, worksheets.get(names::Item, worksheets.get(names::Count))));
    }
}

}  // namespace

ReportSheet::ReportSheet(std::u16string_view title, std::span<const std::u16string> headings) {
    made_ = attempt(make_destination) == 0;
    if (!made_) return;
    write_title_line(1, title, 16, true);
    write_title_line(2, u"Prepared Date: " + format(today(), u"mmmm d, yyyy"), 11, true);
    std::u16string user_name;
    if (attempt([&] { user_name = to_text(gExcel.get(names::UserName)); }) == 0) user_name.insert(0, u"Prepared By: ");
    write_title_line(3, user_name, 10, false);
    row_ = heading_row;
    write_headings(headings);
}

// Text that could not be made is not written; the font is set all the same.
void ReportSheet::write_title_line(std::int32_t row, std::u16string_view text, double size, bool italic) {
    row_ = row;
    if (!text.empty()) attempt([&] { cells(1, 1).put(names::Value, text); });
    attempt([&] { cells(1, 1).get(names::Font).put(names::Bold, true); });
    attempt([&] { cells(1, 1).get(names::Font).put(names::Size, size); });
    attempt([&] { cells(1, 1).get(names::Font).put(names::Italic, italic); });
}

void ReportSheet::write_headings(std::span<const std::u16string> headings) {
    const std::vector<std::optional<Variant>> values(headings.begin(), headings.end());
    write_values(values);
    const auto set_border = [&](const MemberName& property, std::int32_t value) {
        for_row(headings.size(),
                [&](const Object& range) { range.get(names::Borders, numbers::border::bottom).put(property, value); });
    };
    set_border(names::LineStyle, numbers::line_style::continuous);
    set_border(names::Weight, numbers::line_weight::thin);
    set_border(names::ColorIndex, numbers::colour_index::automatic);
    for_row(headings.size(), [](const Object& range) { range.get(names::Font).put(names::Bold, true); });
    for_row(headings.size(), [](const Object& range) { range.get(names::Font).put(names::Size, 10.0); });
}

void ReportSheet::add_record(std::span<const std::optional<Variant>> values) {
    ++row_;
    for_row(values.size(),
            [](const Object& range) { range.put(names::HorizontalAlignment, numbers::alignment::left); });
    write_values(values);
}

void ReportSheet::add_records(std::span<RecordColumn> columns) {
    if (columns.empty() || columns.front().values.empty() || full()) return;
    const auto count = static_cast<std::int64_t>(columns.front().values.size());
    const auto rows = static_cast<std::int32_t>(std::min<std::int64_t>(count, last_row() - row_));
    by_halves({row_ + 1, 1, rows, static_cast<std::int32_t>(columns.size())}, [&](const CellArea& part) {
        range_of(sheet(), part).put(names::HorizontalAlignment, numbers::alignment::left);
    });
    const auto has_formats = [](const RecordColumn& column) { return !column.formats.empty(); };
    // What takes the formats of elsewhere is written by itself: there the host may have to read the values.
    for (auto begin = columns.begin(); begin != columns.end();) {
        const auto end = has_formats(*begin) ? begin + 1 : std::find_if(begin, columns.end(), has_formats);
        const auto first_column = static_cast<std::int32_t>(begin - columns.begin()) + 1;
        if (has_formats(*begin)) write_formats(first_column, *begin, rows);
        write_block(first_column, {begin, end}, rows);
        begin = end;
    }
    row_ += rows;
}

void ReportSheet::write_formats(std::int32_t column, const RecordColumn& records, std::int32_t rows) {
    std::map<const Variant*, std::vector<RowRun>> runs;
    const auto formats = std::span(records.formats).first(static_cast<std::size_t>(rows));
    const Variant* before = nullptr;
    for (std::int32_t row = row_ + 1; const Variant* format : formats) {
        if (format && format == before) {
            runs[format].back().last = row;
        } else if (format) {
            runs[format].push_back({row, row});
        }
        before = format;
        ++row;
    }
    for (const auto& [format, places] : runs) write_format(column, places, *format);
}

// Hosts differ in how many areas they take at once, so what is refused is tried again with half of them.
void ReportSheet::write_format(std::int32_t column, std::span<const RowRun> runs, const Variant& format) {
    if (runs.size() == 1) {
        const RowRun& run = runs.front();
        return by_halves({run.first, column, run.last - run.first + 1, 1},
                         [&](const CellArea& part) { range_of(sheet(), part).put(names::NumberFormat, format); });
    }
    std::u16string address;
    for (const RowRun& run : runs) {
        if (!address.empty()) address += u',';
        address += relative_address(run.first, column);
        if (run.last > run.first) address += u':' + relative_address(run.last, column);
    }
    if (attempt([&] { sheet().get(names::Range, address).put(names::NumberFormat, format); }) == 0) return;
    write_format(column, runs.first(runs.size() / 2), format);
    write_format(column, runs.subspan(runs.size() / 2), format);
}

void ReportSheet::write_block(std::int32_t first_column, std::span<RecordColumn> columns, std::int32_t rows) {
    by_halves({row_ + 1, first_column, rows, static_cast<std::int32_t>(columns.size())}, [&](const CellArea& part) {
        const auto value_at = [&](std::int32_t row, std::int32_t column) -> const Variant& {
            const RecordColumn& records = columns[static_cast<std::size_t>(part.column - first_column + column)];
            return records.values[static_cast<std::size_t>(part.row - row_ - 1 + row)];
        };
        if (part.cells() == 1) return range_of(sheet(), part).put(names::Value, value_at(0, 0));
        Array array = Array::table(static_cast<std::size_t>(part.rows), static_cast<std::size_t>(part.columns));
        std::size_t place = 0;
        for (std::int32_t row = 0; row < part.rows; ++row) {
            for (std::int32_t column = 0; column < part.columns; ++column) array.at(place++) = value_at(row, column);
        }
        range_of(sheet(), part).put(names::Value, std::move(array));
    });
}

bool ReportSheet::full() {
    return row_ >= last_row();
}

std::int32_t ReportSheet::last_row() {
    if (last_row_ == 0) attempt([&] { last_row_ = to_long(sheet().get(names::Rows).get(names::Count)); });
    return last_row_ == 0 ? std::numeric_limits<std::int32_t>::max() : last_row_;
}

// Writes each run of neighbouring values at once.
void ReportSheet::write_values(std::span<const std::optional<Variant>> values) {
    const auto is_present = [](const std::optional<Variant>& value) { return value.has_value(); };
    auto begin = std::ranges::find_if(values, is_present);
    while (begin != values.end()) {
        const auto end = std::find_if_not(begin, values.end(), is_present);
        write_run(static_cast<std::size_t>(begin - values.begin()) + 1, {begin, end});
        begin = std::find_if(end, values.end(), is_present);
    }
}

void ReportSheet::write_run(std::size_t first, std::span<const std::optional<Variant>> values) {
    if (values.size() > 1) {
        Array array = Array::table(1, values.size());
        for (std::size_t place = 0; place < values.size(); ++place) array.at(place) = *values[place];
        if (attempt([&] { cells(first, values.size()).put(names::Value, std::move(array)); }) == 0) return;
    }
    for (std::size_t place = 0; place < values.size(); ++place) {
        attempt([&] { cells(first + place, 1).put(names::Value, *values[place]); });
    }
}

const Object& ReportSheet::sheet() {
    if (!sheet_) sheet_ = gExcel.get(names::ActiveSheet);
    return sheet_;
}

// Cells of the current row; columns count from 1.
Object ReportSheet::cells(std::size_t first_column, std::size_t count) {
    const auto first = static_cast<std::int32_t>(first_column);
    const Variant first_cell = sheet().get(names::Cells, row_, first);
    if (count == 1) return first_cell;
    const std::int32_t last = first + static_cast<std::int32_t>(count) - 1;
    return sheet().get(names::Range, first_cell, sheet().get(names::Cells, row_, last));
}

// Runs the statement once on the row's first `count` cells, or where the host refuses that, on each of them.
template <class Statement>
void ReportSheet::for_row(std::size_t count, Statement statement) {
    if (count == 0 || attempt([&] { statement(cells(1, count)); }) == 0) return;
    for (std::size_t column = 1; column <= count; ++column) {
        attempt([&] { statement(cells(column, 1)); });
    }
}

}  // namespace qor
