#pragma once

#include <memory>

#include "screens/wx/binding.hpp"

namespace qor::wx {

// The binding for a control, by its type: one of the functions below. Raises std::logic_error for a type without one.
std::unique_ptr<Binding> bind(Control& control, const Place& place);

}  // namespace qor::wx
