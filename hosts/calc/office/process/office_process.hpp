#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/posix/file_descriptor.hpp"

namespace qor::calc {

struct OfficeStart {
    std::filesystem::path program;         // the folder of soffice.bin
    std::vector<std::string> arguments;    // those of soffice.bin
    std::vector<std::string> environment;  // NAME=value, set over what this process has
    // Files and folders that are removed when LibreOffice has ended.
    std::vector<std::filesystem::path> leftovers;
    // Of these, lock files of documents, only those that hold the text: another LibreOffice may have locked the same.
    std::vector<std::filesystem::path> locks;
    std::string lock_owner;
};

// A LibreOffice that ends with this object. A keeper process stands between: it starts LibreOffice, starts it again
// when LibreOffice asks for that (as it does on a new profile), and ends it and removes its leftovers as soon as this
// object or this whole process is gone, in whatever way.
class OfficeProcess {
  public:
    // Raises OfficeError when no process can be started.
    explicit OfficeProcess(const OfficeStart& start);
    OfficeProcess(const OfficeProcess&) = delete;
    OfficeProcess& operator=(const OfficeProcess&) = delete;
    ~OfficeProcess();

    // Whether LibreOffice has ended by itself, waited for at most that long.
    bool ends_within(std::chrono::milliseconds limit) const;

  private:
    FileDescriptor channel_{-1};  // open as long as LibreOffice is wanted; its other end as long as it runs
    pid_t keeper_ = -1;
};

}  // namespace qor::calc
