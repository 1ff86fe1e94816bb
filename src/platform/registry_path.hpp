#pragma once

#include <string>
#include <string_view>

namespace qor {

// The key, below a root key, that holds a section of a product's settings where the store is the registry:
// "Software\company\title\version" and, unless it is empty, a backslash and the section.
std::u16string registry_path(std::u16string_view company, std::u16string_view title, std::u16string_view version,
                             std::u16string_view section);

}  // namespace qor
