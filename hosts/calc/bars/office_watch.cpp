#include "hosts/calc/bars/office_watch.hpp"

#include <com/sun/star/document/XDocumentEventListener.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/theGlobalEventBroadcaster.hpp>
#include <cppuhelper/implbase2.hxx>
#include <rtl/ref.hxx>

#include "hosts/calc/bars/bars.hpp"
#include "hosts/calc/uno/document.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/main_thread.hpp"

namespace qor::calc {
namespace {

class OfficeWatch final
    : public cppu::WeakImplHelper2<css::document::XDocumentEventListener, css::frame::XTerminateListener> {
  public:
    explicit OfficeWatch(std::shared_ptr<Bars> bars) : bars_(std::move(bars)) {}

    // A window that is being made is not yet one to work on.
    void SAL_CALL documentEventOccured(const css::document::DocumentEvent& event) override {
        if (event.EventName != "OnViewCreated" || !event.ViewController.is() || !bars_) return;
        if (!Document(Ref{event.Source})) return;
        post_to_main_thread(bars_->ui().context(),
                            [weak = std::weak_ptr(bars_), controller = Ref(event.ViewController)] {
                                const Ref frame{controller->getFrame()};
                                if (const auto bars = weak.lock(); bars && frame) bars->enter(frame);
                            });
    }
    void SAL_CALL queryTermination(const css::lang::EventObject&) override {}
    void SAL_CALL notifyTermination(const css::lang::EventObject&) override {
        if (const auto bars = std::exchange(bars_, nullptr)) {
            attempt([&] { guarded([&] { bars->end(); }); });
        }
    }
    void SAL_CALL disposing(const css::lang::EventObject&) override { bars_.reset(); }

  private:
    std::shared_ptr<Bars> bars_;
};

}  // namespace

void keep_until_end(const std::shared_ptr<Bars>& bars) {
    const rtl::Reference<OfficeWatch> watch(new OfficeWatch(bars));
    const auto& context = bars->ui().context();
    const Ref broadcaster{css::frame::theGlobalEventBroadcaster::get(context.reference())};
    broadcaster->addDocumentEventListener(watch.get());
    const Ref desktop{css::frame::Desktop::create(context.reference())};
    desktop->addTerminateListener(watch.get());
}

}  // namespace qor::calc
