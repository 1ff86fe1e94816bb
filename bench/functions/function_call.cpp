// What a worksheet function costs: the declared formula directly, and through CCom's late-bound door.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <iostream>

#include "bench/functions/cases.hpp"
#include "bench/ratio_report.hpp"
#include "core/CCom.hpp"
#include "functions/registry.hpp"
#include "ground/MMain.hpp"
#include "platform/ini_settings_store.hpp"
#include "screens/script/script_screen.hpp"

using namespace qor;

namespace {

// The same arithmetic with nothing around it, rounded the plain way.
void plain_arithmetic(benchmark::State& state) {
    double begin = 100;
    double end = 300;
    double sales = 1000;
    for (auto _ : state) {
        benchmark::DoNotOptimize(begin);
        benchmark::DoNotOptimize(end);
        benchmark::DoNotOptimize(sales);
        double ratio = std::nearbyint((begin + end) / 2 / sales * 1e4) / 1e4;
        benchmark::DoNotOptimize(ratio);
    }
}

void declared_formula(benchmark::State& state) {
    const Function& function = *find_function(u"ARNS");
    std::array<Variant, 3> arguments{Variant(100.0), Variant(300.0), Variant(1000.0)};
    for (auto _ : state) {
        Variant result = function.invoke(arguments);
        benchmark::DoNotOptimize(result);
    }
}

void late_bound_call(benchmark::State& state) {
    const Object com = make_object<CCom>();
    const MemberName ARNS(u"ARNS");
    for (auto _ : state) {
        Variant result = com.call(ARNS, 100.0, 300.0, 1000.0);
        benchmark::DoNotOptimize(result);
    }
}

void late_bound_call_by_text(benchmark::State& state) {
    const Object com = make_object<CCom>();
    for (auto _ : state) {
        Variant result = com.call(MemberName(u"arns"), 100.0, 300.0, 1000.0);
        benchmark::DoNotOptimize(result);
    }
}

}  // namespace

int main(int argc, char** argv) {
    ScriptScreen screen;
    IniSettingsStore settings("");
    set_environment({screen, settings});
    const auto enter = [](const char* name, auto* function) {
        benchmark::RegisterBenchmark(name, function)->Repetitions(7);
    };
    enter("call/plain arithmetic", plain_arithmetic);
    enter("call/declared formula", declared_formula);
    enter("call/late bound", late_bound_call);
    enter("call/late bound, name looked up each time", late_bound_call_by_text);
    bench::register_families();
    return bench::run_with_ratios({argv, static_cast<std::size_t>(argc)}, std::cout) ? 0 : 1;
}
