#include "core/macros.hpp"

#include <algorithm>

#include "ground/product.hpp"
#include "platform/text.hpp"

namespace qor {

Macro find_macro(std::u16string_view name) {
    static const std::vector<Macro> own{
        {u"QAbout", u"QAbout", false},
        {u"UTHomePage", u"UTOpenWWW", false, {std::u16string(product::home_page)}},
        {u"UTOnlineSupport", u"UTOpenWWW", false, {std::u16string(product::support_page)}},
        {u"UTSendEmail", u"UTSendMail", false, {std::u16string(product::author_mail)}},
        {u"UTraColRow", u"UTTraColRow"},
    };
    const auto is_named = [&](const Macro& macro) { return equal_ignoring_case(macro.name, name); };
    const auto place = std::ranges::find_if(own, is_named);
    return place == own.end() ? Macro{name, name} : *place;
}

}  // namespace qor
