// Workbooks that others made, each reported as a whole and held against a reading of the file without any office.
#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "tests/calc/support/report_run.hpp"

namespace qor::calc::tests {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

std::vector<fs::path> samples() {
    std::map<std::string, fs::path> by_name;
    for (const auto& entry : fs::recursive_directory_iterator(QOR_SAMPLES)) {
        static const std::set<std::string> kinds{".xls", ".xlsx", ".ods"};
        if (entry.is_regular_file() && kinds.contains(entry.path().extension())) {
            by_name.emplace(entry.path().filename(), entry.path());
        }
    }
    std::vector<fs::path> files;
    for (const auto& [name, path] : by_name) files.push_back(path);
    return files;
}

// With nothing of the office's own environment, which brings another Python.
json independent_reading(const fs::path& file) {
    const std::string command = "env -i /usr/bin/python3 '" QOR_INDEPENDENT_READING "' '" + file.string() + "' 2>&1";
    std::FILE* pipe = ::popen(command.c_str(), "r");
    REQUIRE(pipe);
    std::string text;
    char part[4096];
    while (const std::size_t size = std::fread(part, 1, sizeof part, pipe)) text.append(part, size);
    const int status = ::pclose(pipe);
    REQUIRE_MESSAGE(status == 0, text);
    return json::parse(text);
}

// How the report calls what the other reading found. A number may be money, which only its format tells.
bool is_of_kind(const std::string& type, const std::string& kind) {
    static const std::multimap<std::string, std::string> names{{"number", "Double"}, {"number", "Currency"},
                                                               {"text", "String"},   {"boolean", "Boolean"},
                                                               {"date", "Date"},     {"error", "Error"}};
    if (kind == "unknown") return true;
    const auto [first, last] = names.equal_range(kind);
    return std::any_of(first, last, [&](const auto& name) { return name.second == type; });
}

struct Cell {
    std::string type;
    std::string formula;
};
using Cells = std::map<std::string, Cell>;

// The records of the report on cells, by worksheet and address.
std::map<std::string, Cells> cells_of(const Report& report) {
    // A name that looks like a number has become one.
    const auto text = [](const Variant& value) { return to_utf8(to_text(value)); };
    const auto sheets = report.column(u"Worksheet Name");
    const auto addresses = report.column(u"Cell Address");
    const auto types = report.column(u"Cell Data Type");
    const auto formulas = report.column(u"Cell Formula");
    std::map<std::string, Cells> result;
    for (std::size_t record = 0; record < sheets.size(); ++record) {
        result[text(sheets[record])][text(addresses[record])] = {text(types[record]), text(formulas[record])};
    }
    return result;
}

class Comparison {
  public:
    void compare(const std::string& sheet, const Cells& cells, const json& expected) {
        for (const auto& [address, cell] : cells) {
            if (!expected.contains(address)) differ(sheet, address, "is no cell of the file");
        }
        for (const auto& [address, held] : expected.items()) {
            const auto found = cells.find(address);
            if (found == cells.end()) {
                differ(sheet, address, "is not in the report");
                continue;
            }
            const Cell& cell = found->second;
            if (!is_of_kind(cell.type, held[0]))
                differ(sheet, address, cell.type + " for " + held[0].get<std::string>());
            if (held[1] == "unknown") continue;
            if (held[1].is_string() ? !same_formula(cell.formula, held[1])
                                    : cell.formula.empty() == held[1].is_boolean())
                differ(sheet, address, cell.formula + " for " + held[1].dump());
        }
    }
    // The cells that differ, and how.
    const std::map<std::string, std::string>& differences() const { return differences_; }

  private:
    static bool same_formula(std::string formula, std::string other) {
        const auto plain = [](std::string& text) {
            std::erase_if(text, [](char c) { return c == ' ' || c == '{' || c == '}'; });
            for (std::size_t at; (at = text.find("_xlfn.")) != std::string::npos;) text.erase(at, 6);
        };
        plain(formula);
        plain(other);
        return formula == other;
    }
    void differ(const std::string& sheet, const std::string& address, const std::string& how) {
        differences_[sheet + "!" + address] = how;
    }

