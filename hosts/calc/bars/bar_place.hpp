#pragma once

#include <com/sun/star/awt/Point.hpp>
#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/ui/DockingArea.hpp>
#include <optional>

#include "automation/host_numbers.hpp"
#include "hosts/calc/bars/module_ui.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {

// The office fits a bar's size to its controls, and forgets where a docked bar floated. What was asked for is kept, and
// holds until the user changes it.
struct AskedPlace {
    css::awt::Size size;         // 0 where none was asked for
    css::awt::Size fitted_size;  // what the office made of it
    std::optional<css::awt::Point> floating;
};

// Where a toolbar is, in pixels: a floating one from its window's upper left corner, a docked one by its row and the
// distance along it. What is written holds for the open windows and for later ones; what is read is what was written,
// or to where the user has moved the bar since. The office remembers it in the profile under the bar's resource.
class BarPlace {
  public:
    // A bar that is not shown yet is only given a place to come to.
    BarPlace(const ModuleUi& ui, std::u16string_view url, bool shown, AskedPlace& asked);

    BarPosition position() const;
    std::int32_t row() const;  // from 0; -1 for no certain one
    std::int32_t left() const;
    std::int32_t top() const;
    std::int32_t width() const;
    std::int32_t height() const;
    bool visible() const;

    void set_position(BarPosition position);
    void set_row(std::int32_t row);
    void set_left(std::int32_t left);
    void set_top(std::int32_t top);
    void set_width(std::int32_t width);
    void set_height(std::int32_t height);
    void set_visible(bool visible);

    // Puts a bar that has come into being, or a window that has, to where it belongs.
    void show_in(const Ref<css::frame::XLayoutManager>& layout);

    // A new bar: floating, not visible.
    void begin(std::u16string_view name);
    // Nothing of the bar stays in the windows and in the profile.
    void forget();

  private:
    bool docked_sideways() const;
    css::awt::Size size() const;
    void read();
    void write(const PropertyValues& changes);
    void move_docked(css::awt::Point place);
    void move_floating(css::awt::Point place);
    void resize(css::awt::Size size);
    template <class Action>
    void in_all_windows(Action action);
    template <class Action>
    void fitting(Action action);

    const ModuleUi& ui_;
    rtl::OUString url_;
    bool shown_;
    AskedPlace& asked_;

    bool docked_ = true;
    css::ui::DockingArea area_ = css::ui::DockingArea_DOCKINGAREA_TOP;
    css::awt::Point dock_place_;  // across and along for a bar at the sides
    css::awt::Point place_;
    css::awt::Size size_;
    bool visible_ = false;
};

}  // namespace qor::calc
