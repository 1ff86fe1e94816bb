#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace qor {

// What the device manager wrote down about block devices: the folder holds links to them, named after the volumes'
// labels or identifiers. Empty if there is none to this device.
std::string device_name_in(const std::filesystem::path& folder, const std::filesystem::path& device);

// The serial number in a volume's identifier: its last eight hexadecimal digits, which is the number itself where the
// file system has one. 0 for an identifier without so many.
std::uint32_t serial_number_of(std::string_view identifier);

// Whether the medium can be taken out of the device.
bool is_removable(const std::filesystem::path& device);

}  // namespace qor
