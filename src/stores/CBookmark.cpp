#include "stores/CBookmark.hpp"

#include <algorithm>
#include <array>

#include "automation/member_names.hpp"
#include "platform/text.hpp"
#include "stores/data_file.hpp"

namespace qor {
namespace {

constexpr std::u16string_view count_name = u"NumberOfItems";
constexpr std::array<std::u16string_view, CBookmark::fields> field_names{u"Bookmark", u"Workbook", u"WorkbookFullPath",
                                                                         u"Worksheet", u"Range"};

// The name of a value of the bookmark in that place, from 1: such as u"2Range".
std::u16string value_name(std::int32_t place, std::size_t field) {
    return from_utf8(std::to_string(place)).append(field_names.at(field));
}

// Calls take(bookmark) for each bookmark of the file until one answers false.
template <class Take>
void for_each_bookmark(const std::u16string& path, const Take& take) {
    const PropertyBag bag = load_data_file(path);
    // Every bookmark has a value in the bag, so a greater count is damage.
    const auto count = std::min<std::int64_t>(bag.read(count_name, 0), static_cast<std::int64_t>(bag.size()));
    for (std::int32_t place = 1; place <= count; ++place) {
        std::vector<std::u16string> bookmark;
        for (std::size_t field = 0; field < CBookmark::fields; ++field) {
            bookmark.push_back(bag.read(value_name(place, field)));
        }
        if (!take(std::move(bookmark))) return;
    }
}

}  // namespace

void CBookmark::SaveList(const std::u16string& path, const ListBox& list) const {
    if (list.count() == 0) {
        save_empty_data_file(path);
        return;
    }
    PropertyBag bag;
    bag.write(std::u16string(count_name), static_cast<std::int32_t>(list.count()), 0);
    for (std::size_t row = 0; row < list.count(); ++row) {
        for (std::size_t field = 0; field < fields; ++field) {
            bag.write(value_name(static_cast<std::int32_t>(row) + 1, field), list.text(row, field));
        }
    }
    save_data_file(path, bag);
}

void CBookmark::LoadList(const std::u16string& path, ListBox& list) const {
    for_each_bookmark(path, [&](std::vector<std::u16string> bookmark) {
        if (!bookmark.front().empty()) list.add_row(std::move(bookmark));
        return true;
    });
}

void CBookmark::LoadExcelCombo(const std::u16string& path, const Object& combo) const {
    attempt([&] { combo.call(names::Clear); });
    for_each_bookmark(path, [&](const std::vector<std::u16string>& bookmark) {
        if (!bookmark.front().empty()) attempt([&] { combo.call(names::AddItem, bookmark.front()); });
        return true;
    });
}

void CBookmark::BookmarkInfo(const std::u16string& name, std::span<Variant, fields> info) const {
    for_each_bookmark(DataFile, [&](const std::vector<std::u16string>& bookmark) {
        if (bookmark.front() != name) return true;
        std::ranges::copy(bookmark, info.begin());
        return false;
    });
}

}  // namespace qor
