#pragma once

#include <string_view>
#include <utility>

#include "ui/form.hpp"

namespace qor::fakes {

// A form with one control, or one of the building blocks that hold some, and nothing else.
template <class Kind>
class FormWith final : public Form {
  public:
    template <class... Arguments>
    FormWith(Screen& screen, std::u16string_view form_name, std::u16string_view control_name, Arguments&&... arguments)
        : Form(form_name, screen),
          control(*this, std::u16string(control_name), std::forward<Arguments>(arguments)...) {}

    std::u16string_view caption() const noexcept override { return u""; }

    Kind control;
};

}  // namespace qor::fakes
