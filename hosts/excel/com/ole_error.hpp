#pragma once

#include <cstdint>

#include "automation/error.hpp"
#include "hosts/excel/com/ole.hpp"

namespace qor::excel {

// The run time's number of what a call answered. A code that automation has no number for is its own number.
std::int32_t number_of(HRESULT code) noexcept;

// The code by which clients of automation know the number again.
HRESULT code_of(std::int32_t number) noexcept;

// Raises what a call answered unless it succeeded.
void require(HRESULT code);

// What an object raised while it was called: `code` is the answer and `raised`, which is emptied, what it says.
[[noreturn]] void raise(HRESULT code, EXCEPINFO& raised);

// Runs what the host has called and turns whatever it raises into the host's kind of error. Without a place for its
// number, source and description the code alone tells.
template <class Work>
HRESULT at_border(EXCEPINFO* raised, Work&& work) noexcept;

// Turns the exception now being handled into the host's kind.
HRESULT tell_host(EXCEPINFO* raised) noexcept;

template <class Work>
HRESULT at_border(EXCEPINFO* raised, Work&& work) noexcept {
    try {
        return work();
    } catch (...) {
        return tell_host(raised);
    }
}

}  // namespace qor::excel
