#pragma once

#include <unistd.h>

#include <utility>

namespace qor {

// Owns an open descriptor of the operating system, or none.
class FileDescriptor {
  public:
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~FileDescriptor() {
        if (number_ >= 0) ::close(number_);
    }

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }

  private:
    int number_;
};

}  // namespace qor
