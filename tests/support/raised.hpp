#pragma once

#include <cstdint>

#include "automation/error.hpp"

namespace qor::test {

// The number of the error that the procedure raises, 0 if it raises none.
template <class Procedure>
std::int32_t raised(Procedure&& procedure) {
    return attempt([&] { procedure(); });
}

// The error that the procedure raises, one with the number 0 if it raises none.
template <class Procedure>
Error error_from(Procedure&& procedure) {
    try {
        procedure();
    } catch (const Error& error) {
        return error;
    }
    return Error(0, {}, u"nothing was raised");
}

}  // namespace qor::test
