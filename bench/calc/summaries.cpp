#include "bench/calc/tool_workload.hpp"

namespace qor::bench {
namespace {

constexpr std::int32_t sheets = 50;

// Fifty sheets of a thousand cells, half of them formulas.
void fill(const ToolWorkload& workload) {
    for (std::int32_t number = 1; number <= sheets; ++number) {
        if (number > 1) workload.book.get(names::Worksheets).call(names::Add);
        const Object sheet = workload.sheet();
        sheet.get(names::Range, u"A1:E100").put(names::Value, 7.0);
        sheet.get(names::Range, u"F1:J100").put(names::Formula, u"=A1*2");
    }
}

void summary(benchmark::State& state, const Context& context, const char16_t* command) {
    ToolWorkload workload(context);
    fill(workload);
    std::uint64_t calls = 0;
    for (auto _ : state) calls = workload.report(command);
    state.counters["host calls"] = static_cast<double>(calls);
}

}  // namespace

void register_summaries(const Context& context) {
    enter_once("Summaries/Worksheet Summary of 50 sheets", 3,
               [=](benchmark::State& state) { summary(state, context, u"UTWorSum"); });
    enter_once("Summaries/Workbook Summary of 50 sheets", 3,
               [=](benchmark::State& state) { summary(state, context, u"UTWokSum"); });
}

}  // namespace qor::bench
