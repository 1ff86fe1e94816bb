#pragma once

#include <filesystem>

namespace qor::calc {

// The folder of the library that this code is in, where the rest of the extension lies too.
std::filesystem::path own_folder();

}  // namespace qor::calc
