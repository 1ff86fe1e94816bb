#pragma once

namespace qor::wx {

// Starts the toolkit inside a process whose main loop is somebody else's; on the thread of all windows. Does nothing
// when it runs already. Raises std::runtime_error where there is no display.
void start_toolkit();

}  // namespace qor::wx
