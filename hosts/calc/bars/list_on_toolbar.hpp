#pragma once

#include <string>
#include <string_view>

#include "hosts/calc/bars/control.hpp"
#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// A drop-down list as one window's toolbar shows it.
class ListOnToolbar {
  public:
    virtual std::u16string_view command() const = 0;
    virtual void fill(const Control& control) = 0;

  protected:
    ~ListOnToolbar() = default;
};

// From now on the office shows a list where a toolbar has the command.
void register_list(const Context& context, const std::u16string& command);
void deregister_list(const Context& context, const std::u16string& command);

}  // namespace qor::calc
