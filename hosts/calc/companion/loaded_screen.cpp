#include "hosts/calc/companion/loaded_screen.hpp"

#include <dlfcn.h>

#include <com/sun/star/awt/SystemDependentXWindow.hpp>
#include <com/sun/star/awt/XSystemDependentWindowPeer.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/lang/SystemDependent.hpp>

#include "automation/error.hpp"
#include "hosts/calc/companion/own_folder.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/ref.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

constexpr const char* library_name = "qorplus-screen.so";

// The X11 id of the window that the user works in; 0 when there is none.
std::uintptr_t front_window(const Context& context) {
    std::uintptr_t handle = 0;
    attempt([&] {
        guarded([&] {
            const Ref desktop{css::frame::Desktop::create(context.reference())};
            const Ref frame{desktop->getCurrentFrame()};
            const Ref<css::awt::XSystemDependentWindowPeer> peer(Ref{frame->getContainerWindow()});
            const auto window =
                peer->getWindowHandle(css::uno::Sequence<sal_Int8>(16), css::lang::SystemDependent::SYSTEM_XWINDOW);
            handle = static_cast<std::uintptr_t>(value_of<css::awt::SystemDependentXWindow>(window).WindowHandle);
        });
    });
    return handle;
}

[[noreturn]] void refuse(std::string_view reason) {
    throw Error(ErrorNumber::host_refused, {}, u"The dialogs cannot be shown: " + from_utf8(reason));
}

}  // namespace

Screen& LoadedScreen::screen() {
    if (loaded_.screen) return *loaded_.screen;
    void* library = ::dlopen((own_folder() / library_name).c_str(), RTLD_NOW | RTLD_LOCAL);
    auto* make_screen = library ? reinterpret_cast<MakeScreen*>(::dlsym(library, make_screen_name)) : nullptr;
    if (!make_screen) refuse(::dlerror());
    try {
        make_screen([context = context_] { return front_window(context); }, loaded_);
    } catch (const std::exception& error) {
        refuse(error.what());
    }
    return *loaded_.screen;
}

void LoadedScreen::unload(Form& form) noexcept {
    if (loaded_.screen) loaded_.screen->unload(form);
}

bool LoadedScreen::close_dialogs() {
    return loaded_.close_dialogs && loaded_.close_dialogs();
}

}  // namespace qor::calc
