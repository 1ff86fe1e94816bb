#pragma once

#include <stdexcept>

namespace qor::calc {

// LibreOffice is missing, would not start, ended or refused. The message is one line of UTF-8 for the user.
class OfficeError final : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace qor::calc
