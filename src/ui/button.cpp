#include "ui/button.hpp"

#include "platform/text.hpp"

namespace qor {

Buttons::Buttons(Form& form, std::u16string_view name, std::initializer_list<Entry> entries) {
    for (const auto& [index, caption] : entries) {
        std::u16string own_name = std::u16string(name) + u'(' + from_utf8(std::to_string(index)) + u')';
        Button& button = buttons_
                             .emplace(std::piecewise_construct, std::forward_as_tuple(index),
                                      std::forward_as_tuple(form, std::move(own_name), caption))
                             .first->second;
        button.on_click = [this, place = index] { on_click(place); };
    }
}

}  // namespace qor
