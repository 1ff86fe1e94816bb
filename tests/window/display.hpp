#pragma once

namespace qor::tests {

// Gives this process a display that nobody sees, with a window manager that is ready; once. Raises std::runtime_error
// when they do not start.
void use_virtual_display();

}  // namespace qor::tests
