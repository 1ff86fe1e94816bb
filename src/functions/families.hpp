#pragma once

#include <vector>

#include "functions/function.hpp"

// The families of worksheet functions, each in a file of its own.
namespace qor {

std::vector<FunctionDeclaration> common_size_functions();

}  // namespace qor
