#pragma once

#include <array>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/graphic/XGraphic.hpp>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "automation/host_numbers.hpp"
#include "hosts/calc/uno/ref.hpp"

namespace qor::calc {

// One picture for menus and small toolbars, one for large toolbars and one for very large ones; all empty for no face.
using ButtonFace = std::array<Ref<css::graphic::XGraphic>, 3>;
inline bool is_empty(const ButtonFace& face) {
    return !face.front();
}

struct Control;
using ControlPointer = std::shared_ptr<Control>;
using Controls = std::vector<ControlPointer>;

// An entry of a menu or a control of a toolbar. An ampersand stands before a caption's access key.
struct Control {
    ControlType type = ControlType::button;
    std::u16string command;  // what the office knows it by
    bool built_in = false;   // the office's own
    std::int32_t id = numbers::control_id::own;
    std::u16string caption;
    std::u16string tag;
    std::u16string action;  // the macro that a click runs
    std::u16string tool_tip;
    std::u16string parameter;
    bool begin_group = false;
    bool enabled = true;
    bool visible = true;
    ButtonFace face;

    // Of a list; widths in pixels.
    std::vector<std::u16string> items;
    std::int32_t chosen = 0;  // counted from 1, 0 for none
    std::int32_t width = 0;
    std::int32_t drop_down_width = 0;

    // Of a popup. What a popup of the office holds is read at first use.
    Controls children;
    Ref<css::container::XIndexAccess> unread_children;

    bool deleted = false;
};

// Whether the control is one of these or stands in a popup among them.
bool contains(const Controls& controls, const Control& control);
bool contains_own(const Controls& controls);

// The caption without ampersands before access keys.
std::u16string plain_caption(std::u16string_view caption);
// Between the ampersand of macro authors and the office's tilde.
std::u16string office_label(std::u16string_view caption);
std::u16string caption_of_label(std::u16string_view label);

}  // namespace qor::calc
