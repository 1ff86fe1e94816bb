// Workbooks that others made, each reported as a whole and held against a reading of the file without any office.
#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "tests/calc/report_run.hpp"

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
    std::size_t count() const { return count_; }
    const std::string& first_ones() const { return first_ones_; }

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
        if (++count_ <= 12) first_ones_ += "\n    " + sheet + "!" + address + ": " + how;
    }

    std::size_t count_ = 0;
    std::string first_ones_;
};

// Differences that are none of the reports: what the office makes of the file when it loads it.
const std::map<std::string, std::size_t> explained{
    {"CalcAddins.ods", 2},          // functions of an add-in that is not there
    {"ExampleAddIn.ods", 2},        // the same
    {"loadExample.xlsx", 25},       // a pivot table that the office lays out anew
    {"readTest.xlsx", 1},           // "=#N/A", which after loading is the same as a constant
    {"read_failure_test.xlsx", 1},  // an empty text, which the office does not keep
};

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

        MESSAGE(name << ": " << expected.size() << " sheets, " << count << " cells, " << comparison.count()
                     << " differences" << comparison.first_ones());
        const auto known = explained.find(name);
        CHECK(comparison.count() == (known == explained.end() ? 0 : known->second));
    }
}

}  // namespace qor::calc::tests
