#pragma once

#include "hosts/calc/uno/property.hpp"

namespace qor::calc {

// The part of a file's description by which every question that comes up while it is read or written is answered with
// "do not go on", so that no dialog is shown.
css::beans::PropertyValue refuse_questions();

}  // namespace qor::calc
