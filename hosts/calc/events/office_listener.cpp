#include "hosts/calc/events/office_listener.hpp"

#include "hosts/calc/events/event_listener.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/main_thread.hpp"

namespace qor::calc {

// The office speaks from the thread that has caused the event.
template <class Action>
void OfficeListener::on_listener(Action action) {
    const auto call = [action, weak = listener_] {
        const std::shared_ptr<EventListener> listener = weak.lock();
        if (listener) attempt([&] { guarded([&] { action(*listener); }); });
    };
    if (on_main_thread()) {
        call();
    } else {
        post_to_main_thread(context_, call);
    }
}

void SAL_CALL OfficeListener::documentEventOccured(const css::document::DocumentEvent& event) {
    const Document document(Ref{event.Source});
    if (!document) return;
    if (event.EventName == "OnViewCreated") {
        // A window that is being made has no selection yet.
        post_to_main_thread(context_,
                            [weak = listener_, controller = Ref<css::frame::XController>(Ref(event.ViewController))] {
                                if (const std::shared_ptr<EventListener> listener = weak.lock())
                                    listener->view_event(controller);
                            });
        return;
    }
    const bool in_time = on_main_thread();
    on_listener([name = from_uno(event.EventName), document, in_time](EventListener& listener) {
        if (in_time || !is_about_to_happen(name)) listener.document_event(name, document);
    });
}

void SAL_CALL OfficeListener::selectionChanged(const css::lang::EventObject& event) {
    const Ref<css::frame::XController> controller(Ref{event.Source});
    on_listener([controller](EventListener& listener) { listener.selection_event(controller); });
}

void SAL_CALL OfficeListener::notifyTermination(const css::lang::EventObject&) {
    on_listener([](EventListener& listener) { listener.end(); });
}

}  // namespace qor::calc
