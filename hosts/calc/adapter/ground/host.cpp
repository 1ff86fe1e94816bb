#include "hosts/calc/adapter/ground/host.hpp"

#include <algorithm>
#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/container/XChild.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XModel2.hpp>
#include <ranges>

#include "hosts/calc/adapter/ground/configuration.hpp"
#include "hosts/calc/adapter/ground/function_names.hpp"
#include "hosts/calc/uno/surely.hpp"

namespace qor::calc {
namespace {

std::vector<Controller> controllers_of(const Document& document) {
    std::vector<Controller> result;
    const Ref elements{Ref<css::frame::XModel2>(document)->getControllers()};
    while (elements->hasMoreElements()) result.emplace_back(elements->nextElement());
    return result;
}

// Without a document where the window is none of a workbook. That of a chart which the user works on belongs to its
// workbook.
Window window_of(const Controller& controller) {
    if (!controller) return {};
    const Ref model{controller->getModel()};
    if (Document document{model}) return {document, controller};
    const Ref<css::container::XChild> part{model};
    const Document document = part ? Document{Ref{part->getParent()}} : Document();
    if (!document) return {};
    return {document, Controller{Ref<css::frame::XModel>(document)->getCurrentController()}};
}

}  // namespace

Host::Host(Context context, std::shared_ptr<HostUser> user, std::u16string companion_folder)
    : context_(std::move(context)),
      user_(std::move(user)),
      companion_folder_(std::move(companion_folder)),
      desktop_(css::frame::Desktop::create(context_.reference())),
      window_list_(context_) {}

HostUser& Host::user() const {
    if (!user_) throw Error(ErrorNumber::host_refused);
    return *user_;
}

std::u16string Host::name() const {
    return Configuration(context_, u"/org.openoffice.Setup/Product").text("ooName") + u" Calc";
}

std::vector<Document> Host::documents() const {
    std::vector<Document> result;
    const Ref components{desktop_->getComponents()};
    const Ref elements{components->createEnumeration()};
    while (elements->hasMoreElements()) {
        // A workbook comes once for each of its windows.
        Document document(elements->nextElement());
        if (document && std::ranges::find(result, document) == result.end()) result.push_back(std::move(document));
    }
    std::ranges::reverse(result);  // the newest comes first
    return result;
}

std::vector<Window> Host::windows() {
    std::vector<Window> result;
    for (const Document& document : documents()) {
        for (const Controller& controller : controllers_of(document)) result.push_back({document, controller});
    }
    std::ranges::reverse(result);  // of those that were never active the newest comes first
    const Window active = active_window();
    const std::vector<Controller>& known = window_list_.by_activation();
    const auto place = [&](const Window& window) {
        if (window.controller == active.controller) return std::ptrdiff_t{-1};
        return std::ranges::find(known, window.controller) - known.begin();
    };
    std::ranges::stable_sort(result, {}, place);
    return result;
}

std::vector<Window> Host::windows(const Document& document) {
    std::vector<Window> result = windows();
    std::erase_if(result, [&](const Window& window) { return window.document != document; });
    return result;
}

Window Host::active_window() {
    // The office itself may know none, when it runs without a screen or when another program is in front.
    if (const Ref<css::frame::XFrame> front{desktop_->getCurrentFrame()}) {
        const Controller controller{front->getController()};
        if (Window window = window_of(controller); window.document && can_be_seen(controller)) return window;
    }
    for (const Controller& controller : window_list_.by_activation()) {
        if (Window window = window_of(controller); window.document && can_be_seen(controller)) return window;
    }
    const std::vector<Document> open = documents();
    for (auto document = open.rbegin(); document != open.rend(); ++document) {
        const auto all = controllers_of(*document);
        const auto seen = std::ranges::find_if(all, can_be_seen);
        if (seen != all.end()) return {*document, *seen};
    }
    return {};
}

void Host::activate(const Window& window) {
    const Ref frame{window.controller->getFrame()};
    frame->activate();
    if (const Ref<css::awt::XTopWindow> top{Ref{frame->getContainerWindow()}}) top->toFront();
    Ref<css::frame::XModel>(window.document)->setCurrentController(window.controller.reference());
    window_list_.note_active(window.controller);
}

void Host::activate(const Document& document) {
    const std::vector<Window> all = windows(document);
    const auto seen = std::ranges::find_if(all, can_be_seen, &Window::controller);
    if (seen != all.end()) activate(*seen);
}

const FormulaTranslator& Host::translator() {
    if (!translator_) {
        const std::vector<Document> open = documents();
        if (open.empty()) throw Error(ErrorNumber::host_refused);
        translator_.emplace(function_names(open.front()));
    }
    return *translator_;
}

void Host::set_screen_updating(bool on) {
    if (on == screen_updating_) return;
    if (on) {
        unlock_screens();
    } else {
        lock_screens();
    }
    screen_updating_ = on;
}

void Host::lock_screens() {
    try {
        for (const Document& document : documents()) {
            Ref<css::frame::XModel>(document)->lockControllers();
            locked_.push_back(document);
        }
    } catch (...) {
        unlock_screens();
        throw;
    }
}

void Host::unlock_screens() {
    for (const Document& document : std::exchange(locked_, {})) {
        const Ref<css::frame::XModel> model(document);
        surely([&] {
            if (model->hasControllersLocked()) model->unlockControllers();
        });
    }
}

bool has_visible_window(const Document& document) {
    return std::ranges::any_of(controllers_of(document), can_be_seen);
}

}  // namespace qor::calc
