#pragma once

#include "tests/calc/support/tool_run.hpp"

namespace qor::calc::tests {

// A script that checks everything in the tree of a report's dialog and presses OK.
nlohmann::json report_on_all();
// The same with one node checked.
nlohmann::json report_on(const std::string& key);

// The text in column A of row 5 and on: the headings, and below them the records until the first row that is empty.
struct Report {
    std::vector<Variant> headings;
    std::vector<std::vector<Variant>> records;

    // The entry of a record under a heading; the first record is 0.
    const Variant& at(std::size_t record, std::u16string_view heading) const;
    // The entries of all records under a heading.
    std::vector<Variant> column(std::u16string_view heading) const;
};

// The report that stands on a sheet.
Report read_report(const Object& sheet);

}  // namespace qor::calc::tests
