#include "core/bookmark_jump.hpp"

#include <algorithm>
#include <array>

#include "automation/member_names.hpp"
#include "core/bookmark_list.hpp"
#include "ground/MMain.hpp"
#include "ground/message.hpp"
#include "runtime/conversion.hpp"
#include "runtime/trim.hpp"
#include "services/CFile.hpp"
#include "stores/CBookmark.hpp"

namespace qor {
namespace {

Object open_workbook(const std::u16string& full_name) {
    for (const Variant& book : gExcel.get(names::Workbooks).object().items()) {
        if (to_text(book.get(names::FullName)) == full_name) return book.object();
    }
    return {};
}

}  // namespace

void jump_to_bookmark(const std::u16string& data_file, bool silent) {
    const std::u16string name = to_text(visible_bookmark_list().get(names::Text));
    if (name == no_bookmarks) return;
    CBookmark store;
    store.DataFile = data_file;
    std::array<Variant, CBookmark::fields> info;
    store.BookmarkInfo(name, info);
    std::array<std::u16string, CBookmark::fields> field;
    std::ranges::transform(info, field.begin(),
                           [](const Variant& value) { return std::u16string(trim(to_text(value))); });
    const std::u16string& full_path = field[2];
    const std::u16string& worksheet = field[3];
    const std::u16string& range = field[4];

    if (const Object book = open_workbook(full_path)) {
        attempt([&] { book.get(names::Worksheets, worksheet).call(names::Activate); });
        attempt([&] { book.get(names::Worksheets, worksheet).get(names::Range, range).call(names::Select); });
    } else if (CFile::FileExists(full_path)) {
        gExcel.get(names::Workbooks).call(names::Open, full_path);
    } else if (!silent) {
        show_message(
            u"Sorry, but the file associated with this bookmark no longer exists.  Please modify the bookmark.",
            MessageIcon::critical);
    }
}

}  // namespace qor
