#pragma once

#include "hosts/calc/adapter/ground/host.hpp"

namespace qor::calc {

// The name in the user's profile, else the one of the login.
std::u16string user_name(const Host& host);

}  // namespace qor::calc
