#pragma once

#include <cstdint>

#include "automation/error.hpp"

namespace qor::test {

// The number of the error that the procedure raises, 0 if it raises none.
template <class Procedure>
std::int32_t raised(Procedure&& procedure) {
    return attempt([&] { procedure(); });
}

}  // namespace qor::test
