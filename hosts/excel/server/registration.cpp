#include "hosts/excel/server/registration.hpp"

#include <array>

#include "ground/product.hpp"
#include "hosts/excel/com/ole.hpp"
#include "hosts/excel/server/identity.hpp"
#include "platform/windows/registry_key.hpp"
#include "platform/windows/system_text.hpp"

namespace qor::excel {
namespace {

constexpr std::u16string_view classes = u"Software\\Classes\\";

std::u16string text_of(const GUID& id) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return from_system_text(text.data());
}

std::u16string class_key() {
    return u"CLSID\\" + text_of(class_id);
}
std::u16string library_key() {
    return u"TypeLib\\" + text_of(library_id);
}

}  // namespace

std::vector<ClassValue> class_values(std::u16string_view library_path) {
    const std::u16string path(library_path);
    const std::u16string title = from_system_text(class_title);
    const std::u16string name = from_system_text(class_name);
    const std::u16string full_name = from_system_text(class_name_with_version);
    const std::u16string version_key = library_key() + u"\\" + std::u16string(product::version);
    constexpr std::u16string_view platform = sizeof(void*) == 8 ? u"win64" : u"win32";
    return {
        {name, {}, title},
        {name + u"\\CLSID", {}, text_of(class_id)},
        {name + u"\\CurVer", {}, full_name},
        {full_name, {}, title},
        {full_name + u"\\CLSID", {}, text_of(class_id)},
        {class_key(), {}, title},
        {class_key() + u"\\InprocServer32", {}, path},
        {class_key() + u"\\InprocServer32", u"ThreadingModel", u"Apartment"},
        {class_key() + u"\\ProgID", {}, full_name},
        {class_key() + u"\\VersionIndependentProgID", {}, name},
        {class_key() + u"\\Programmable", {}, {}},
        {class_key() + u"\\TypeLib", {}, text_of(library_id)},
        {class_key() + u"\\Version", {}, std::u16string(product::version)},
        {version_key, {}, title},
        {version_key + u"\\0\\" + std::u16string(platform), {}, path},
        {version_key + u"\\FLAGS", {}, u"0"},
    };
}

bool register_classes(std::u16string_view library_path) {
    bool is_done = true;
    for (const auto& [key, name, value] : class_values(library_path)) {
        const RegistryKey made = RegistryKey::create(HKEY_CURRENT_USER, std::u16string(classes) + key);
        is_done = made && made.set_text(name, value) && is_done;
    }
    return is_done;
}

bool unregister_classes() {
    bool is_done = true;
    for (const std::u16string& key :
         {from_system_text(class_name), from_system_text(class_name_with_version), class_key(), library_key()}) {
        const LSTATUS status = RegDeleteTreeW(HKEY_CURRENT_USER, system_text(std::u16string(classes) + key).c_str());
        is_done = (status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND) && is_done;
    }
    return is_done;
}

}  // namespace qor::excel
