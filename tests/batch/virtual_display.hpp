#pragma once

#include <sys/types.h>

namespace qor::calc {

// An X display that nobody sees, with a window manager, for this process and those that it starts. It ends with this
// object or this process.
class VirtualDisplay {
  public:
    // Raises OfficeError when there is no such display.
    VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;
    ~VirtualDisplay();

  private:
    void start_server();

    pid_t server_ = -1;
    pid_t window_manager_ = -1;
};

}  // namespace qor::calc
