#pragma once

#include "automation/variant.hpp"
#include "core/menu_table.hpp"

namespace qor {

// Where a toolbar stands, by the settings. What one side refuses is passed over.
void save_place(const MenuToolbar& toolbar, const Object& bar);
void restore_place(const MenuToolbar& toolbar, const Object& bar);

}  // namespace qor
