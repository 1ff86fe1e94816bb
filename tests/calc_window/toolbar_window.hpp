#pragma once

#include <com/sun/star/accessibility/XAccessibleContext.hpp>
#include <com/sun/star/awt/Point.hpp>
#include <optional>
#include <string>

#include "hosts/calc/bars/bars.hpp"

namespace qor::calc::tests {

// A toolbar as one window shows it.
class ToolbarWindow {
  public:
    ToolbarWindow(const Ref<css::frame::XLayoutManager>& layout, const std::u16string& url);

    bool visible() const;
    bool floating() const;
    int buttons() const;  // lines are not counted
    // The middle of the button with that tip or text on the display; nothing when there is none.
    std::optional<css::awt::Point> middle_of(std::u16string_view button) const;
    // The middle of the list on the bar.
    std::optional<css::awt::Point> middle_of_list() const;

  private:
    css::uno::Reference<css::accessibility::XAccessibleContext> context() const;

    Ref<css::frame::XLayoutManager> layout_;
    rtl::OUString url_;
};

}  // namespace qor::calc::tests
