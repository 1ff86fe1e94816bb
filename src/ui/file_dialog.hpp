#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qor {

// What a dialog that picks a file is to offer.
struct FileDialog {
    enum class Purpose : std::uint8_t { open, save };
    struct Kind {
        std::u16string description;
        std::u16string pattern;  // such as u"*.xls;*.xlt"
    };

    Purpose purpose = Purpose::open;
    std::u16string title;
    std::vector<Kind> kinds;
    std::size_t chosen_kind = 0;  // what the user chose is put here
    std::u16string folder;
    std::u16string file_name;  // proposed; may be a whole path
};

}  // namespace qor
