#pragma once

#include <string_view>

#include "runtime/property_bag.hpp"

// The files of the add-in's folder that hold a property bag's image, or, when there is nothing to keep, one line of
// text. Paths may have either separator. No function raises.
namespace qor {

// An empty bag for a file that is missing, damaged, foreign, in the empty form, or larger than any that we write.
PropertyBag load_data_file(std::u16string_view path);

// Puts the bag's image at the start of the file. What a longer file holds behind it stays, as readers stop at the
// image's end. A file that is neither an image nor the empty form is kept beside it as NAME.bad.
// False when it could not be written; then the file is what it was.
bool save_data_file(std::u16string_view path, const PropertyBag& bag);

// Replaces the file by the empty form.
bool save_empty_data_file(std::u16string_view path);

}  // namespace qor
