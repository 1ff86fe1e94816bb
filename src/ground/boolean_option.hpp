#pragma once

#include <string_view>

namespace qor {

// The user's option of that name as it stands now. Raises 13 where the text stored is no truth value.
bool boolean_option(std::u16string_view name, std::u16string_view default_text);

}  // namespace qor
