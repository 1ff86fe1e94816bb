#pragma once

#include <com/sun/star/container/XIndexContainer.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/container/XNameContainer.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XLayoutManager.hpp>
#include <com/sun/star/ui/XImageManager.hpp>
#include <com/sun/star/ui/XUIConfigurationManager.hpp>
#include <string>
#include <vector>

#include "hosts/calc/bars/control.hpp"
#include "hosts/calc/uno/context.hpp"
#include "hosts/calc/uno/ref.hpp"

namespace qor::calc {

inline constexpr std::u16string_view menu_bar_url = u"private:resource/menubar/menubar";
inline constexpr std::u16string_view own_toolbar_prefix = u"private:resource/toolbar/custom_qorplus_";
// Our commands are this and a number. A separator of ours has the bare prefix.
inline constexpr std::u16string_view own_command_prefix = u"com.ombrel.qorplus:";

// The menus, toolbars and windows of Calc as the office's interfaces show them: one set for all windows. Nothing here
// stores it in the user's profile.
class ModuleUi {
  public:
    explicit ModuleUi(Context context);

    const Context& context() const noexcept { return context_; }
    const Ref<css::ui::XUIConfigurationManager>& manager() const noexcept { return manager_; }
    // By resource, what is remembered of each toolbar's place.
    const Ref<css::container::XNameContainer>& window_states() const noexcept { return window_states_; }

    // The windows that show workbooks, the one that the user works in first.
    std::vector<Ref<css::frame::XFrame>> frames() const;
    std::vector<Ref<css::frame::XLayoutManager>> layouts() const;

    // The resources of all toolbars, sorted; ours are left out.
    std::vector<std::u16string> toolbar_urls() const;
    // The name in the user's language; empty when the office gives it none.
    std::u16string toolbar_name(const std::u16string& url) const;
    // What menus call a command of the office.
    std::u16string label_of(const std::u16string& command) const;

    // What the menu bar or the toolbar holds in all windows from now on.
    void set_content(const std::u16string& url, const Ref<css::container::XIndexContainer>& content) const;
    void set_image(const std::u16string& command, const ButtonFace& face) const;
    void remove_image(const std::u16string& command) const;

  private:
    Context context_;
    Ref<css::ui::XUIConfigurationManager> manager_;
    Ref<css::container::XNameContainer> window_states_;
    Ref<css::container::XNameAccess> commands_;
};

Ref<css::frame::XLayoutManager> layout_of(const Ref<css::frame::XFrame>& frame);

}  // namespace qor::calc
