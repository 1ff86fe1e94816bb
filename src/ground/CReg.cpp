#include "ground/CReg.hpp"

#include <utility>

#include "ground/product.hpp"
#include "platform/registry_path.hpp"

namespace qor {

namespace {

void assign_trimmed(std::u16string& field, std::u16string_view text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first != std::u16string_view::npos) field = text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::u16string_view value_name(std::u16string_view key) {
    return key == u"*" ? std::u16string_view() : key;
}

}  // namespace

CReg::CReg(SettingsStore& store) : store_(store), company_(product::company), title_(product::title) {}

void CReg::Company(std::u16string_view company) {
    assign_trimmed(company_, company);
}

void CReg::Title(std::u16string_view title) {
    assign_trimmed(title_, title);
}

std::u16string CReg::SubKey(std::u16string_view section) const {
    return registry_path(company_, title_, product::version, section);
}

std::u16string CReg::GetSetting(RootKey root, std::u16string_view section, std::u16string_view key,
                                std::u16string_view default_value) const {
    if (root == RootKey::current_user)
        if (auto value = store_.read(section, value_name(key))) return *std::move(value);
    return std::u16string(default_value);
}

bool CReg::SaveSetting(RootKey root, std::u16string_view section, std::u16string_view key, std::u16string_view value) {
    return root == RootKey::current_user && store_.write(section, value_name(key), value);
}

bool CReg::DeleteSetting(RootKey root, std::u16string_view section, std::u16string_view key) {
    if (key.empty()) return store_.erase_section(section);
    return root == RootKey::current_user && store_.erase(section, value_name(key));
}

}  // namespace qor
