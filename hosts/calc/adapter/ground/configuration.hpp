#pragma once

#include <com/sun/star/container/XNameAccess.hpp>
#include <string_view>

#include "automation/variant.hpp"
#include "hosts/calc/uno/context.hpp"
#include "hosts/calc/uno/ref.hpp"

namespace qor::calc {

// A node of the office's configuration with the settings below it.
class Configuration {
  public:
    Configuration(const Context& context, std::u16string_view node);

    // Raises 1004 when there is none of that name.
    css::uno::Any value(const char* name) const;
    std::u16string text(const char* name) const;
    // Lasts: it is written to the user's profile.
    void set_value(const char* name, const css::uno::Any& value) const;

    const Ref<css::container::XNameAccess>& node() const noexcept { return node_; }
    void commit() const;

  private:
    Ref<css::container::XNameAccess> node_;
};

}  // namespace qor::calc