    std::map<std::string, std::string> differences_;
};

// Differences that are none of the reports: what the office makes of the file when it loads it.
struct Explained {
    const char* reason;
    std::set<std::string> cells;
};
const std::multimap<std::string, Explained> explained{
    {"CalcAddins.ods", {"a function of an add-in that is not there", {"Sheet1!B4", "Sheet1!D4"}}},
    {"ExampleAddIn.ods", {"a function of an add-in that is not there", {"Sheet1!B4", "Sheet1!D4"}}},
    // The pivot table stands in G2:K6. The office puts a row with the word Data above it, so that the table ends in row
    // 7: row 2 holds that word alone, row 3 the headings and not the first numbers.
    {"loadExample.xlsx",
     {"the headings, a row lower",
      {"IrisSample!G2", "IrisSample!I2", "IrisSample!J2", "IrisSample!K2", "IrisSample!H3", "IrisSample!I3",
       "IrisSample!J3", "IrisSample!K3"}}},
    {"loadExample.xlsx",
     {"the totals, a row lower",
      {"IrisSample!G7", "IrisSample!H7", "IrisSample!I7", "IrisSample!J7", "IrisSample!K7"}}},
    // The same of the one in A1:D5, whose row labels are numbers.
    {"loadExample.xlsx",
     {"the headings, a row lower",
      {"mtCars Pivot!A1", "mtCars Pivot!C1", "mtCars Pivot!D1", "mtCars Pivot!A2", "mtCars Pivot!B2", "mtCars Pivot!C2",
       "mtCars Pivot!D2"}}},
    {"loadExample.xlsx",
     {"the last group and the totals, a row lower",
      {"mtCars Pivot!A5", "mtCars Pivot!A6", "mtCars Pivot!B6", "mtCars Pivot!C6", "mtCars Pivot!D6"}}},
    {"readTest.xlsx", {"\"=#N/A\", which after loading is the same as a constant", {"Sheet1!H3"}}},
    {"read_failure_test.xlsx", {"an empty text, which the office does not keep", {"INDUSTRY MONTHLY!K1"}}},
};

std::set<std::string> explained_cells(const std::string& file) {
    std::set<std::string> cells;
    const auto [first, last] = explained.equal_range(file);
    for (auto entry = first; entry != last; ++entry)
        cells.insert(entry->second.cells.begin(), entry->second.cells.end());
    return cells;
}

}  // namespace

TEST_CASE("reports on workbooks that others made agree with an independent reading, cell by cell") {
    const std::vector<fs::path> files = samples();
    REQUIRE(files.size() >= 10);
    for (const fs::path& file : files) {
        CAPTURE(file.string());
        ToolRun run;
        run.set_option(u"chkT4ShowHiddenWorksheets", u"-1");
        const Object book = run.open(file);
        const std::string name = file.filename().string();
        const json expected = independent_reading(file);

        run.call(u"UTCelInf", report_on(name));
        const auto cells = cells_of(read_report(run.active_sheet()));
        run.application.get(names::ActiveWorkbook).call(names::Close, false);
        Comparison comparison;
        std::size_t count = 0;
        for (const auto& [sheet, held] : expected.items()) {
            const auto found = cells.find(sheet);
            comparison.compare(sheet, found == cells.end() ? Cells() : found->second, held);
            count += held.size();
        }

        run.call(u"UTWorSum", report_on(name));
        const Report summary = read_report(run.active_sheet());
        CHECK(summary.records.size() == expected.size());
        for (std::size_t record = 0; record < summary.records.size(); ++record) {
            const std::string sheet = to_utf8(to_text(summary.at(record, u"Worksheet Name")));
            CAPTURE(sheet);
            const Cells& reported = cells.contains(sheet) ? cells.at(sheet) : Cells();
            const auto formulas =
                std::ranges::count_if(reported, [](const auto& cell) { return !cell.second.formula.empty(); });
            CHECK(summary.at(record, u"Number of Formulas") == static_cast<double>(formulas));
            CHECK(summary.at(record, u"Number of Data Inputs") ==
                  static_cast<double>(reported.size()) - static_cast<double>(formulas));
        }
        run.application.get(names::ActiveWorkbook).call(names::Close, false);

        run.call(u"UTDatRev", report_on(name));
        run.application.get(names::ActiveWorkbook).call(names::Close, false);
        run.call(u"UTWokSum", report_on(name));
        CHECK(read_report(run.active_sheet()).at(0, u"Workbook Name") == Variant(from_utf8(name)));

        MESSAGE(name << ": " << expected.size() << " sheets, " << count << " cells, " << comparison.differences().size()
                     << " differences");
        std::set<std::string> differing;
        for (const auto& [cell, how] : comparison.differences()) {
            CAPTURE(cell);
            CAPTURE(how);
            CHECK(explained_cells(name).contains(cell));
            differing.insert(cell);
        }
        CHECK(differing == explained_cells(name));
    }
}

}  // namespace qor::calc::tests
