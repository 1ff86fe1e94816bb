#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

#include "hosts/calc/uno/ref.hpp"

namespace qor::calc {

// What the office gives to everything that it makes: from here all else of it is reached.
using Context = Ref<css::uno::XComponentContext>;

}  // namespace qor::calc
