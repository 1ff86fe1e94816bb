#pragma once

// The system's declarations without its macros that take names of this product.
#include <windows.h>
#undef MessageBox
