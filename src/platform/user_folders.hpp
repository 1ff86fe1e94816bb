#pragma once

#include <filesystem>
#include <string_view>

namespace qor {

// Whose folders and files are meant: each version of each product has its own.
struct ProductName {
    std::u16string_view company;
    std::u16string_view title;
    std::u16string_view version;
};

// The product's folders below those of the user by the XDG rules, such as ~/.config and ~/.local/share: the settings,
// and what the user's work with the product leaves. Nothing is made.
std::filesystem::path settings_folder(const ProductName& product);
std::filesystem::path data_folder(const ProductName& product);

}  // namespace qor
