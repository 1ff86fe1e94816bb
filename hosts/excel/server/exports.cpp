
#include <array>

#include "hosts/excel/com/ole.hpp"
#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/server/class_factory.hpp"
#include "hosts/excel/server/identity.hpp"
#include "hosts/excel/server/module.hpp"
#include "hosts/excel/server/registration.hpp"
#include "platform/windows/system_text.hpp"

namespace {

HINSTANCE this_module = nullptr;

}  // namespace

namespace qor::excel {

HINSTANCE module() noexcept {
    return this_module;
}

std::wstring module_path() {
    std::wstring path(32'768, L'\0');  // the longest path there is
    path.resize(GetModuleFileNameW(this_module, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

}  // namespace qor::excel

using namespace qor::excel;

// What the system asks of a server; server.def exports them.

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) {
        this_module = instance;
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID asked, REFIID interface_id, void** result) {
    if (!result) return E_POINTER;
    *result = nullptr;
    return asked == class_id ? class_factory(interface_id, result) : CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
    return is_in_use() ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() {
    return at_border(nullptr,
                     [] { return register_classes(qor::from_system_text(module_path())) ? S_OK : SELFREG_E_CLASS; });
}

STDAPI DllUnregisterServer() {
    return at_border(nullptr, [] { return unregister_classes() ? S_OK : SELFREG_E_CLASS; });
}
