#pragma once

#include <string>

namespace qor::tests {

// A hand at the pointer and the keyboard of the display. Places are the display's own pixels; keys are named as in X,
// such as "Return" or "alt+Down".
namespace hand {

void move(int x, int y);
void press(int button = 1);
void release(int button = 1);
void key(const std::string& name);
void hold_key(const std::string& name);
void let_key_go(const std::string& name);
void type(const std::string& text);

// A picture of that part of the display, as a PNG file.
void take_picture(int x, int y, int width, int height, const std::string& file);

}  // namespace hand

}  // namespace qor::tests
