#pragma once

#include <filesystem>
#include <string>

namespace qor::calc {

// The path's address as it stands in the value of a variable that LibreOffice is started with ("-env:NAME=value"): a
// dollar sign would begin the name of another variable there.
std::string address_in_variable(const std::filesystem::path& path);

}  // namespace qor::calc
