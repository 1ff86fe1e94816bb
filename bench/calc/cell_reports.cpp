#include <malloc.h>

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <fstream>

#include "bench/calc/tool_workload.hpp"
#include "bench/walk/cell_walk.hpp"
#include "hosts/calc/adapter/ground/host.hpp"
#include "runtime/conversion.hpp"

namespace qor::bench {
namespace {

constexpr std::int32_t columns = 10;
constexpr std::int32_t fields = 12;
constexpr std::int32_t heading_rows = 5;

Object block(const Object& sheet, std::int32_t column, std::int32_t rows) {
    return sheet.get(names::Range, sheet.get(names::Cells, 1, column), sheet.get(names::Cells, rows, column));
}

void fill(const Object& sheet, std::int32_t column, std::int32_t rows, const MemberName& property, auto value_of) {
    Array values = Array::table(static_cast<std::size_t>(rows), 1);
    for (std::int32_t row = 0; row < rows; ++row) values.at(static_cast<std::size_t>(row)) = value_of(row);
    block(sheet, column, rows).put(property, std::move(values));
}

void format(const Object& sheet, std::int32_t column, std::int32_t rows, const char16_t* code) {
    block(sheet, column, rows).put(names::NumberFormat, code);
}

// Ten columns of ten kinds in seven formats, a named cell and a hundred comments.
void fill_with_all_kinds(const ToolWorkload& workload, std::int32_t rows) {
    const Object sheet = workload.sheet();
    fill(sheet, 1, rows, names::Value, [](std::int32_t row) -> Variant { return 1.0 + row; });
    fill(sheet, 2, rows, names::Value, [](std::int32_t row) -> Variant { return row / 8.0; });
    fill(sheet, 3, rows, names::Value, [](std::int32_t) -> Variant { return u"text of a cell"; });
    fill(sheet, 4, rows, names::Value, [](std::int32_t row) -> Variant { return Date{30000.25 + row % 9000}; });
    fill(sheet, 5, rows, names::Formula, [](std::int32_t row) -> Variant { return u"=" + to_text(row) + u"+1"; });
    fill(sheet, 6, rows, names::Formula, [](std::int32_t) -> Variant { return u"=\"x\"&\"y\""; });
    fill(sheet, 7, rows, names::Value, [](std::int32_t row) -> Variant { return row % 3 == 0; });
    fill(sheet, 8, rows, names::Value, [](std::int32_t row) -> Variant { return Currency{std::int64_t{row} * 100}; });
    fill(sheet, 9, rows, names::Value, [](std::int32_t row) -> Variant { return (row % 100) / 100.0; });
    fill(sheet, 10, rows, names::Value, [](std::int32_t) -> Variant { return u"another text"; });
    format(sheet, 2, rows, u"0.00");
    format(sheet, 5, rows, u"#,##0");
    format(sheet, 9, rows, u"0%");
    workload.book.get(names::Names).call(names::Add, u"Rate", u"=Sheet1!$B$2");
    for (std::int32_t row = 1; row <= 100; ++row) {
        sheet.get(names::Cells, row, 3).call(MemberName(u"AddComment"), u"a note");
    }
}

// One cell in ten is a date.
void fill_with_some_dates(const ToolWorkload& workload, std::int32_t rows) {
    const Object sheet = workload.sheet();
    for (std::int32_t column = 1; column < columns; ++column) {
        fill(sheet, column, rows, names::Value, [](std::int32_t row) -> Variant { return 1.0 + row; });
    }
    fill(sheet, columns, rows, names::Value, [](std::int32_t row) -> Variant { return Date{30000.0 + row % 9000}; });
}

using Fill = void (*)(const ToolWorkload& workload, std::int32_t rows);
using Walk = void (*)(const Object& application, const WalkedSheet& source, const Object& report);

// The most memory that the process has used since it was last asked to count anew, in KB. What was freed before goes
// back to the system then: it would be used again without being counted.
long peak_memory() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmHWM:" && status >> word) return std::stol(word);
    }
    return 0;
}
void count_memory_anew() {
    ::malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5;
}

