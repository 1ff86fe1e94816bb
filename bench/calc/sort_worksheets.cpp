#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <nlohmann/json.hpp>
#include <random>

#include "automation/member_names.hpp"
#include "bench/calc/cases.hpp"
#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/adapter/objects/application/application.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/ini_settings_store.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "screens/script/script_screen.hpp"

namespace qor::bench {
namespace {

// A workbook of so many worksheets in no order, each with some formulas that reach into the one before it.
class Workload {
  public:
    Workload(const Context& context, std::int32_t count)
        : application(calc::make_application(context, nullptr)),
          book(application.get(names::Workbooks).call(names::Add)) {
        const Object sheets = book.get(names::Worksheets);
        sheets.call(names::Add, named(names::Count, count - 1));
        for (std::int32_t place = 2; place <= count; ++place) {
            const std::u16string before = to_text(sheets.get(names::Item, place - 1).get(names::Name));
            sheets.get(names::Item, place).get(names::Range, u"A1:A20").put(names::Formula, u"=" + before + u"!A1+1");
        }
    }
    Workload(const Workload&) = delete;
    Workload& operator=(const Workload&) = delete;
    ~Workload() { book.call(names::Close, false); }

    // The same disorder each time.
    void shuffle() const {
        std::vector<Variant> sheets = book.get(names::Worksheets).object().items();
        std::ranges::shuffle(sheets, std::mt19937(7));
        for (const Variant& sheet : sheets) {
            sheet.call(names::Move, named(names::Before, book.get(names::Worksheets, 1)));
        }
    }

    Object application;
    Object book;
};

// What any sorting comes to: each sheet is moved once.
void moves_alone(benchmark::State& state, const Context& context, std::int32_t count) {
    const Workload workload(context, count);
    const calc::Document document = calc::Host(context).documents().back();
    const calc::Ref sheets{document->getSheets()};
    for (auto _ : state) {
        state.PauseTiming();
        workload.shuffle();
        auto sorted = sheets->getElementNames();
        std::sort(sorted.begin(), sorted.end(), std::greater<>());
        state.ResumeTiming();
        for (const auto& name : sorted) sheets->moveByName(name, 0);
    }
    state.counters["host calls"] = static_cast<double>(count);
}

void by_the_tool(benchmark::State& state, const Context& context, std::int32_t count) {
    const Workload workload(context, count);
    ScriptScreen screen;
    IniSettingsStore settings("");
    set_environment({screen, settings});
    const Object com = make_object<CCom>();
    const std::string window = to_utf8(to_text(workload.book.get(names::Name)));
    const nlohmann::json script = {
        {"forms", {{{{"check", "ctlTreeView"}, {"node", window}}, {{"press", "cmdButton(0)"}}}}}};
    std::uint64_t calls = 0;
    for (auto _ : state) {
        state.PauseTiming();
        workload.shuffle();
        state.ResumeTiming();
        const std::uint64_t before = calc::host_calls;
        screen.begin_call(script);
        com.call(MemberName(u"UTSorWor"), workload.application);
        screen.end_call();
        calls = calc::host_calls - before;
    }
    state.counters["host calls"] = static_cast<double>(calls);
}

}  // namespace

void register_sort_worksheets(const Context& context) {
    const auto enter = [&](const char* name, auto function, std::int32_t count) {
        benchmark::RegisterBenchmark(
            name, [context, function, count](benchmark::State& state) { function(state, context, count); })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->Repetitions(3);
    };
    enter("Sort Worksheets/200 sheets, the moves alone", moves_alone, 200);
    enter("Sort Worksheets/200 sheets, the tool", by_the_tool, 200);
    enter("Sort Worksheets/100 sheets, the tool", by_the_tool, 100);
}

}  // namespace qor::bench
