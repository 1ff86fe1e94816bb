#pragma once

#include <memory>

#include "hosts/calc/adapter/ground/host_user.hpp"
#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// The person at the screen, asked by the office's own dialogs. In an office without a screen nobody answers: messages
// are cancelled or, where they cannot be, take their default, and no file and no range is chosen.
std::shared_ptr<HostUser> office_user(const Context& context);

}  // namespace qor::calc
