#pragma once

namespace qor::bench {

// The rows of the families of functions, in the group of the plain arithmetic.
void register_families();

}  // namespace qor::bench
