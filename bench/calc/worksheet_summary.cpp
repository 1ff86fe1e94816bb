#include <benchmark/benchmark.h>

#include <nlohmann/json.hpp>

#include "automation/member_names.hpp"
#include "bench/calc/cases.hpp"
#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "hosts/calc/adapter/objects/application/application.hpp"
#include "hosts/calc/uno/ref.hpp"
#include "platform/ini_settings_store.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "screens/script/script_screen.hpp"

namespace qor::bench {
namespace {

// A workbook with one sheet of that many rows and ten used columns, half of the rows formulas; closed at the end.
class Workload {
  public:
    Workload(const Context& context, std::int32_t rows)
        : application(calc::make_application(context, nullptr)),
          book_(application.get(names::Workbooks).call(names::Add)) {
        const std::int32_t half = rows / 2;
        const Object sheet = book_.get(names::Worksheets, 1);
        const auto block = [&](std::int32_t first, std::int32_t last) {
            return sheet.get(names::Range, sheet.get(names::Cells, first, 1), sheet.get(names::Cells, last, 10));
        };
        Array numbers = Array::table(static_cast<std::size_t>(half), 10);
        for (std::size_t place = 0; place < numbers.size(); ++place) numbers.at(place) = static_cast<double>(place);
        block(1, half).put(names::Value, std::move(numbers));
        Array formulas = Array::table(static_cast<std::size_t>(half), 10);
        for (std::size_t place = 0; place < formulas.size(); ++place) formulas.at(place) = u"=1+1";
        block(half + 1, rows).put(names::Formula, std::move(formulas));
    }

    ~Workload() {
        while (to_long(application.get(names::Workbooks).get(names::Count)) > 0) {
            application.get(names::Workbooks, 1).call(names::Close, false);
        }
    }

    std::u16string name() const { return to_text(book_.get(names::Name)); }
    Object sheet() const { return book_.get(names::Worksheets, 1); }

    Object application;

  private:
    Object book_;
};

// One pass over the used range, as a reader from cell to cell does it.
template <class Counts>
std::int32_t walk(const Object& sheet, Counts counts) {
    const Object used = sheet.get(names::UsedRange);
    const std::int32_t rows = to_long(used.get(names::Rows).get(names::Count));
    const std::int32_t columns = to_long(used.get(names::Columns).get(names::Count));
    std::int32_t count = 0;
    for (std::int32_t row = 1; row <= rows; ++row) {
        for (std::int32_t column = 1; column <= columns; ++column) {
            if (counts(used.get(names::Cells, row, column))) ++count;
        }
    }
    return count;
}

bool is_used(const Object& cell) {
    return !to_text(cell.get(names::Value)).empty();
}
bool is_formula(const Object& cell) {
    return to_text(cell.get(names::Formula)).starts_with(u'=');
}
bool is_input(const Object& cell) {
    return !is_formula(cell) && is_used(cell);
}

void cell_by_cell(benchmark::State& state, const Context& context, std::int32_t rows) {
    const Workload workload(context, rows);
    std::uint64_t calls = 0;
    for (auto _ : state) {
        const std::uint64_t before = calc::host_calls;
        const Object sheet = workload.sheet();
        benchmark::DoNotOptimize(walk(sheet, is_used));
        benchmark::DoNotOptimize(walk(sheet, is_input));
        benchmark::DoNotOptimize(walk(sheet, is_formula));
        benchmark::DoNotOptimize(walk(sheet, is_input));
        benchmark::DoNotOptimize(walk(sheet, is_formula));
        calls = calc::host_calls - before;
    }
    state.counters["host calls"] = static_cast<double>(calls);
}

void by_the_tool(benchmark::State& state, const Context& context, std::int32_t rows) {
    const Workload workload(context, rows);
    ScriptScreen screen;
    IniSettingsStore settings("");
    set_environment({screen, settings});
    const Object com = make_object<CCom>();
    const nlohmann::json script = {
        {"forms", {{{{"check", "ctlTreeView"}, {"node", to_utf8(workload.name())}}, {{"press", "cmdButton(0)"}}}}}};
    std::uint64_t calls = 0;
    for (auto _ : state) {
        const std::uint64_t before = calc::host_calls;
        screen.begin_call(script);
        com.call(MemberName(u"UTWorSum"), workload.application);
        screen.end_call();
        calls = calc::host_calls - before;
    }
    state.counters["host calls"] = static_cast<double>(calls);
}

}  // namespace

void register_worksheet_summary(const Context& context) {
    const auto enter = [&](const char* name, auto function, std::int32_t rows, int repetitions) {
        benchmark::RegisterBenchmark(
            name, [context, function, rows](benchmark::State& state) { function(state, context, rows); })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->Repetitions(repetitions);
    };
    enter("Worksheet Summary/200,000 cells, cell by cell", cell_by_cell, 20'000, 2);
    enter("Worksheet Summary/200,000 cells, the tool", by_the_tool, 20'000, 5);
    enter("Worksheet Summary/2,000 cells, the tool", by_the_tool, 200, 5);
}

}  // namespace qor::bench
