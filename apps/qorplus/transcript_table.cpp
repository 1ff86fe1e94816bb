#include "apps/qorplus/transcript_table.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "platform/text.hpp"

namespace qor::cli {
namespace {

using nlohmann::json;

std::string shown(const json& value) {
    if (value.is_null()) return {};
    if (value.is_boolean()) return value.get<bool>() ? "TRUE" : "FALSE";
    if (value.is_number_float()) return fmt::format("{}", value.get<double>());
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::size_t width_of(const std::string& text) {
    return std::u32string::size_type{from_utf8(text).size()};
}

std::string table_text(const json& rows) {
    std::vector<std::size_t> widths(rows.front().size(), 0);
    for (const json& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], width_of(shown(row[column])));
    }
    std::string text;
    for (const json& row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::string cell = shown(row[column]);
            const std::string padding(widths[column] - width_of(cell), ' ');
            line += row[column].is_number() ? padding + cell : cell + padding;
            line += "  ";
        }
        text += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    }
    return text;
}

}  // namespace

std::string transcript_tables(const json& transcript) {
    std::string text;
    for (const json& step : transcript.at("steps")) {
        if (!step.contains("read")) continue;
        if (!text.empty()) text += '\n';
        text += table_text(step["read"]["values"]);
    }
    return text;
}

}  // namespace qor::cli
