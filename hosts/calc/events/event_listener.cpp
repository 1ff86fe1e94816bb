#include "hosts/calc/events/event_listener.hpp"

#include <algorithm>
#include <com/sun/star/frame/theGlobalEventBroadcaster.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/events/office_listener.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/running_command.hpp"

namespace qor::calc {
namespace {

using Selections = Ref<css::view::XSelectionSupplier>;

std::u16string key_of(std::u16string_view event, const void* object) {
    const std::string place = std::to_string(reinterpret_cast<std::uintptr_t>(object));
    return std::u16string(event) + std::u16string(place.begin(), place.end());
}

Ref<css::frame::XModel> model_of(const Document& document) {
    return Ref<css::frame::XModel>(document);
}

}  // namespace

bool is_about_to_happen(std::u16string_view name) {
    return name == u"OnSave" || name == u"OnSaveAs" || name == u"OnPrepareUnload" || name == u"OnUnload";
}

EventListener::EventListener(std::shared_ptr<EventQueue> queue, HostEvents handlers)
    : queue_(std::move(queue)), handlers_(std::move(handlers)), host_(std::make_shared<Host>(queue_->context())) {}

EventListener::~EventListener() = default;

void EventListener::begin() {
    office_ = new OfficeListener(queue_->context(), weak_from_this());
    using Broadcaster = css::document::XDocumentEventBroadcaster;
    using Desktop = css::frame::XDesktop;
    hears_documents_.emplace(Ref{css::frame::theGlobalEventBroadcaster::get(queue_->context().reference())},
                             &Broadcaster::addDocumentEventListener, &Broadcaster::removeDocumentEventListener,
                             office_.get());
    hears_end_.emplace(host_->desktop(), &Desktop::addTerminateListener, &Desktop::removeTerminateListener,
                       office_.get());
    RunningCommand::at_end([weak = std::weak_ptr(queue_)] {
        if (const std::shared_ptr<EventQueue> queue = weak.lock()) queue->try_again();
    });
    for (const Document& document : host_->documents()) {
        for (const Controller& controller : Book{host_, document}.controllers()) view_event(controller);
    }
}

void EventListener::end() {
    if (!office_.is()) return;
    const rtl::Reference<OfficeListener> office = std::exchange(office_, {});
    queue_->close();
    RunningCommand::at_end({});
    for (const Window& window : std::exchange(windows_, {})) {
        const Selections selections(Ref{window.controller.get()});
        if (!selections) continue;
        // A window that is closing has let go of its listeners.
        attempt([&] { guarded([&] { selections->removeSelectionChangeListener(office.get()); }); });
    }
    hears_documents_.reset();
    hears_end_.reset();
}

void EventListener::document_event(std::u16string_view name, const Document& document) {
    const auto tell_now = [&](const HostEvents::WorkbookHandler& handler) {
        if (handler) queue_->tell_now([&] { handler(Book{host_, document}.name()); });
    };
    if (name == u"OnNew") {
        tell_later(name, &HostEvents::workbook_created, document);
    } else if (name == u"OnLoad") {
        tell_later(name, &HostEvents::workbook_opened, document);
    } else if (name == u"OnSave" || name == u"OnSaveAs") {
        tell_now(handlers_.workbook_to_be_saved);
    } else if (name == u"OnSaveAsDone") {
        tell_later(name, &HostEvents::workbook_saved_as, document);
    } else if (name == u"OnPrepareUnload") {
        asked_to_close_.emplace_back(model_of(document).reference());
        tell_now(handlers_.workbook_closing);
    } else if (name == u"OnUnload") {
        // One that is closed by a program was not asked before.
        const auto asked = std::erase_if(asked_to_close_, [&](const WeakModel& model) {
            return !model.get().is() || model.get() == model_of(document).reference();
        });
        if (asked == 0) tell_now(handlers_.workbook_closing);
    } else if (name == u"OnFocus") {
        activated(document);
    } else if (name == u"OnModeChanged") {
        queue_->try_again();  // so it goes when a dialog closes
    }
}

void EventListener::tell_later(std::u16string_view event, HostEvents::WorkbookHandler HostEvents::*handler,
                               const Document& document) {
    const auto tell = [weak = weak_from_this(), handler, model = WeakModel(model_of(document).reference())] {
        const std::shared_ptr<EventListener> self = weak.lock();
        const Document workbook(Ref{model.get()});
        if (!self || !workbook || !(self->handlers_.*handler)) return;
        const std::vector<Document> open = self->host_->documents();
        if (std::ranges::find(open, workbook) == open.end()) return;
        (self->handlers_.*handler)(Book{self->host_, workbook}.name());
    };
    queue_->put(key_of(event, model_of(document).reference().get()), tell);
}

void EventListener::activated(const Document& document) {
    const Ref model = model_of(document);
    if (last_activated_.get() == model.reference()) return;
    last_activated_ = model.reference();
    queue_->put(u"OnFocus", [weak = weak_from_this(), kept = last_activated_] {
        const std::shared_ptr<EventListener> self = weak.lock();
        const Document workbook(Ref{kept.get()});
        if (self && workbook && self->handlers_.window_activated) {
            self->handlers_.window_activated(Book{self->host_, workbook}.name());
        }
    });
}

EventListener::Window* EventListener::window_of(const Controller& controller) {
    const auto found = std::ranges::find_if(
        windows_, [&](const Window& window) { return window.controller.get() == controller.reference(); });
    return found == windows_.end() ? nullptr : &*found;
}

void EventListener::view_event(const Controller& controller) {
    std::erase_if(windows_, [](const Window& window) { return !window.controller.get().is(); });
    const Selections selections(controller);
    if (!office_.is() || !selections || window_of(controller)) return;
    selections->addSelectionChangeListener(office_.get());
    windows_.push_back({controller.reference(), selection_in(controller)});
}

void EventListener::selection_event(const Controller& controller) {
    if (!handlers_.selection_changed) return;
    queue_->put(u"selection", [weak = weak_from_this(),
                               kept = css::uno::WeakReference<css::frame::XController>(controller.reference())] {
        const std::shared_ptr<EventListener> self = weak.lock();
        const Controller alive(Ref{kept.get()});
        if (self && alive) self->tell_selection(alive);
    });
}

// The office speaks several times of one change.
void EventListener::tell_selection(const Controller& controller) {
    Window* window = window_of(controller);
    const std::optional<SelectionPlace> selection = selection_in(controller);
    if (!window || !selection || window->selection == selection) return;
    window->selection = selection;
    handlers_.selection_changed(*selection);
}

std::optional<SelectionPlace> EventListener::selection_in(const Controller& controller) const {
    std::optional<SelectionPlace> result;
    attempt([&] {
        guarded([&] {
            const Book book{host_, Document(Ref{controller->getModel()})};
            const std::optional<RangeAreas> selected = selected_areas(book, controller);
            if (!selected) return;
            result = {book.name(), selected->sheet.name(), {}};
            for (std::size_t area = 0; area < selected->areas.size(); ++area) {
                if (area > 0) result->address += u',';
                result->address += address_text(selected->rectangle(area));
            }
        });
    });
    return result;
}

}  // namespace qor::calc
