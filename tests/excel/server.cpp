#include "tests/excel/server.hpp"

#include <doctest/doctest.h>

#include "ground/MMain.hpp"
#include "hosts/excel/com/ole.hpp"
#include "hosts/excel/com/ole_error.hpp"
#include "hosts/excel/com/served_object.hpp"

namespace qor::test {
namespace {

HRESULT call_entry(const char* name) {
    const HMODULE library = LoadLibraryW(Server::path().c_str());
    REQUIRE(library);
    const auto entry = reinterpret_cast<HRESULT(WINAPI*)()>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    REQUIRE_FALSE(!entry);
    const HRESULT answer = entry();
    FreeLibrary(library);
    return answer;
}

// Wine up to 8 does not look into the user's own classes as Windows does: they are copied to where it looks.
void show_classes_to_wine() {
    CLSID found{};
    if (SUCCEEDED(CLSIDFromProgID(L"QORPlus.CCom", &found))) return;
    HKEY own = nullptr;
    HKEY common = nullptr;
    REQUIRE(RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Classes", 0, KEY_READ, &own) == ERROR_SUCCESS);
    REQUIRE(RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Classes", 0, KEY_ALL_ACCESS, &common) == ERROR_SUCCESS);
    CHECK(RegCopyTreeW(own, nullptr, common) == ERROR_SUCCESS);
    RegCloseKey(own);
    RegCloseKey(common);
}

}  // namespace

Server::Server() {
    REQUIRE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    REQUIRE(register_it() == S_OK);
    show_classes_to_wine();
}

Server::~Server() {
    gExcel = Object();
    unload();
    CHECK_FALSE(is_loaded());
    CHECK(excel::ServedObject::count() == 0);
    CoUninitialize();
}

Object Server::create() const {
    return excel::from_host(create_raw());
}

excel::ComPointer<IDispatch> Server::create_raw() const {
    CLSID id{};
    REQUIRE(SUCCEEDED(CLSIDFromProgID(L"QORPlus.CCom", &id)));
    excel::ComPointer<IDispatch> made;
    REQUIRE(SUCCEEDED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, made.put_void())));
    return made;
}

bool Server::is_loaded() {
    return GetModuleHandleW(L"qorplus.dll") != nullptr;
}

void Server::unload() {
    CoFreeUnusedLibrariesEx(0, 0);
    CoFreeUnusedLibrariesEx(0, 0);
}

std::wstring Server::path() {
    const std::string text(QOR_SERVER);
    std::wstring path(text.begin(), text.end());
    for (wchar_t& c : path)
        if (c == L'/') c = L'\\';
    return path;
}

HRESULT Server::register_it() {
    return call_entry("DllRegisterServer");
}

HRESULT Server::unregister_it() {
    return call_entry("DllUnregisterServer");
}

}  // namespace qor::test
