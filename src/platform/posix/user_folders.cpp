#include "platform/user_folders.hpp"

#include <glib.h>

#include <cstdlib>

#include "platform/text.hpp"

namespace qor {
namespace {

namespace fs = std::filesystem;

// A relative path does not count.
fs::path folder_from_environment(const char* variable) {
    const char* folder = std::getenv(variable);
    return folder && *folder == '/' ? folder : "";
}

fs::path user_folder(const char* variable, const char* below_home) {
    if (auto folder = folder_from_environment(variable); !folder.empty()) return folder;
    const auto home = folder_from_environment("HOME");
    return (home.empty() ? fs::path(g_get_home_dir()) : home) / below_home;
}

fs::path folder_of(const ProductName& product, const fs::path& base) {
    return base / to_utf8(product.company) / to_utf8(product.title) / to_utf8(product.version);
}

}  // namespace

fs::path settings_folder(const ProductName& product) {
    return folder_of(product, user_folder("XDG_CONFIG_HOME", ".config"));
}

fs::path data_folder(const ProductName& product) {
    return folder_of(product, user_folder("XDG_DATA_HOME", ".local/share"));
}

}  // namespace qor
