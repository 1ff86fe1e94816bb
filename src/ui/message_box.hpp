#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace qor {

enum class MessageIcon : std::uint8_t { none, critical, question, exclamation, information };
enum class MessageButtons : std::uint8_t { ok, ok_cancel, abort_retry_ignore, yes_no_cancel, yes_no, retry_cancel };
enum class MessageAnswer : std::uint8_t { ok, cancel, abort, retry, ignore, yes, no };

struct MessageBox {
    std::u16string title;
    std::u16string text;
    MessageIcon icon = MessageIcon::none;
    MessageButtons buttons = MessageButtons::ok;
    std::int32_t help_id = 0;              // 0: there is no help
    std::function<void()> open_help = {};  // by a Help button and F1; the message stays. Empty: there is no help
    std::uint8_t default_button = 0;       // place among the buttons, from the left, from 0
};

// What the buttons answer, from the left.
std::vector<MessageAnswer> answers_of(MessageButtons buttons);
MessageAnswer default_answer(const MessageBox& message);

}  // namespace qor
