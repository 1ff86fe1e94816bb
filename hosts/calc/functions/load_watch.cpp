#include "hosts/calc/functions/load_watch.hpp"

#include <com/sun/star/document/XDocumentEventListener.hpp>
#include <com/sun/star/frame/theGlobalEventBroadcaster.hpp>
#include <cppuhelper/implbase1.hxx>

#include "hosts/calc/functions/repair.hpp"
#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {
namespace {

class LoadWatch final : public cppu::WeakImplHelper1<css::document::XDocumentEventListener> {
  public:
    void SAL_CALL documentEventOccured(const css::document::DocumentEvent& event) override {
        if (event.EventName != "OnLoadFinished") return;
        const Document loaded(Ref{event.Source});
        // What fails is left as it was loaded: others listen for the same event, and must not be disturbed.
        if (loaded) attempt([&] { guarded([&] { repair_function_names(loaded); }); });
    }
    void SAL_CALL disposing(const css::lang::EventObject&) override {}
};

}  // namespace

void watch_loads(const Context& context) {
    const Ref broadcaster{css::frame::theGlobalEventBroadcaster::get(context.reference())};
    broadcaster->addDocumentEventListener(new LoadWatch);
}

}  // namespace qor::calc
