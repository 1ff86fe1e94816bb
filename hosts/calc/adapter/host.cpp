#include "hosts/calc/adapter/host.hpp"

#include <algorithm>
#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>

#include "hosts/calc/adapter/configuration.hpp"
#include "hosts/calc/adapter/function_names.hpp"

namespace qor::calc {

Host::Host(css::uno::Reference<css::uno::XComponentContext> context, std::shared_ptr<HostUser> user,
           std::u16string companion_folder)
    : context_(std::move(context)),
      user_(std::move(user)),
      companion_folder_(std::move(companion_folder)),
      desktop_(css::frame::Desktop::create(context_)) {}

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

Document Host::active_document() {
    Document current(Ref{desktop_->getCurrentComponent()});
    if (current) return current;
    const std::vector<Document> open = documents();
    if (std::ranges::find(open, last_active_) == open.end()) {
        const auto last_visible = std::find_if(open.rbegin(), open.rend(), has_visible_window);
        last_active_ = last_visible == open.rend() ? Document() : *last_visible;
    }
    return last_active_;
}

void Host::activate(const Document& document) {
    if (!has_visible_window(document)) return;
    const Ref controller{Ref<css::frame::XModel>(document)->getCurrentController()};
    Ref(controller->getFrame())->activate();
    last_active_ = document;
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
    screen_updating_ = on;
    if (!on) {
        locked_ = documents();
        for (const Document& document : locked_) Ref<css::frame::XModel>(document)->lockControllers();
        return;
    }
    const std::vector<Document> open = documents();
    for (const Document& document : std::exchange(locked_, {})) {
        const bool still_open = std::ranges::find(open, document) != open.end();
        const Ref<css::frame::XModel> model(document);
        if (still_open && model->hasControllersLocked()) model->unlockControllers();
    }
}

bool has_visible_window(const Document& document) {
    const Ref controller{Ref<css::frame::XModel>(document)->getCurrentController()};
    if (!controller) return false;
    const Ref frame{controller->getFrame()};
    return Ref<css::awt::XWindow2>(Ref{frame->getContainerWindow()})->isVisible();
}

}  // namespace qor::calc
