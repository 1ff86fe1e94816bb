#include "tests/calc/support/report_run.hpp"

#include <algorithm>

namespace qor::calc::tests {
namespace {

using nlohmann::json;

constexpr std::size_t rows_above = 4;  // of the headings

}  // namespace

json report_on(const std::string& key) {
    return {{"forms", {{{{"check", "ctlTreeView"}, {"node", key}}, {{"press", "cmdButton(0)"}}}}}};
}

json report_on_all() {
    return report_on("ROOT");
}

const Variant& Report::at(std::size_t record, std::u16string_view heading) const {
    const auto place = std::ranges::find_if(headings, [&](const Variant& one) { return one == Variant(heading); });
    REQUIRE(place != headings.end());
    REQUIRE(record < records.size());
    return records[record][static_cast<std::size_t>(place - headings.begin())];
}

std::vector<Variant> Report::column(std::u16string_view heading) const {
    std::vector<Variant> entries;
    for (std::size_t record = 0; record < records.size(); ++record) entries.push_back(at(record, heading));
    return entries;
}

Report read_report(const Object& sheet) {
    const Variant values = sheet.get(names::UsedRange).get(names::Value);
    const Array* table = values.array();
    REQUIRE(table);
    REQUIRE(table->rows() > rows_above);
    Report report;
    for (std::size_t row = rows_above; row < table->rows(); ++row) {
        std::vector<Variant> entries;
        for (std::size_t column = 0; column < table->columns(); ++column) entries.push_back(table->at(row, column));
        if (row == rows_above) {
            report.headings = std::move(entries);
        } else {
            report.records.push_back(std::move(entries));
        }
    }
    return report;
}

}  // namespace qor::calc::tests
