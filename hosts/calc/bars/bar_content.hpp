#pragma once

#include "hosts/calc/bars/control.hpp"
#include "hosts/calc/bars/module_ui.hpp"

namespace qor::calc {

enum class BarKind : std::uint8_t { menu_bar, toolbar };

// The office's own controls in what it shows. Ours are left out.
Controls built_in_controls(const ModuleUi& ui, const Ref<css::container::XIndexAccess>& content);

// Removes our controls from the office's content.
void remove_own(const Ref<css::container::XIndexContainer>& content);
// Puts ours among the office's: each before the control of the office that it stands before in the list.
void insert_own(const ModuleUi& ui, BarKind kind, const Ref<css::container::XIndexContainer>& content,
                const Controls& controls);

}  // namespace qor::calc
