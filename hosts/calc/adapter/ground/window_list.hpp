#pragma once

#include <com/sun/star/frame/XController.hpp>
#include <optional>
#include <rtl/ref.hxx>
#include <string>
#include <vector>

#include "hosts/calc/uno/context.hpp"
#include "hosts/calc/uno/listening.hpp"
#include "hosts/calc/uno/ref.hpp"

namespace qor::calc {

using Controller = Ref<css::frame::XController>;

class WindowWatch;

// What the office does not tell of its windows: in which order they were last active, and which caption they were
// given.
class WindowList {
  public:
    explicit WindowList(const Context& context);
    WindowList(const WindowList&) = delete;
    WindowList& operator=(const WindowList&) = delete;
    ~WindowList();

    void note_active(const Controller& window);
    // Those that are open and were opened or activated since this list is there, the last active one first.
    const std::vector<Controller>& by_activation() const;

    std::optional<std::u16string> caption(const Controller& window) const;
    void set_caption(const Controller& window, const std::u16string& caption);

  private:
    rtl::Reference<WindowWatch> watch_;
    Listening listening_;
};

bool can_be_seen(const Controller& window);

}  // namespace qor::calc
