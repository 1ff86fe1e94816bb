#include "stores/data_folder.hpp"

#include <array>
#include <string_view>

#include "platform/files.hpp"
#include "platform/locked_file.hpp"
#include "stores/data_file.hpp"

namespace qor {
namespace {

namespace fs = std::filesystem;

constexpr std::array stores{"Bookmarks.dat", "FileGroups.dat", "PrintGroups.dat"};

// One format a line, in the order of their use.
constexpr std::string_view date_formats =
    "m/d/yyyy\n"
    "mm/dd/yy\n"
    "mmmm d, yyyy\n"
    "dddd, mmmm d, yyyy\n"
    "d-mmm-yy\n"
    "d mmmm yyyy\n"
    "mmm-yy\n"
    "mmmm yyyy\n"
    "yyyy-mm-dd\n"
    "m/d/yyyy h:mm AM/PM\n"
    "h:mm AM/PM\n"
    "hh:mm:ss\n";

bool create_text_file(const fs::path& path, std::string_view text) {
    auto file = LockedFile::acquire(path);
    return file && file->replace(text);
}

}  // namespace

bool create_data_files(const fs::path& folder) {
    std::error_code failure;
    fs::create_directories(folder, failure);
    bool made = fs::is_directory(folder, failure);
    for (const char* name : stores) {
        const fs::path path = folder / name;
        if (!fs::exists(path, failure)) made = save_empty_data_file(path_text(path)) && made;
    }
    const fs::path formats = folder / "DateFormat.dat";
    if (!fs::exists(formats, failure)) made = create_text_file(formats, date_formats) && made;
    return made;
}

}  // namespace qor
