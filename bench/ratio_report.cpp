#include "bench/ratio_report.hpp"

#include <benchmark/benchmark.h>
#include <fmt/ostream.h>

#include <string>
#include <vector>

namespace qor::bench {
namespace {

class RatioReporter final : public benchmark::BenchmarkReporter {
  public:
    explicit RatioReporter(std::ostream& report) : report_(report) {}

    bool ReportContext(const Context&) override {
        fmt::print(report_, "{:<50}{:>14}{:>10}{:>14}\n", "", "median", "ratio", "processor");
        return true;
    }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration) label_ = run.report_label;  // the runs may differ in it
            if (run.error_occurred) {
                fmt::print(report_, "{:<50} failed: {}\n", run.run_name.function_name, run.error_message);
                failed_ = true;
            } else if (run.aggregate_name == "median" || run.repetitions == 1) {
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
        const double seconds = time / benchmark::GetTimeUnitMultiplier(run.time_unit);
        if (group != group_) {
            group_ = group;
            baseline_ = seconds;
        }
        const char* unit = benchmark::GetTimeUnitString(run.time_unit);
        fmt::print(report_, "{:<50}{:>11.2f} {:<2}{:>10.4f}{:>11.2f} {:<2}", name, time, unit, seconds / baseline_,
                   run.GetAdjustedCPUTime(), unit);
        for (const auto& [counter, value] : run.counters) fmt::print(report_, "  {} {:.0f}", counter, value.value);
        if (!label_.empty()) fmt::print(report_, "  {}", label_);
        report_ << std::endl;
    }

    std::ostream& report_;
    std::string group_;
    std::string label_;
    double baseline_ = 1;
    bool failed_ = false;
};

}  // namespace

bool run_with_ratios(std::span<const char* const> arguments, std::ostream& report) {
    std::vector<std::string> copies(arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(copies.size());
    for (std::string& copy : copies) pointers.push_back(copy.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) return false;
    RatioReporter reporter(report);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return !reporter.failed();
}

}  // namespace qor::bench
