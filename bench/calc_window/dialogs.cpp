#include <benchmark/benchmark.h>
#include <gtk/gtk.h>
#include <wx/app.h>

#include <chrono>
#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/XToolkitExperimental.hpp>
#include <thread>

#include "automation/member_names.hpp"
#include "bench/calc_window/cases.hpp"
#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "hosts/calc/adapter/objects/application/application.hpp"
#include "platform/ini_settings_store.hpp"
#include "screens/wx/wx_screen.hpp"

namespace qor::bench {
namespace {

using Clock = std::chrono::steady_clock;

// Sees the first window of ours that comes, and closes the dialogs when it is painted.
class Onlooker {
  public:
    explicit Onlooker(WxScreen& screen) : screen_(screen) {
        g_type_class_unref(g_type_class_ref(GTK_TYPE_WIDGET));
        signal_ = g_signal_lookup("map", GTK_TYPE_WIDGET);
        hook_ = g_signal_add_emission_hook(signal_, 0, comes, this, nullptr);
    }
    Onlooker(const Onlooker&) = delete;
    Onlooker& operator=(const Onlooker&) = delete;
    ~Onlooker() { g_signal_remove_emission_hook(signal_, hook_); }

    Clock::time_point painted() const { return painted_; }

  private:
    static gboolean comes(GSignalInvocationHint*, guint, const GValue* arguments, gpointer self) {
        void* widget = g_value_get_object(arguments);
        auto& onlooker = *static_cast<Onlooker*>(self);
        const char* title = GTK_IS_WINDOW(widget) ? gtk_window_get_title(static_cast<GtkWindow*>(widget)) : nullptr;
        if (onlooker.seen_ || !title || !g_str_has_prefix(title, "QOR Plus")) return TRUE;
        onlooker.seen_ = true;
        g_signal_connect_after(widget, "draw", G_CALLBACK(draws), self);
        return TRUE;
    }
    static gboolean draws(GtkWidget*, cairo_t*, gpointer self) {
        auto& onlooker = *static_cast<Onlooker*>(self);
        if (onlooker.painted_ != Clock::time_point()) return FALSE;
        onlooker.painted_ = Clock::now();
        wxTheApp->CallAfter([&onlooker] { onlooker.screen_.close_all(); });
        return FALSE;
    }

    WxScreen& screen_;
    guint signal_ = 0;
    gulong hook_ = 0;
    bool seen_ = false;
    Clock::time_point painted_;
};

struct Dialog {
    const char* name;
    std::u16string_view member;
    bool takes_application = true;
    int repetitions = 5;
};

// The host paints its new window first: a user opens dialogs over one that stands still.
void let_host_settle(const Context& context) {
    using namespace std::chrono_literals;
    const css::uno::Reference<css::awt::XToolkitExperimental> toolkit(css::awt::Toolkit::create(context),
                                                                      css::uno::UNO_QUERY_THROW);
    for (const auto end = Clock::now() + 500ms; Clock::now() < end; std::this_thread::sleep_for(5ms)) {
        toolkit->processEventsToIdle();
    }
}

void show(benchmark::State& state, const Context& context, const Dialog& dialog) {
    const Object application = calc::make_application(context, nullptr);
    const Object book = application.get(names::Workbooks).call(names::Add).object();
    let_host_settle(context);
    IniSettingsStore settings("");
    for (auto _ : state) {
        const auto begin = Clock::now();
        static WxScreen screen({});  // with the first dialog, as a host has it
        set_environment({screen, settings});
        const Object com = make_object<CCom>();
        const Onlooker onlooker(screen);
        if (dialog.takes_application) {
            com.call(MemberName(dialog.member), application);
        } else {
            com.call(MemberName(dialog.member));
        }
        state.SetIterationTime(std::chrono::duration<double>(onlooker.painted() - begin).count());
    }
    book.call(names::Close, false);
}

}  // namespace

void register_dialogs(const Context& context) {
    static const Dialog dialogs[] = {
        {"dialog/the first, the box of the version", u"QAbout", false, 1},
        {"dialog/the box of the version", u"QAbout", false},
        {"dialog/the options", u"UTOpt"},
        {"dialog/Worksheet Summary, with its tree", u"UTWorSum"},
    };
    for (const Dialog& dialog : dialogs) {
        benchmark::RegisterBenchmark(dialog.name,
                                     [context, &dialog](benchmark::State& state) { show(state, context, dialog); })
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime()
            ->Iterations(1)
            ->Repetitions(dialog.repetitions);
    }
}

}  // namespace qor::bench
