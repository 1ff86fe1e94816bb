#include "screens/script/script_screen.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>

#include "platform/text.hpp"
#include "screens/script/action.hpp"
#include "screens/script/control_state.hpp"
#include "ui/button.hpp"

namespace qor {
namespace {

using nlohmann::json;

struct AnswerText {
    MessageAnswer answer;
    const char* text;
};
constexpr AnswerText ok{MessageAnswer::ok, "OK"};
constexpr AnswerText cancel{MessageAnswer::cancel, "Cancel"};
constexpr AnswerText abort_{MessageAnswer::abort, "Abort"};
constexpr AnswerText retry{MessageAnswer::retry, "Retry"};
constexpr AnswerText ignore{MessageAnswer::ignore, "Ignore"};
constexpr AnswerText yes{MessageAnswer::yes, "Yes"};
constexpr AnswerText no{MessageAnswer::no, "No"};

// The buttons of a message, from the left.
std::vector<AnswerText> offered_by(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::ok:
            return {ok};
        case MessageButtons::ok_cancel:
            return {ok, cancel};
        case MessageButtons::abort_retry_ignore:
            return {abort_, retry, ignore};
        case MessageButtons::yes_no_cancel:
            return {yes, no, cancel};
        case MessageButtons::yes_no:
            return {yes, no};
        case MessageButtons::retry_cancel:
            return {retry, cancel};
    }
    return {ok};
}

constexpr std::array icon_names{"none", "critical", "question", "exclamation", "information"};

bool is_text_or_null(const json& element) {
    return element.is_string() || element.is_null();
}
bool is_number_or_null(const json& element) {
    return element.is_number_integer() || element.is_null();
}

template <class Fits>
json list_of(const json& call, const char* key, const Fits& fits, const char* shape) {
    json list = call.value(key, json::array());
    const auto is_fit = [&](const json& element) { return std::invoke(fits, element); };
    if (!list.is_array() || !std::ranges::all_of(list, is_fit)) {
        throw ScriptError(fmt::format("\"{}\" must be {}, but it is {}", key, shape, list.dump()));
    }
    return list;
}

void require_used(const char* thing, std::size_t shown, const char* holds, std::size_t held) {
    if (shown >= held) return;
    throw ScriptError(fmt::format("the call showed {} {}{}, the script has {} for {}", shown, thing,
                                  shown == 1 ? "" : "s", holds, held));
}

// What closing the window does: the Cancel button, where the form has one.
void cancel_form(Form& form) {
    const auto& controls = form.controls();
    const auto place = std::ranges::find(controls, u"cmdButton(1)", &Control::name);
    if (place != controls.end()) {
        if (const auto* button = dynamic_cast<const Button*>(*place)) button->press();
    }
    form.unload();
}

}  // namespace

void ScriptScreen::begin_call(const json& call) {
    forms_ = list_of(call, "forms", &json::is_array, "a list of lists of actions");
    answers_ = list_of(call, "answers", &json::is_string, "a list of texts");
    picks_ = {{"ranges", list_of(call, "ranges", is_text_or_null, "a list of texts")},
              {"files", list_of(call, "files", is_text_or_null, "a list of texts")},
              {"folders", list_of(call, "folders", is_text_or_null, "a list of texts")},
              {"colors", list_of(call, "colors", is_number_or_null, "a list of whole numbers")}};
    shown_forms_ = json::array();
    messages_ = json::array();
    progress_ = nullptr;
}

json ScriptScreen::end_call(bool command_failed) {
    if (!command_failed) {
        require_used("form", shown_forms_.size(), "actions", forms_.size());
        require_used("message", messages_.size(), "answers", answers_.size());
        for (const auto& [key, left] : picks_.items()) {
            if (!left.empty())
                throw ScriptError(fmt::format("the call asked for no more {}, the script has {}", key, left.size()));
        }
    }
    return {{"forms", std::move(shown_forms_)}, {"messages", std::move(messages_)}, {"progress", std::move(progress_)}};
}

void ScriptScreen::show_modal(Form& form) {
    const std::size_t place = shown_forms_.size();
    shown_forms_.push_back(describe(form));
    if (place < forms_.size()) {
        for (const json& action : forms_[place]) {
            if (!form.visible()) {
                throw ScriptError(fmt::format("{} closed before the action {}", to_utf8(form.name()), action.dump()));
            }
            perform(form, action);
        }
    }
    if (form.visible()) cancel_form(form);
}

void ScriptScreen::progress(Form&, std::int32_t done, std::int32_t total) {
    progress_ = {done, total};
}

MessageAnswer ScriptScreen::message_box(const MessageBox& message) {
    const auto offered = offered_by(message.buttons);
    json texts = json::array();
    for (const AnswerText& button : offered) texts.push_back(button.text);

    AnswerText answer = offered[std::min<std::size_t>(message.default_button, offered.size() - 1)];
    const std::size_t place = messages_.size();
    if (place < answers_.size()) {
        const auto chosen =
            std::ranges::find(offered, answers_[place], [](const AnswerText& button) { return json(button.text); });
        if (chosen == offered.end()) {
            throw ScriptError(fmt::format("the message \"{}\" offers {}, but the script answers {}",
                                          to_utf8(message.text), texts.dump(), answers_[place].dump()));
        }
        answer = *chosen;
    }
    messages_.push_back({{"title", to_utf8(message.title)},
                         {"text", to_utf8(message.text)},
                         {"icon", icon_names.at(static_cast<std::size_t>(message.icon))},
                         {"buttons", std::move(texts)},
                         {"answer", answer.text}});
    return answer.answer;
}

std::optional<std::u16string> ScriptScreen::pick_file(Form*, FileDialog&) {
    return next_text("files");
}

std::optional<std::u16string> ScriptScreen::pick_folder(Form*, const std::u16string&) {
    return next_text("folders");
}

std::optional<std::int32_t> ScriptScreen::pick_color(Form*) {
    const json color = next_pick("colors");
    if (color.is_null()) return {};
    return color.get<std::int32_t>();
}

json ScriptScreen::next_pick(const std::string& key) {
    json& left = picks_[key];
    if (left.empty()) return nullptr;
    json next = left.front();
    left.erase(0);
    return next;
}

std::optional<std::u16string> ScriptScreen::next_text(const std::string& key) {
    const json text = next_pick(key);
    if (text.is_null()) return {};
    return from_utf8(text.get<std::string>());
}

}  // namespace qor
