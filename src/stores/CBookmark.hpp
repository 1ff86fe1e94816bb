#pragma once

#include <span>
#include <string>

#include "automation/object.hpp"
#include "ui/list_box.hpp"

namespace qor {

// Moves the bookmarks between their file, a list of the user's and the host's drop-down. A bookmark is five texts: its
// name, the workbook's name, its full path, the worksheet's name and an address. No member raises, and a file that
// cannot be read is one without bookmarks.
class CBookmark {
  public:
    static constexpr std::size_t fields = 5;

    std::u16string DataFile;

    // The list's columns are the five texts in their order.
    void SaveList(const std::u16string& path, const ListBox& list) const;
    // Adds the bookmarks that have a name.
    void LoadList(const std::u16string& path, ListBox& list) const;
    // Empties the host's drop-down and fills it with the names in the order of the file.
    void LoadExcelCombo(const std::u16string& path, const Object& combo) const;
    // The five texts of the first bookmark of that very name; the array stays as it is when there is none.
    void BookmarkInfo(const std::u16string& name, std::span<Variant, fields> info) const;
};

}  // namespace qor
