#pragma once

#include <memory>

#include "apps/qorplus/office/office_commands.hpp"

namespace qor::cli {

// The folder with the libraries and the extension of this program, whether it is installed or lies where it was built.
// Raises UsageError when there is none.
std::filesystem::path library_folder();

// Loads what drives LibreOffice. Raises OfficeError when there is no LibreOffice or it cannot be used.
std::unique_ptr<OfficeCommands> load_office_commands();

}  // namespace qor::cli
