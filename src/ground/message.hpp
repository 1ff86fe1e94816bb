#pragma once

#include <string>

#include "ui/message_box.hpp"

namespace qor {

// Tells or asks the user something under the product's title.
MessageAnswer show_message(std::u16string text, MessageIcon icon, MessageButtons buttons = MessageButtons::ok);

}  // namespace qor
