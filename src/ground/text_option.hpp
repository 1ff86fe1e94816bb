#pragma once

#include <string>
#include <string_view>

namespace qor {

// The user's option of that name as it stands now, empty where there is none.
std::u16string text_option(std::u16string_view name);

}  // namespace qor
