#include "ground/message.hpp"

#include "ground/MMain.hpp"
#include "ground/product.hpp"

namespace qor {

MessageAnswer show_message(std::u16string text, MessageIcon icon, MessageButtons buttons) {
    return environment().screen.message_box(
        {.title = std::u16string(product::title), .text = std::move(text), .icon = icon, .buttons = buttons});
}

}  // namespace qor
