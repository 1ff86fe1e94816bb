#include "ui/message_box.hpp"

#include <algorithm>

namespace qor {

std::vector<MessageAnswer> answers_of(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::ok:
            return {MessageAnswer::ok};
        case MessageButtons::ok_cancel:
            return {MessageAnswer::ok, MessageAnswer::cancel};
        case MessageButtons::abort_retry_ignore:
            return {MessageAnswer::abort, MessageAnswer::retry, MessageAnswer::ignore};
        case MessageButtons::yes_no_cancel:
            return {MessageAnswer::yes, MessageAnswer::no, MessageAnswer::cancel};
        case MessageButtons::yes_no:
            return {MessageAnswer::yes, MessageAnswer::no};
        case MessageButtons::retry_cancel:
            return {MessageAnswer::retry, MessageAnswer::cancel};
    }
    return {MessageAnswer::ok};
}

MessageAnswer default_answer(const MessageBox& message) {
    const std::vector<MessageAnswer> answers = answers_of(message.buttons);
    return answers[std::min<std::size_t>(message.default_button, answers.size() - 1)];
}

}  // namespace qor
