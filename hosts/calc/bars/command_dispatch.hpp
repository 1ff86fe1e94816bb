#pragma once

#include <memory>

#include "hosts/calc/bars/module_ui.hpp"

namespace qor::calc {

class Bars;

// From now on the window's clicks on our controls come to the bars. Harmless when they do already.
void serve_commands(const Ref<css::frame::XFrame>& frame, const std::weak_ptr<Bars>& bars);

}  // namespace qor::calc
