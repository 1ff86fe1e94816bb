#pragma once

#include "hosts/calc/office/private_office.hpp"

namespace qor::cli {

// One headless Calc with the add-in for all tests of this program.
calc::PrivateOffice& office();

}  // namespace qor::cli
