#include "screens/wx/host_window.hpp"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <vector>

namespace qor::wx {
namespace {

std::vector<GtkWindow*> top_windows() {
    std::vector<GtkWindow*> windows;
    const std::unique_ptr<GList, decltype(&g_list_free)> list(gtk_window_list_toplevels(), g_list_free);
    for (const GList* at = list.get(); at; at = at->next) windows.push_back(static_cast<GtkWindow*>(at->data));
    return windows;
}

std::uintptr_t handle_of(GtkWindow* window) {
    GdkWindow* drawn = gtk_widget_get_window(GTK_WIDGET(window));
    return drawn && GDK_IS_X11_WINDOW(drawn) ? gdk_x11_window_get_xid(drawn) : 0;
}

// The host draws by the same GTK in the same process, so its window is one of ours to GTK.
GtkWindow* host_window(const NativeWindow& host) {
    const std::uintptr_t handle = host ? host() : 0;
    if (handle == 0) return nullptr;
    const auto windows = top_windows();
    const auto found = std::ranges::find(windows, handle, handle_of);
    return found == windows.end() ? nullptr : *found;
}

// Stands before GTK while it lives: what a modal dialog keeps from a window is the request to close it, too.
class ClosingWatch {
  public:
    explicit ClosingWatch(std::function<void()> asked) : asked_(std::move(asked)) {
        gdk_event_handler_set(handle, this, nullptr);
    }
    ClosingWatch(const ClosingWatch&) = delete;
    ClosingWatch& operator=(const ClosingWatch&) = delete;
    ~ClosingWatch() {
        gdk_event_handler_set([](GdkEvent* event, gpointer) { gtk_main_do_event(event); }, nullptr, nullptr);
        for (GtkWindow* window : top_windows()) {
            if (to_close_.contains(window)) gtk_window_close(window);
        }
    }

  private:
    static void handle(GdkEvent* event, gpointer watch) {
        auto* window = event->type == GDK_DELETE ? gtk_get_event_widget(event) : nullptr;
        // A dialog is modal or stands over another window.
        const bool is_hosts = window && GTK_IS_WINDOW(window) && !gtk_window_get_modal(GTK_WINDOW(window)) &&
                              !gtk_window_get_transient_for(GTK_WINDOW(window));
        if (!is_hosts) {
            gtk_main_do_event(event);
            return;
        }
        auto& self = *static_cast<ClosingWatch*>(watch);
        self.to_close_.insert(GTK_WINDOW(window));
        self.asked_();
    }

    std::function<void()> asked_;
    std::set<const GtkWindow*> to_close_;
};

}  // namespace

std::shared_ptr<void> watch_host_closing(std::function<void()> asked) {
    return std::make_shared<ClosingWatch>(std::move(asked));
}

void stand_over_host(wxDialog& dialog, const NativeWindow& host) {
    auto* window = GTK_WINDOW(dialog.GetHandle());
    GtkWindow* owner = host_window(host);
    // The toolkit would look for a parent among its own windows.
    dialog.SetWindowStyleFlag(dialog.GetWindowStyleFlag() | wxDIALOG_NO_PARENT);
    gtk_window_set_transient_for(window, owner);
    gtk_window_set_position(window, owner ? GTK_WIN_POS_CENTER_ON_PARENT : GTK_WIN_POS_CENTER);
}

void stand_over_parent(wxDialog& dialog) {
    gtk_window_set_position(GTK_WINDOW(dialog.GetHandle()), GTK_WIN_POS_CENTER_ON_PARENT);
}

}  // namespace qor::wx
