#include "hosts/calc/bars/bar_place.hpp"

#include <algorithm>
#include <limits>

#include "hosts/calc/uno/sequence.hpp"

namespace qor::calc {
namespace {

using css::awt::Point;
using css::awt::Size;
using Layout = Ref<css::frame::XLayoutManager>;

constexpr std::int32_t nowhere = std::numeric_limits<std::int32_t>::max();  // the office's sign for no certain place
const Point first_place(65, 139);                                           // of a bar that floats for the first time

std::int32_t certain(std::int32_t coordinate, std::int32_t otherwise) {
    return coordinate == nowhere ? otherwise : coordinate;
}

constexpr css::ui::DockingArea areas[] = {css::ui::DockingArea_DOCKINGAREA_LEFT, css::ui::DockingArea_DOCKINGAREA_TOP,
                                          css::ui::DockingArea_DOCKINGAREA_RIGHT,
                                          css::ui::DockingArea_DOCKINGAREA_BOTTOM};  // by BarPosition

bool same(const Size& left, const Size& right) {
    return left.Width == right.Width && left.Height == right.Height;
}

}  // namespace

BarPlace::BarPlace(const ModuleUi& ui, std::u16string_view url, bool shown, AskedPlace& asked)
    : ui_(ui),
      url_(to_uno(url)),
      shown_(shown),
      asked_(asked),
      dock_place_(nowhere, nowhere),
      place_(nowhere, nowhere) {
    read();
}

void BarPlace::read() {
    if (!ui_.window_states()->hasByName(url_)) return;
    for (const auto& property : value_of<PropertyValues>(ui_.window_states()->getByName(url_))) {
        const auto take = [&](const char* name, auto& target) {
            if (property.Name.equalsAscii(name)) property.Value >>= target;
        };
        take("Docked", docked_);
        take("DockingArea", area_);
        take("DockPos", dock_place_);
        take("Pos", place_);
        take("Size", size_);
        take("Visible", visible_);
    }
    if (docked_) place_ = asked_.floating.value_or(place_);
}

bool BarPlace::docked_sideways() const {
    return area_ == css::ui::DockingArea_DOCKINGAREA_LEFT || area_ == css::ui::DockingArea_DOCKINGAREA_RIGHT;
}

BarPosition BarPlace::position() const {
    if (!docked_) return BarPosition::floating;
    return static_cast<BarPosition>(std::ranges::find(areas, area_) - std::begin(areas));
}

std::int32_t BarPlace::row() const {
    return certain(docked_sideways() ? dock_place_.X : dock_place_.Y, numbers::bar_row::any);
}

std::int32_t BarPlace::left() const {
    return certain(docked_ && !docked_sideways() ? dock_place_.X : place_.X, 0);
}

std::int32_t BarPlace::top() const {
    return certain(docked_ && docked_sideways() ? dock_place_.Y : place_.Y, 0);
}

// Of a side that was not asked for, what the office gives it.
Size BarPlace::size() const {
    Size result = same(size_, asked_.fitted_size) ? asked_.size : size_;
    if ((result.Width == 0 || result.Height == 0) && shown_) {
        for (const Layout& layout : ui_.layouts()) {
            const Size given = layout->getElementSize(url_);
            if (result.Width == 0) result.Width = given.Width;
            if (result.Height == 0) result.Height = given.Height;
            break;
        }
    }
    return result;
}

std::int32_t BarPlace::width() const {
    return size().Width;
}

std::int32_t BarPlace::height() const {
    return size().Height;
}

bool BarPlace::visible() const {
    return visible_;
}

void BarPlace::write(const PropertyValues& changes) {
    const css::uno::Any state(changes);
    if (ui_.window_states()->hasByName(url_)) {
        ui_.window_states()->replaceByName(url_, state);
    } else {
        ui_.window_states()->insertByName(url_, state);
    }
}

// Moving a bar makes the office fit it anew.
template <class Action>
void BarPlace::fitting(Action action) {
    const bool as_asked = same(size_, asked_.fitted_size);
    action();
    size_ = {};
    read();
    if (as_asked) asked_.fitted_size = size_;
}

template <class Action>
void BarPlace::in_all_windows(Action action) {
    if (!shown_) return;
    fitting([&] {
        for (const Layout& layout : ui_.layouts()) action(layout);
    });
}

void BarPlace::move_docked(Point place) {
    dock_place_ = place;
    write(sequence_of(
        {named_value("Docked", true), named_value("DockingArea", area_), named_value("DockPos", dock_place_)}));
    in_all_windows([&](const Layout& layout) { layout->dockWindow(url_, area_, place); });
}

void BarPlace::move_floating(Point place) {
    place_ = place;
    asked_.floating = place;
    write(sequence_of({named_value("Pos", place)}));
    if (docked_) return;
    in_all_windows([&](const Layout& layout) { layout->setElementPos(url_, place); });
}

void BarPlace::resize(Size size) {
    asked_.size = size;
    if (size.Width > 0 && size.Height > 0) {
        write(sequence_of({named_value("Size", size)}));
        if (!docked_) {
            in_all_windows([&](const Layout& layout) {
                if (size.Height > layout->getElementSize(url_).Height) layout->setElementSize(url_, size);
            });
        }
        read();
    }
    asked_.fitted_size = size_;
}

void BarPlace::set_position(BarPosition position) {
    if (position == this->position()) return;
    docked_ = position != BarPosition::floating;
    if (!docked_) {
        const Point place(certain(place_.X, first_place.X), certain(place_.Y, first_place.Y));
        write(sequence_of({named_value("Docked", false), named_value("Pos", place)}));
        place_ = place;
        if (!shown_) return;
        for (const Layout& layout : ui_.layouts()) show_in(layout);
        return;
    }
    area_ = areas[static_cast<std::size_t>(position)];
    move_docked({nowhere, nowhere});
}

void BarPlace::set_row(std::int32_t row) {
    if (row == this->row()) return;
    const bool anywhere = row < 0;
    Point place = dock_place_;
    std::int32_t& across = docked_sideways() ? place.X : place.Y;
    std::int32_t& along = docked_sideways() ? place.Y : place.X;
    across = anywhere ? nowhere : row;
    along = anywhere ? nowhere : certain(along, 0);
    if (docked_) {
        move_docked(place);
    } else {
        dock_place_ = place;
        write(sequence_of({named_value("DockPos", dock_place_)}));
    }
}

void BarPlace::set_left(std::int32_t left) {
    if (left == this->left()) return;
    if (docked_ && !docked_sideways()) {
        move_docked({left, dock_place_.Y});
    } else {
        move_floating({left, certain(place_.Y, first_place.Y)});
    }
}

void BarPlace::set_top(std::int32_t top) {
    if (top == this->top()) return;
    if (docked_ && docked_sideways()) {
        move_docked({dock_place_.X, top});
    } else {
        move_floating({certain(place_.X, first_place.X), top});
    }
}

void BarPlace::set_width(std::int32_t width) {
    resize({width, asked_.size.Height});
}

void BarPlace::set_height(std::int32_t height) {
    resize({asked_.size.Width, height});
}

void BarPlace::set_visible(bool visible) {
    visible_ = visible;
    write(sequence_of({named_value("Visible", visible)}));
    if (!shown_) return;
    for (const Layout& layout : ui_.layouts()) {
        if (visible) {
            show_in(layout);
        } else {
            layout->hideElement(url_);
        }
    }
}

void BarPlace::show_in(const Layout& layout) {
    if (!visible_) return;
    const Size wanted = same(size_, asked_.fitted_size) ? asked_.size : size_;
    const Point place = place_;
    const bool docked = docked_;
    fitting([&] {
        layout->createElement(url_);
        layout->showElement(url_);
        if (docked) return;
        layout->unlockWindow(url_);  // a locked one disappears when it is to float
        if (!layout->isElementFloating(url_)) layout->floatWindow(url_);
        if (place.X != nowhere) layout->setElementPos(url_, place);
        // A bar of one line is as long as its controls; one of several lines was made so by the user.
        const bool of_one_line = wanted.Width == 0 || wanted.Height <= layout->getElementSize(url_).Height;
        if (!of_one_line) layout->setElementSize(url_, wanted);
    });
}

void BarPlace::begin(std::u16string_view name) {
    forget();
    docked_ = false;
    place_ = first_place;
    write(sequence_of({named_value("UIName", to_uno(name)), named_value("Docked", false), named_value("Visible", false),
                       named_value("Pos", place_)}));
}

void BarPlace::forget() {
    in_all_windows([&](const Layout& layout) {
        layout->hideElement(url_);
        layout->destroyElement(url_);
    });
    if (ui_.window_states()->hasByName(url_)) ui_.window_states()->removeByName(url_);
}

}  // namespace qor::calc
