#include "hosts/calc/adapter/user/range_picker.hpp"

#include <chrono>
#include <com/sun/star/awt/SystemDependentXWindow.hpp>
#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/XSystemDependentWindowPeer.hpp>
#include <com/sun/star/awt/XToolkitExperimental.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/lang/SystemDependent.hpp>
#include <com/sun/star/sheet/XRangeSelection.hpp>
#include <com/sun/star/sheet/XRangeSelectionListener.hpp>
#include <cppuhelper/implbase1.hxx>
#include <rtl/ref.hxx>
#include <thread>

#include "hosts/calc/formula/translator.hpp"
#include "hosts/calc/uno/listening.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"

namespace qor::calc {
namespace {

using namespace std::chrono_literals;

class Selection final : public cppu::WeakImplHelper1<css::sheet::XRangeSelectionListener> {
  public:
    bool ended() const noexcept { return ended_; }
    const std::optional<std::u16string>& range() const noexcept { return range_; }

    void SAL_CALL done(const css::sheet::RangeSelectionEvent& event) override {
        const std::u16string formula = u"=" + from_uno(event.RangeDescriptor);
        range_ = FormulaTranslator({}).to_excel(formula).substr(1);
        ended_ = true;
    }
    void SAL_CALL aborted(const css::sheet::RangeSelectionEvent&) override { ended_ = true; }
    void SAL_CALL disposing(const css::lang::EventObject&) override { ended_ = true; }

  private:
    std::optional<std::u16string> range_;
    bool ended_ = false;
};

// A window of an office without a screen belongs to no system.
bool is_on_screen(const Ref<css::frame::XFrame>& frame) {
    const Ref<css::awt::XSystemDependentWindowPeer> window(Ref{frame->getContainerWindow()});
    if (!window) return false;
    css::awt::SystemDependentXWindow handle;
    const css::uno::Any answer = window->getWindowHandle({}, css::lang::SystemDependent::SYSTEM_XWINDOW);
    return (answer >>= handle) && handle.WindowHandle != 0;
}

// Lets the office draw and answer the user.
void handle_events(const Context& context) {
    const Ref<css::awt::XToolkitExperimental> events(Ref{css::awt::Toolkit::create(context.reference())});
    events->processEventsToIdle();
    std::this_thread::sleep_for(10ms);
}

}  // namespace

std::optional<std::u16string> pick_range(const Context& context, const RangeQuestion& question) {
    const Ref desktop{css::frame::Desktop::create(context.reference())};
    const Ref frame{desktop->getCurrentFrame()};
    if (!frame || !is_on_screen(frame)) return {};
    const Ref<css::sheet::XRangeSelection> picker(Ref{frame->getController()});
    if (!picker) return {};
    const rtl::Reference<Selection> selection(new Selection);
    using Picker = css::sheet::XRangeSelection;
    const Listening listening(picker, &Picker::addRangeSelectionListener, &Picker::removeRangeSelectionListener,
                              selection.get());
    picker->startRangeSelection(sequence_of({named_value("InitialValue", to_uno(question.proposed)),
                                             named_value("Title", to_uno(question.title + u" - " + question.prompt)),
                                             named_value("CloseOnMouseRelease", false)}));
    while (!selection->ended()) handle_events(context);
    return selection->range();
}

}  // namespace qor::calc
