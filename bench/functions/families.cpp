// What a call costs in every family of functions: the first examples of all its functions, one after the other.
#include <benchmark/benchmark.h>
#include <time.h>

#include <array>
#include <string>

#include "bench/functions/cases.hpp"
#include "functions/families.hpp"
#include "functions/registry.hpp"
#include "platform/text.hpp"
#include "tests/functions/hostile_values.hpp"

namespace qor::bench {
namespace {

struct Family {
    const char* name;
    std::vector<FunctionDeclaration> (*functions)();
};

constexpr std::array families{
    Family{"call/common size", common_size_functions},
    Family{"call/turnover and liquidity", turnover_and_liquidity_functions},
    Family{"call/profitability", profitability_functions},
    Family{"call/cash flow", cash_flow_functions},
    Family{"call/business failure", business_failure_functions},
    Family{"call/factory cost", factory_cost_functions},
    Family{"call/variance", variance_functions},
    Family{"call/break even and leverage", break_even_and_leverage_functions},
    Family{"call/shares and market", shares_and_market_functions},
    Family{"call/rates of return", rate_of_return_functions},
    Family{"call/interest and present value", interest_and_present_value_functions},
    Family{"call/options and rights", option_and_right_functions},
    Family{"call/inventory and cash", inventory_and_cash_functions},
    Family{"call/workforce", workforce_functions},
    Family{"call/dates", date_functions},
    Family{"call/logical", logical_functions},
    Family{"call/information", information_functions},
};

struct Call {
    const Function* function;
    std::vector<Variant> arguments;
};

void call_in_turn(benchmark::State& state, std::vector<Call> calls) {
    std::size_t place = 0;
    for (auto _ : state) {
        Call& call = calls[place];
        Variant result = call.function->invoke(call.arguments);
        benchmark::DoNotOptimize(result);
        place = place + 1 == calls.size() ? 0 : place + 1;
    }
}

std::vector<Call> first_examples(const Family& family) {
    std::vector<Call> calls;
    for (const FunctionDeclaration& declared : family.functions()) {
        const Function* const function = find_function(declared.name);
        calls.push_back({function, function->examples.front().arguments});
    }
    return calls;
}

// Of this thread alone, in seconds: among thousands of calls some always wait for another process.
double processor_time() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// The longest call of any function with one hostile value in all its places, or in one of the example's.
void slowest_call(benchmark::State& state) {
    for (auto _ : state) {
        double longest = 0;
        const auto measure = [&](const Function& function, std::vector<Variant> arguments) {
            const double start = processor_time();
            attempt([&] { function.invoke(std::span(arguments)); });
            const double time = processor_time() - start;
            if (time <= longest) return;
            longest = time;
            state.SetLabel(to_utf8(function.name));
        };
        for (const Function& function : worksheet_functions()) {
            const std::vector<Variant>& usual = function.examples.front().arguments;
            for (const Variant& value : test::hostile_values()) {
                measure(function, std::vector<Variant>(function.parameters.size(), value));
                for (std::size_t place = 0; place < usual.size(); ++place) {
                    std::vector<Variant> arguments = usual;
                    arguments[place] = value;
                    measure(function, std::move(arguments));
                }
            }
        }
        state.SetIterationTime(longest);
    }
}

}  // namespace

void register_families() {
    const auto enter = [](const char* name, std::vector<Call> calls) {
        benchmark::RegisterBenchmark(
            name, [calls = std::move(calls)](benchmark::State& state) { call_in_turn(state, calls); })
            ->MinTime(0.05)
            ->Repetitions(7);
    };
    for (const Family& family : families) enter(family.name, first_examples(family));
    const auto words = [](std::vector<Variant> arguments) {
        return std::vector<Call>{{find_function(u"NUMBERTOWORDS"), std::move(arguments)}};
    };
    enter("call/FORMATNAME", {{find_function(u"FORMATNAME"), {u"Ann", u"Lee", u"May", u"Dr.", u"PhD"}}});
    enter("call/ORDINAL", {{find_function(u"ORDINAL"), {22.0}}});
    enter("call/NUMBERTOWORDS(1234.5; \"check\")", words({1234.5, u"check"}));
    enter("call/NUMBERTOWORDS of 18 digits", words({u"987654321987654321.12", u"dollar"}));
    enter("call/NUMBERTOWORDS of no number", words({u"abc"}));
    enter("call/DRIVEINFO(3; \"C\")", {{find_function(u"DRIVEINFO"), {3, u"C"}}});
    benchmark::RegisterBenchmark("call/slowest call of any argument", slowest_call)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(7)
        ->Unit(benchmark::kMicrosecond);
}

}  // namespace qor::bench
