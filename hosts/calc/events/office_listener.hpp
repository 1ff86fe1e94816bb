#pragma once

#include <com/sun/star/document/XDocumentEventListener.hpp>
#include <com/sun/star/frame/XTerminateListener.hpp>
#include <com/sun/star/view/XSelectionChangeListener.hpp>
#include <cppuhelper/implbase3.hxx>
#include <memory>

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

class EventListener;

// The side of the listener that the office holds.
class OfficeListener final : public cppu::WeakImplHelper3<com::sun::star::document::XDocumentEventListener,
                                                          com::sun::star::view::XSelectionChangeListener,
                                                          com::sun::star::frame::XTerminateListener> {
  public:
    OfficeListener(Context context, std::weak_ptr<EventListener> listener)
        : context_(std::move(context)), listener_(std::move(listener)) {}

    void SAL_CALL documentEventOccured(const com::sun::star::document::DocumentEvent& event) override;
    void SAL_CALL selectionChanged(const com::sun::star::lang::EventObject& event) override;
    void SAL_CALL queryTermination(const com::sun::star::lang::EventObject&) override {}
    void SAL_CALL notifyTermination(const com::sun::star::lang::EventObject&) override;
    void SAL_CALL disposing(const com::sun::star::lang::EventObject&) override {}

  private:
    template <class Action>
    void on_listener(Action action);

    Context context_;
    std::weak_ptr<EventListener> listener_;
};

}  // namespace qor::calc
