#pragma once

#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <cppuhelper/weakref.hxx>
#include <memory>
#include <rtl/ref.hxx>
#include <vector>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/events/event_queue.hpp"
#include "hosts/calc/events/host_events.hpp"
#include "hosts/calc/uno/listening.hpp"

namespace qor::calc {

class OfficeListener;

// Whether the event says what the office is about to do.
bool is_about_to_happen(std::u16string_view name);

// Turns what the office broadcasts into the events of a host.
class EventListener : public std::enable_shared_from_this<EventListener> {
  public:
    EventListener(std::shared_ptr<EventQueue> queue, HostEvents handlers);
    ~EventListener();

    void begin();
    // Hears and tells nothing more.
    void end();

    // What the office says, by the name that it gives the event.
    void document_event(std::u16string_view name, const Document& document);
    void view_event(const Ref<css::frame::XController>& controller);
    void selection_event(const Ref<css::frame::XController>& controller);

  private:
    using Controller = Ref<css::frame::XController>;
    using WeakModel = css::uno::WeakReference<css::frame::XModel>;

    // The last selection that is known of a window.
    struct Window {
        css::uno::WeakReference<css::frame::XController> controller;
        std::optional<SelectionPlace> selection;
    };

    void tell_later(std::u16string_view event, HostEvents::WorkbookHandler HostEvents::*handler,
                    const Document& document);
    void closing(const Document& document);
    void activated(const Document& document);
    void tell_selection(const Controller& controller);
    Window* window_of(const Controller& controller);
    std::optional<SelectionPlace> selection_in(const Controller& controller) const;

    std::shared_ptr<EventQueue> queue_;
    HostEvents handlers_;
    HostPointer host_;
    rtl::Reference<OfficeListener> office_;
    std::optional<Listening> hears_documents_;
    std::optional<Listening> hears_end_;
    std::vector<WeakModel> asked_to_close_;
    WeakModel last_activated_;
    std::vector<Window> windows_;
};

}  // namespace qor::calc
