#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

#include "hosts/calc/adapter/ground/host_user.hpp"

namespace qor::calc {

// Lets the user mark a range in the front workbook and waits until it is done. None when the user cancels, when there
// is no workbook, and in an office without a screen.
std::optional<std::u16string> pick_range(
    const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context,
    const RangeQuestion& question);

}  // namespace qor::calc
