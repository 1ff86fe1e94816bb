#pragma once

#include <string>
#include <string_view>

#include "automation/object.hpp"

// The drop-down list of bookmarks on a toolbar of the host.
namespace qor {

// The data file of the bookmarks, behind the data folder.
inline constexpr std::u16string_view bookmark_file = u"\\Bookmarks.dat";

// What the list shows where there are none.
inline constexpr std::u16string_view no_bookmarks = u"(Bookmarks)";

// Wherever the user has moved it; null where there is none.
Object bookmark_list();
// The same, if it is to be seen.
Object visible_bookmark_list();

// Fills it from the file and chooses the first bookmark. Says that the file is missing where it is.
void fill_bookmark_list(const std::u16string& data_file);

}  // namespace qor
