#pragma once

#include "platform/windows/system.hpp"
// After it, on which they stand.
#include <objbase.h>
#include <oleauto.h>
#include <olectl.h>
