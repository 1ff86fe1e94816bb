#pragma once

#include <com/sun/star/task/XStatusIndicator.hpp>

#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/window_list.hpp"

namespace qor::calc {

// A text in the place of what the office shows at the foot of a window.
class StatusBar {
  public:
    // False while the office shows its own.
    const Variant& text() const noexcept { return text_; }
    // In that window, which may be empty: then the text is only kept.
    void show(const std::u16string& text, const Controller& window);
    void give_back();

  private:
    Variant text_ = false;
    Ref<css::task::XStatusIndicator> indicator_;
};

}  // namespace qor::calc