void by_the_walk(benchmark::State& state, const Context& context, Fill fill_in, Walk walk, std::int32_t rows) {
    const ToolWorkload workload(context);
    fill_in(workload, rows);
    const Object report = workload.application.get(names::Workbooks).call(names::Add).get(names::Worksheets, 1);
    std::uint64_t calls = 0;
    for (auto _ : state) {
        const std::uint64_t before = calc::host_calls;
        walk(workload.application, {workload.name(), u"Sheet1"}, report);
        calls = calc::host_calls - before;
    }
    state.counters["host calls"] = static_cast<double>(calls);
}

void by_the_tool(benchmark::State& state, const Context& context, Fill fill_in, const char16_t* command,
                 std::int32_t rows) {
    ToolWorkload workload(context);
    fill_in(workload, rows);
    std::uint64_t calls = 0;
    count_memory_anew();
    const long before = peak_memory();
    for (auto _ : state) calls = workload.report(command);
    const Object used = workload.application.get(names::ActiveSheet).get(names::UsedRange);
    const double cells = to_double(used.get(names::Count));
    state.counters["host calls"] = static_cast<double>(calls);
    state.counters["bytes a cell"] = static_cast<double>(peak_memory() - before) * 1024 / cells;
}

// The cells of a report, written by the office's own interface in one call: what no report can be faster than.
void raw_write(benchmark::State& state, const Context& context, std::int32_t rows) {
    ToolWorkload workload(context);
    fill_with_all_kinds(workload, rows);
    workload.report(u"UTCelInf");
    const auto records = [&] {
        const calc::Ref<css::container::XIndexAccess> sheets(
            calc::Ref{calc::Host(context).documents().back()->getSheets()});
        const calc::Ref<css::sheet::XSpreadsheet> sheet(sheets->getByIndex(0));
        return calc::Ref<css::sheet::XCellRangeData>(
            calc::Ref{sheet->getCellRangeByPosition(0, heading_rows, fields - 1, heading_rows + rows * columns - 1)});
    };
    const auto data = records()->getDataArray();
    workload.application.get(names::Workbooks).call(names::Add);
    for (auto _ : state) records()->setDataArray(data);
}

}  // namespace

void register_cell_reports(const Context& context) {
    const auto walk = [&](const char* name, Fill fill_in, Walk way, std::int32_t rows) {
        enter_once(name, 1, [=](benchmark::State& state) { by_the_walk(state, context, fill_in, way, rows); });
    };
    const auto tool = [&](const char* name, Fill fill_in, const char16_t* command, std::int32_t rows) {
        enter_once(name, 3, [=](benchmark::State& state) { by_the_tool(state, context, fill_in, command, rows); });
    };
    // The walks take minutes for what the tools do in seconds, so they have a tenth of the cells.
    walk("Cell Information/10,000 cells, cell by cell", fill_with_all_kinds, walk_cell_information, 1'000);
    tool("Cell Information/10,000 cells, the tool", fill_with_all_kinds, u"UTCelInf", 1'000);
    tool("Cell Information/100,000 cells, the tool", fill_with_all_kinds, u"UTCelInf", 10'000);
    tool("Cell Information/1,000 cells, the tool", fill_with_all_kinds, u"UTCelInf", 100);
    enter_once("Cell Information/the same report, raw array", 3,
               [=](benchmark::State& state) { raw_write(state, context, 10'000); });
    walk("Date Review/20,000 cells, cell by cell", fill_with_some_dates, walk_date_review, 2'000);
    tool("Date Review/20,000 cells, the tool", fill_with_some_dates, u"UTDatRev", 2'000);
    tool("Date Review/200,000 cells, the tool", fill_with_some_dates, u"UTDatRev", 20'000);
    tool("Date Review/2,000 cells, the tool", fill_with_some_dates, u"UTDatRev", 200);
}

}  // namespace qor::bench
