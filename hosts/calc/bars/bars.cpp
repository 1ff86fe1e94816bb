#include "hosts/calc/bars/bars.hpp"

#include <algorithm>
#include <com/sun/star/ui/XModuleUIConfigurationManager.hpp>

#include "hosts/calc/bars/command_dispatch.hpp"
#include "hosts/calc/bars/list_on_toolbar.hpp"
#include "hosts/calc/bars/office_watch.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/main_thread.hpp"
#include "hosts/calc/uno/running_command.hpp"

namespace qor::calc {
namespace {

std::u16string digits(std::int32_t number) {
    const std::string text = std::to_string(number);
    return {text.begin(), text.end()};
}

std::u16string last_part(const std::u16string& url) {
    return url.substr(url.rfind(u'/') + 1);
}

}  // namespace

std::shared_ptr<Bars> Bars::of(const Context& context) {
    static std::weak_ptr<Bars> bars;
    if (std::shared_ptr<Bars> present = bars.lock()) return present;
    auto made = std::make_shared<Bars>(context);
    made->begin();
    keep_until_end(made);
    bars = made;
    return made;
}

void Bars::begin() {
    bars_.push_back(built_in_bar(std::u16string(menu_bar_url), u"Worksheet Menu Bar", BarKind::menu_bar));
    for (const std::u16string& url : ui_.toolbar_urls()) {
        const std::u16string name = ui_.toolbar_name(url);
        bars_.push_back(built_in_bar(url, name.empty() ? last_part(url) : name, BarKind::toolbar));
    }
    for (const Ref<css::frame::XFrame>& frame : ui_.frames()) enter(frame);
}

BarPointer Bars::built_in_bar(const std::u16string& url, std::u16string name, BarKind kind) const {
    auto bar = std::make_shared<Bar>();
    bar->url = url;
    bar->name = std::move(name);
    bar->kind = kind;
    return bar;
}

const std::vector<BarPointer>& Bars::all() {
    return bars_;
}

BarPointer Bars::add(const std::u16string& name) {
    auto bar = std::make_shared<Bar>();
    // A window that has shown a resource shows it again as it was. And the profile remembers of each that it is
    // removed.
    bar->url = std::u16string(own_toolbar_prefix) + digits(++last_toolbar_);
    bar->name = name;
    bar->built_in = false;
    bar->read = true;
    bar->shown = false;
    place_of(*bar).begin(name);
    bars_.push_back(bar);
    changed(bar);
    return bar;
}

void Bars::remove(const BarPointer& bar) {
    place_of(*bar).forget();
    if (ui_.manager()->hasSettings(to_uno(bar->url))) ui_.manager()->removeSettings(to_uno(bar->url));
    forget(bar->controls);
    bar->controls.clear();
    bar->deleted = true;
    std::erase(bars_, bar);
}

Controls& Bars::controls(Bar& bar) {
    if (!bar.read) {
        bar.read = true;
        const rtl::OUString url = to_uno(bar.url);
        if (ui_.manager()->hasSettings(url)) {
            bar.controls = built_in_controls(ui_, ui_.manager()->getSettings(url, false));
        }
    }
    return bar.controls;
}

Controls& Bars::controls(Control& popup) {
    if (popup.unread_children) {
        popup.children = built_in_controls(ui_, popup.unread_children);
        popup.unread_children = {};
    }
    return popup.children;
}

ControlPointer Bars::add_control(const BarPointer& bar, Controls& among, ControlType type, std::size_t place) {
    auto control = std::make_shared<Control>();
    control->type = type;
    control->command = std::u16string(own_command_prefix) + digits(++last_control_);
    own_[control->command] = control;
    among.insert(among.begin() + static_cast<std::ptrdiff_t>(place), control);
    if (type == ControlType::drop_down) register_list(ui_.context(), control->command);
    changed(bar);
    return control;
}

void Bars::remove_control(const BarPointer& bar, Controls& among, const ControlPointer& control) {
    forget({control});
    std::erase(among, control);
    changed(bar);
}

void Bars::forget(const Controls& controls) {
    for (const ControlPointer& control : controls) {
        forget(control->children);
        control->deleted = true;
        if (!is_empty(control->face)) ui_.remove_image(control->command);
        if (control->type == ControlType::drop_down) deregister_list(ui_.context(), control->command);
        own_.erase(control->command);
    }
}

void Bars::changed(const BarPointer& bar) {
    bar->dirty = true;
    schedule();
}

void Bars::face_changed(const Control& control) {
    ui_.set_image(control.command, control.face);
}

void Bars::list_changed(const Control& control) {
    changed_lists_.insert(control.command);
    schedule();
}

void Bars::schedule() {
    if (std::exchange(scheduled_, true)) return;
    post_to_main_thread(ui_.context(), [weak = weak_from_this()] {
        if (const std::shared_ptr<Bars> bars = weak.lock()) bars->flush();
    });
}

void Bars::flush() {
    scheduled_ = false;
    const std::vector<BarPointer> bars = bars_;
    for (const BarPointer& bar : bars) {
        if (!std::exchange(bar->dirty, false)) continue;
        // One bar that the office refuses does not keep the others from the user.
        attempt([&] { guarded([&] { bar->built_in ? flush_built_in(*bar) : flush_own(*bar); }); });
    }
    const auto changed_lists = std::exchange(changed_lists_, {});
    for (ListOnToolbar* list : lists_) {
        if (changed_lists.contains(list->command())) fill(*list);
    }
}

void Bars::fill(ListOnToolbar& list) {
    const auto found = own_.find(list.command());
    const ControlPointer control = found == own_.end() ? nullptr : found->second.lock();
    if (control) attempt([&] { guarded([&] { list.fill(*control); }); });
}

void Bars::flush_built_in(Bar& bar) {
    const rtl::OUString url = to_uno(bar.url);
    const Ref<css::ui::XUIConfigurationManager>& manager = ui_.manager();
    const bool had_own = std::exchange(bar.has_own, contains_own(bar.controls));
    if (!had_own && !bar.has_own) return;
    if (!had_own) bar.by_default = Ref<css::ui::XModuleUIConfigurationManager>(manager)->isDefaultSettings(url);
    if (!bar.has_own && bar.by_default) {
        manager->removeSettings(url);  // to what the office is shipped with
        return;
    }
    const Ref<css::container::XIndexContainer> content(Ref{manager->getSettings(url, true)});
    remove_own(content);
    insert_own(ui_, bar.kind, content, bar.controls);
    ui_.set_content(bar.url, content);
}

void Bars::flush_own(Bar& bar) {
    const Ref content{ui_.manager()->createSettings()};
    set_property(content, "UIName", to_uno(bar.name));
    insert_own(ui_, bar.kind, content, bar.controls);
    ui_.set_content(bar.url, content);
    if (std::exchange(bar.shown, true)) return;
    BarPlace place = place_of(bar);
    for (const Ref<css::frame::XLayoutManager>& layout : ui_.layouts()) place.show_in(layout);
}

bool Bars::is_enabled(std::u16string_view command) const {
    const auto found = own_.find(command);
    if (found == own_.end()) return false;
    const ControlPointer control = found->second.lock();
    return control && control->enabled;
}

void Bars::clicked(std::u16string_view command) {
    const auto found = own_.find(command);
    const ControlPointer control = found == own_.end() ? nullptr : found->second.lock();
    if (control && control->enabled) run(control->action);
}

void Bars::chosen(std::u16string_view command, std::int32_t item) {
    const auto found = own_.find(command);
    const ControlPointer control = found == own_.end() ? nullptr : found->second.lock();
    if (!control) return;
    control->chosen = item;
    list_changed(*control);  // in the other windows
    run(control->action);
}

// A macro may take away the very menu that was clicked: it runs when the office has done with the click.
void Bars::run(const std::u16string& macro) {
    if (macro.empty()) return;
    post_to_main_thread(ui_.context(), [weak = weak_from_this(), macro] {
        const std::shared_ptr<Bars> bars = weak.lock();
        if (!bars || RunningCommand::any()) return;
        const auto runner = bars->macro_runner_;
        if (runner) runner(macro);
    });
}

void Bars::enter(const Ref<css::frame::XFrame>& frame) {
    serve_commands(frame, weak_from_this());
    const auto layout = layout_of(frame);
    if (!layout) return;
    for (const BarPointer& bar : bars_) {
        if (!bar->built_in && bar->shown) place_of(*bar).show_in(layout);
    }
}

void Bars::attach(ListOnToolbar& list) {
    lists_.push_back(&list);
    fill(list);
}

void Bars::detach(ListOnToolbar& list) {
    std::erase(lists_, &list);
}

void Bars::end() {
    for (const BarPointer& bar : std::exchange(bars_, {})) {
        if (bar->built_in) continue;
        bar->shown = false;
        attempt([&] { guarded([&] { place_of(*bar).forget(); }); });
    }
}

}  // namespace qor::calc
