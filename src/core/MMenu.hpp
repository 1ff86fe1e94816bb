#pragma once

#include <functional>
#include <string_view>

namespace qor {

// The add-in's place in the host: a popup on the main menu bar and three toolbars, all tagged with the title. gExcel is
// set by the caller. What the host refuses is passed over, and the next step is taken.

// Takes down an earlier menu and builds it from the tables. A tool whose macro does not exist is left out.
void create_menu(const std::function<bool(std::u16string_view macro)>& exists);

// Keeps the places of the toolbars in the settings and takes everything down, or only keeps the places.
void delete_menu(bool only_save);

}  // namespace qor
