#pragma once

#include "automation/member_names.hpp"
#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/bars/bars.hpp"

// How the objects of menus and toolbars make one another.
namespace qor::calc {

struct BarsOf {
    HostPointer host;
    std::shared_ptr<Bars> bars;
};

// A bar, or a popup on it.
struct ControlPlace {
    BarsOf of;
    BarPointer bar;
    ControlPointer popup;

    // What it holds. Raises 1004 when it is gone.
    Controls& controls() const;
};

// To objects it belongs, the bar or the popup.
Object application_of(const ControlPlace& place);
Object object_of(const ControlPlace& place);
inline void require_alive(const ControlPlace&) {}

// Where on the bar a control stands.
ControlPlace surroundings(const BarsOf& of, const BarPointer& bar, const Control& control);

Object make_command_bar(BarsOf of, BarPointer bar);
Object make_command_bar_controls(ControlPlace place);
Object make_command_bar_control(ControlPlace place, ControlPointer control);

// What FindControl looks for; what is missing matches every control.
struct ControlSearch {
    std::optional<std::int32_t> type;
    std::optional<std::int32_t> id;
    std::optional<std::u16string> tag;
    std::optional<bool> visible;
    bool recursive = false;
};
// The first that matches, Nothing when there is none.
Object find_control(const ControlPlace& place, const ControlSearch& search);

// Raises 1004 when the bar has been deleted.
void require(const Bar& bar);

}  // namespace qor::calc
