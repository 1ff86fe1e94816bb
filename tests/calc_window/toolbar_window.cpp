#include "tests/calc_window/toolbar_window.hpp"

#include <com/sun/star/accessibility/AccessibleRole.hpp>
#include <com/sun/star/accessibility/XAccessible.hpp>
#include <com/sun/star/accessibility/XAccessibleComponent.hpp>
#include <com/sun/star/ui/XUIElement.hpp>

namespace qor::calc::tests {
namespace {

namespace role = css::accessibility::AccessibleRole;
using css::accessibility::XAccessible;
using css::accessibility::XAccessibleComponent;
using css::accessibility::XAccessibleContext;
using css::uno::Reference;

css::awt::Point middle(const Reference<XAccessibleContext>& control) {
    const Reference<XAccessibleComponent> component(control, css::uno::UNO_QUERY_THROW);
    const css::awt::Point corner = component->getLocationOnScreen();
    const css::awt::Size size = component->getSize();
    return {corner.X + size.Width / 2, corner.Y + size.Height / 2};
}

template <class Condition>
Reference<XAccessibleContext> find(const Reference<XAccessibleContext>& parent, Condition condition) {
    if (!parent.is()) return {};
    for (sal_Int32 place = 0; place < parent->getAccessibleChildCount(); ++place) {
        const Reference<XAccessible> child = parent->getAccessibleChild(place);
        const auto context = child.is() ? child->getAccessibleContext() : nullptr;
        if (!context.is()) continue;
        if (condition(context)) return context;
        if (const auto inner = find(context, condition); inner.is()) return inner;
    }
    return {};
}

}  // namespace

ToolbarWindow::ToolbarWindow(const Ref<css::frame::XLayoutManager>& layout, const std::u16string& url)
    : layout_(layout), url_(to_uno(url)) {}

bool ToolbarWindow::visible() const {
    return layout_->isElementVisible(url_);
}

bool ToolbarWindow::floating() const {
    return layout_->isElementFloating(url_);
}

Reference<XAccessibleContext> ToolbarWindow::context() const {
    const Ref element{layout_->getElement(url_)};
    const Reference<XAccessible> window(element->getRealInterface(), css::uno::UNO_QUERY);
    return window.is() ? window->getAccessibleContext() : nullptr;
}

int ToolbarWindow::buttons() const {
    int count = 0;
    const auto toolbar = context();
    for (sal_Int32 place = 0; toolbar.is() && place < toolbar->getAccessibleChildCount(); ++place) {
        if (toolbar->getAccessibleChild(place)->getAccessibleContext()->getAccessibleRole() == role::PUSH_BUTTON)
            ++count;
    }
    return count;
}

std::optional<css::awt::Point> ToolbarWindow::middle_of(std::u16string_view button) const {
    const auto found =
        find(context(), [&](const auto& control) { return view_of(control->getAccessibleName()) == button; });
    if (!found.is()) return {};
    return middle(found);
}

std::optional<css::awt::Point> ToolbarWindow::middle_of_list() const {
    const auto found = find(context(), [](const auto& control) {
        return control->getAccessibleRole() == role::COMBO_BOX || control->getAccessibleRole() == role::LIST;
    });
    if (!found.is()) return {};
    return middle(found);
}

}  // namespace qor::calc::tests
