#include <benchmark/benchmark.h>

#include <filesystem>

#include "automation/member_names.hpp"
#include "bench/calc_window/cases.hpp"
#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "hosts/calc/adapter/objects/application/application.hpp"
#include "hosts/calc/bars/bars.hpp"
#include "hosts/calc/bars/office_faces.hpp"
#include "platform/ini_settings_store.hpp"
#include "platform/text.hpp"
#include "screens/script/script_screen.hpp"
#include "stores/data_folder.hpp"

namespace qor::bench {
namespace {

const MemberName QMenuCreate{u"QMenuCreate"};
const MemberName QMenuDelete{u"QMenuDelete"};

void build(benchmark::State& state, const Context& context) {
    const auto data = std::filesystem::temp_directory_path() / "qorplus-bench-data";
    create_data_files(data);
    const Object application = calc::make_application(context, nullptr, from_utf8(data.native()));
    const Object book = application.get(names::Workbooks).call(names::Add).object();
    ScriptScreen screen;
    IniSettingsStore settings(data / "settings.ini");
    calc::OfficeFaces faces(context);
    set_environment({screen, settings, faces});
    const Object com = make_object<CCom>();
    const auto bars = calc::Bars::of(context);
    std::uint64_t calls = 0;
    for (auto _ : state) {
        const std::uint64_t before = calc::host_calls;
        com.call(QMenuCreate, application);
        bars->flush();
        calls = calc::host_calls - before;
        state.PauseTiming();
        com.call(QMenuDelete, application, false);
        bars->flush();
        state.ResumeTiming();
    }
    state.counters["host calls"] = static_cast<double>(calls);
    book.call(names::Close, false);
    std::filesystem::remove_all(data);
}

}  // namespace

void register_menu(const Context& context) {
    const auto enter = [&](const char* name, int repetitions) {
        benchmark::RegisterBenchmark(name, [context](benchmark::State& state) { build(state, context); })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->Repetitions(repetitions);
    };
    enter("menu/built and shown for the first time", 1);
    enter("menu/built and shown again", 5);
}

}  // namespace qor::bench
