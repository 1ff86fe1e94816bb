#include "core/bookmark_list.hpp"

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/message.hpp"
#include "ground/product.hpp"
#include "runtime/conversion.hpp"
#include "services/CFile.hpp"
#include "stores/CBookmark.hpp"

namespace qor {
namespace {

template <class... Conditions>
Object find_list(const Conditions&... conditions) {
    Object list;
    attempt([&] {
        for (const Variant& bar : gExcel.get(names::CommandBars).object().items()) {
            attempt([&] {
                list = bar.call(names::FindControl, named(names::Type, number_of(ControlType::drop_down)),
                                named(names::Tag, product::title), conditions...);
            });
            if (list) return;
        }
    });
    return list;
}

}  // namespace

Object bookmark_list() {
    return find_list();
}

Object visible_bookmark_list() {
    return find_list(named(names::Visible, true));
}

void fill_bookmark_list(const std::u16string& data_file) {
    if (!CFile::FileExists(data_file)) {
        show_message(u"Sorry, but the filename " + data_file + u" is missing.  Please contact technical support.",
                     MessageIcon::critical);
        return;
    }
    const Object list = bookmark_list();
    if (!list) return;
    CBookmark().LoadExcelCombo(data_file, list);
    attempt([&] {
        if (to_long(list.get(names::ListCount)) == 0) list.call(names::AddItem, no_bookmarks);
    });
    attempt([&] { list.put(names::ListIndex, 1); });
}

}  // namespace qor
