#pragma once

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// The service com.ombrel.qorplus.Companion, a com.sun.star.task.XJob that the office runs when its first window comes.
// From then on, until the office ends, the add-in is there for the user: its menu, its toolbars, its reactions.
css::uno::Reference<css::uno::XInterface> make_companion_service(const Context& context);

}  // namespace qor::calc
