#include "bench/ratio_report.hpp"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

namespace qor::bench {
namespace {

// A name "group/case" is compared with the first case of its group.
class RatioReporter final : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override {
        std::printf("%-44s %14s %9s  %s\n", "", "median", "ratio", "counters");
        return true;
    }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                std::printf("%-44s failed: %s\n", run.run_name.function_name.c_str(), run.error_message.c_str());
                failed_ = true;
            } else if (run.aggregate_name == "median" || run.repetitions <= 1) {
                print(run);
            }
        }
    }

    bool failed() const noexcept { return failed_; }

  private:
    void print(const Run& run) {
        const std::string& name = run.run_name.function_name;
        const std::string group = name.substr(0, name.find('/'));
        const double time = run.GetAdjustedRealTime();
        if (group != group_) {
            group_ = group;
            baseline_ = time;
        }
        std::printf("%-44s %11.3f %-2s %9.3f ", name.c_str(), time, benchmark::GetTimeUnitString(run.time_unit),
                    time / baseline_);
        for (const auto& [counter, value] : run.counters) std::printf(" %s=%.0f", counter.c_str(), value.value);
        std::printf("\n");
    }

    std::string group_;
    double baseline_ = 1;
    bool failed_ = false;
};

}  // namespace

bool run_with_ratios(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return false;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return !reporter.failed();
}

}  // namespace qor::bench
