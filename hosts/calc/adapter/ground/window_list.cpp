#include "hosts/calc/adapter/ground/window_list.hpp"

#include <algorithm>
#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/document/XDocumentEventListener.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/frame/theGlobalEventBroadcaster.hpp>
#include <cppuhelper/implbase1.hxx>

namespace qor::calc {

class WindowWatch final : public cppu::WeakImplHelper1<css::document::XDocumentEventListener> {
  public:
    struct Caption {
        Controller window;
        std::u16string text;
    };

    void SAL_CALL documentEventOccured(const css::document::DocumentEvent& event) override {
        const Controller window(Ref{event.ViewController});
        if (!window) return;
        if (event.EventName == "OnFocus" || event.EventName == "OnViewCreated") note_active(window);
        if (event.EventName == "OnViewClosed") forget(window);
    }
    void SAL_CALL disposing(const css::lang::EventObject&) override {}

    void note_active(const Controller& window) {
        std::erase(by_activation, window);
        by_activation.insert(by_activation.begin(), window);
    }

    void forget(const Controller& window) {
        std::erase(by_activation, window);
        std::erase_if(captions, [&](const Caption& caption) { return caption.window == window; });
    }

    std::vector<Controller> by_activation;
    std::vector<Caption> captions;
};

WindowList::WindowList(const Context& context)
    : watch_(new WindowWatch),
      listening_(Ref{css::frame::theGlobalEventBroadcaster::get(context.reference())},
                 &css::document::XDocumentEventBroadcaster::addDocumentEventListener,
                 &css::document::XDocumentEventBroadcaster::removeDocumentEventListener, watch_.get()) {}

WindowList::~WindowList() = default;

void WindowList::note_active(const Controller& window) {
    watch_->note_active(window);
}

const std::vector<Controller>& WindowList::by_activation() const {
    return watch_->by_activation;
}

std::optional<std::u16string> WindowList::caption(const Controller& window) const {
    const auto found = std::ranges::find(watch_->captions, window, &WindowWatch::Caption::window);
    if (found == watch_->captions.end()) return {};
    return found->text;
}

void WindowList::set_caption(const Controller& window, const std::u16string& caption) {
    Ref<css::frame::XTitle>(Ref{window->getFrame()})->setTitle(to_uno(caption));
    auto found = std::ranges::find(watch_->captions, window, &WindowWatch::Caption::window);
    if (found == watch_->captions.end()) found = watch_->captions.insert(found, {window, {}});
    found->text = caption;
}

bool can_be_seen(const Controller& window) {
    const Ref frame{window->getFrame()};
    return Ref<css::awt::XWindow2>(Ref{frame->getContainerWindow()})->isVisible();
}

}  // namespace qor::calc
