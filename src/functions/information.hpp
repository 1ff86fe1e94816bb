#pragma once

#include <cstdint>
#include <string>

#include "services/CDrive.hpp"
#include "services/COpsSys.hpp"

namespace qor {

// About a drive: 0 available space, 1 kind, 2 file system, 3 free space, 4 label, 5 longest file name, 6 serial number,
// 7 total space; spaces in bytes. "0" for any other question.
std::u16string answer_about(const CDrive& drive, std::int32_t question);

// About the machine: 0 its name, 1 its user's name, 2 the organization, 3 the Windows folder, 4 the system folder,
// 5 the platform. "0" for any other question.
std::u16string answer_about(const COpsSys& system, std::int32_t question);

}  // namespace qor
