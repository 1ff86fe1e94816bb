#include "hosts/calc/functions/load_watch.hpp"

#include <com/sun/star/document/XDocumentEventListener.hpp>
#include <com/sun/star/frame/theGlobalEventBroadcaster.hpp>
#include <cppuhelper/implbase1.hxx>

#include "hosts/calc/functions/repair.hpp"

namespace qor::calc {
namespace {

namespace document = com::sun::star::document;
namespace lang = com::sun::star::lang;
namespace uno = com::sun::star::uno;

class LoadWatch final : public cppu::WeakImplHelper1<document::XDocumentEventListener> {
  public:
    void SAL_CALL documentEventOccured(const document::DocumentEvent& event) override {
        if (event.EventName != "OnLoadFinished") return;
        try {
            repair_function_names(event.Source);
        } catch (const uno::Exception&) {
            // The document stays as it was loaded: others listen for the same event, and must not be disturbed.
        }
    }
    void SAL_CALL disposing(const lang::EventObject&) override {}
};

}  // namespace

void watch_loads(const uno::Reference<uno::XComponentContext>& context) {
    com::sun::star::frame::theGlobalEventBroadcaster::get(context)->addDocumentEventListener(new LoadWatch);
}

}  // namespace qor::calc
