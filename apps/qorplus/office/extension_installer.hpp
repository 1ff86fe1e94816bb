#pragma once

#include <filesystem>

#include "hosts/calc/uno/context.hpp"

namespace qor::cli {

// Adds the extension to the user's LibreOffice, in place of an earlier one, and looks that it is there and in use.
// Raises OfficeError when it is not.
void add_extension(const calc::Context& context, const std::filesystem::path& package);

// False if it was not there.
bool remove_extension(const calc::Context& context);

}  // namespace qor::cli
