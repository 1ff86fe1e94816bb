#pragma once

#include <com/sun/star/awt/XWindow.hpp>

namespace qor::calc::tests {

// The pointer and the keys of the display.
void click_at(int x, int y);
void press_key(const char* key);

// With QORPLUS_PICTURES in the environment, a picture of the display goes into that folder under this name.
void take_picture(const char* name);

}  // namespace qor::calc::tests
