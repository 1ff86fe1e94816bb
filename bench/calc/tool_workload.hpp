#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "automation/member_names.hpp"
#include "bench/calc/cases.hpp"
#include "core/CCom.hpp"
#include "platform/ini_settings_store.hpp"
#include "screens/script/script_screen.hpp"

namespace qor::bench {

// One new workbook, and the reports on it by the tools; all workbooks are closed at the end.
class ToolWorkload {
  public:
    explicit ToolWorkload(const Context& context);
    ~ToolWorkload();
    ToolWorkload(const ToolWorkload&) = delete;
    ToolWorkload& operator=(const ToolWorkload&) = delete;

    // The report with every field on everything that is open; answers the number of calls into the office.
    std::uint64_t report(std::u16string_view command);
    Object sheet(std::int32_t index = 1) const { return book.get(names::Worksheets, index); }
    std::u16string name() const;
    // Every workbook but this one goes.
    void close_others();

    Object application;
    Object book;

  private:
    ScriptScreen screen_;
    IniSettingsStore settings_{""};
    Object com_;
};

// What runs once and is timed in milliseconds.
template <class Function>
void enter_once(const char* name, int repetitions, Function function) {
    benchmark::RegisterBenchmark(name, function)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(repetitions);
}

}  // namespace qor::bench
