#pragma once

#include <string_view>

#include "automation/object.hpp"

namespace qor::calc {

// Error 1004 as Excel words it, with the place (empty when it is gone) and the reason behind, such as "Unable to set
// the Value property of the Range class at [Book1]Sheet1!$A$1. You can't change part of an array."
Error refusal(std::u16string_view type, std::u16string_view member, Access access, std::u16string_view place,
              std::u16string_view reason);

}  // namespace qor::calc
