#include <doctest/doctest.h>

#include "fresh_store.hpp"
#include "platform/windows/registry_key.hpp"
#include "platform/windows/system_text.hpp"

using namespace qor;

TEST_CASE_FIXTURE(test::FreshStore, "registry: a section is a key and a value is a text of it") {
    REQUIRE(store.write(u"Tools\\Cell Color", u"BackColor", u"&H8000000F&"));
    REQUIRE(store.write(u"Tools", u"", u"unnamed"));
    const RegistryKey key = RegistryKey::open(HKEY_CURRENT_USER, path + u"\\tools\\cell color", KEY_READ);
    REQUIRE(key);
    CHECK((key.text(u"backcolor") == u"&H8000000F&"));
    DWORD type = 0;
    DWORD size = 0;
    REQUIRE(RegQueryValueExW(key.get(), L"BackColor", nullptr, &type, nullptr, &size) == ERROR_SUCCESS);
    CHECK(type == REG_SZ);
    CHECK(size == 24);
    const RegistryKey parent = RegistryKey::open(HKEY_CURRENT_USER, path + u"\\Tools", KEY_READ);
    CHECK((parent.text(u"") == u"unnamed"));
}

TEST_CASE_FIXTURE(test::FreshStore,
                  "registry: a value of another type is absent, one without its closing zero is whole") {
    REQUIRE(store.write(u"Options", u"a", u"1"));
    const RegistryKey key = RegistryKey::open(HKEY_CURRENT_USER, path + u"\\Options", KEY_ALL_ACCESS);
    REQUIRE(key);
    const DWORD number = 7;
    RegSetValueExW(key.get(), L"number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof(number));
    RegSetValueExW(key.get(), L"open", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"text"), 8);
    RegSetValueExW(key.get(), L"nothing", 0, REG_SZ, reinterpret_cast<const BYTE*>(L""), 0);
    CHECK_FALSE(store.read(u"Options", u"number"));
    CHECK((store.read(u"Options", u"open") == u"text"));
    CHECK_FALSE(store.read(u"Options", u"nothing"));
}
