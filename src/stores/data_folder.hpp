#pragma once

#include <filesystem>

namespace qor {

// Makes the folder and the data files that the tools expect to find in it: empty stores, and a list of date formats.
// A file that is there stays as it is. False when one of them could not be made.
bool create_data_files(const std::filesystem::path& folder);

}  // namespace qor
