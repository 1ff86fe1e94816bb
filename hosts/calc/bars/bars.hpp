#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "hosts/calc/bars/bar_content.hpp"
#include "hosts/calc/bars/bar_place.hpp"
#include "hosts/calc/bars/control.hpp"
#include "hosts/calc/bars/module_ui.hpp"

namespace qor::calc {

class ListOnToolbar;

// The menu bar or a toolbar. The office's own contents are read at first use.
struct Bar {
    std::u16string url;
    std::u16string name;
    BarKind kind = BarKind::toolbar;
    bool built_in = true;
    bool deleted = false;
    bool read = false;        // what it holds
    bool shown = true;        // the office knows of it
    bool dirty = false;       // what the office shows is to be made anew
    bool has_own = false;     // the office shows controls of ours on its own bar,
    bool by_default = false;  // which before was as the office is shipped
    AskedPlace asked;
    Controls controls;
};
using BarPointer = std::shared_ptr<Bar>;

// All menus and toolbars of this process's Calc. What is changed here shows in every window as soon as the main thread
// is next free, all changes at once; nothing of it outlives the process.
class Bars : public std::enable_shared_from_this<Bars> {
  public:
    // The ones of the office; made at the first call.
    static std::shared_ptr<Bars> of(const Context& context);

    explicit Bars(const Context& context) : ui_(context) {}

    // The menu bar first, then the office's toolbars, then ours in the order of their coming.
    const std::vector<BarPointer>& all();
    BarPointer add(const std::u16string& name);
    void remove(const BarPointer& bar);
    BarPlace place_of(Bar& bar) const { return {ui_, bar.url, bar.shown, bar.asked}; }

    // What a bar, or a popup on it, holds.
    Controls& controls(Bar& bar);
    Controls& controls(Control& popup);
    ControlPointer add_control(const BarPointer& bar, Controls& among, ControlType type, std::size_t place);
    void remove_control(const BarPointer& bar, Controls& among, const ControlPointer& control);

    // The control is to be drawn anew.
    void changed(const BarPointer& bar);
    void face_changed(const Control& control);
    void list_changed(const Control& control);

    // Shows what has changed. Called by itself when the main thread is next free.
    void flush();

    // Who runs the macro of a control that was clicked: always from the main thread's own loop, never while a command
    // runs.
    void set_macro_runner(std::function<void(const std::u16string&)> runner) { macro_runner_ = std::move(runner); }
    bool is_enabled(std::u16string_view command) const;
    void clicked(std::u16string_view command);
    void chosen(std::u16string_view command, std::int32_t item);

    // The face that was put on the clipboard last; empty before the first.
    ButtonFace face_on_clipboard;

    // A window has come into being.
    void enter(const Ref<css::frame::XFrame>& frame);
    // A list on a toolbar has come into being, or goes.
    void attach(ListOnToolbar& list);
    void detach(ListOnToolbar& list);
    // The office ends.
    void end();

    const ModuleUi& ui() const noexcept { return ui_; }

  private:
    void begin();
    BarPointer built_in_bar(const std::u16string& url, std::u16string name, BarKind kind) const;
    void forget(const Controls& controls);
    void flush_built_in(Bar& bar);
    void flush_own(Bar& bar);
    void fill(ListOnToolbar& list);
    void schedule();
    void run(const std::u16string& macro);

    ModuleUi ui_;
    std::vector<BarPointer> bars_;
    std::map<std::u16string, std::weak_ptr<Control>, std::less<>> own_;  // by command
    std::vector<ListOnToolbar*> lists_;
    std::set<std::u16string, std::less<>> changed_lists_;  // by command
    std::function<void(const std::u16string&)> macro_runner_;
    std::int32_t last_toolbar_ = 0;
    std::int32_t last_control_ = 0;
    bool scheduled_ = false;
};

}  // namespace qor::calc
