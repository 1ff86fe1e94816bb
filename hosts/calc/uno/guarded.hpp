#pragma once

#include <com/sun/star/uno/Exception.hpp>
#include <utility>

#include "automation/error.hpp"
#include "hosts/calc/uno/text.hpp"

namespace qor::calc {

// Runs calls into the office and turns what it throws into error 1004 with the office's message.
template <class Calls>
decltype(auto) guarded(Calls&& calls) {
    try {
        return std::forward<Calls>(calls)();
    } catch (const com::sun::star::uno::Exception& exception) {
        if (exception.Message.isEmpty()) throw Error(ErrorNumber::host_refused);
        throw Error(ErrorNumber::host_refused, {}, from_uno(exception.Message));
    }
}

}  // namespace qor::calc
