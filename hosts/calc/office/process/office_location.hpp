#pragma once

#include <filesystem>

namespace qor::calc {

// LibreOffice's program folder: the one that the environment variable QORPLUS_LIBREOFFICE names if it is set, else the
// first of the usual places that holds one. Raises OfficeError when there is none.
std::filesystem::path office_program_folder();

}  // namespace qor::calc
