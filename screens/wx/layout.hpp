#pragma once

#include <wx/dialog.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "screens/wx/binding.hpp"

namespace qor::wx {

// Layouts of forms, XRC in UTF-8, by the name that a form gives for its layout.
using Layouts = std::map<std::u16string_view, std::string_view>;

// Those of resources/forms.
const Layouts& product_layouts();

// Makes the binding of the control of that name.
using ControlMaker = std::function<Binding&(const std::u16string& name, wxWindow* parent, const Hints& hints)>;

// A dialog after the form's layout. Raises std::logic_error for a form without a layout and for a layout that cannot be
// followed.
wxDialog* lay_out(const Layouts& layouts, std::u16string_view form, wxWindow* parent, const ControlMaker& make);

}  // namespace qor::wx
