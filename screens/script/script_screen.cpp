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

// In the order of MessageAnswer.
constexpr std::array answer_texts{"OK", "Cancel", "Abort", "Retry", "Ignore", "Yes", "No"};

// An answer, too, where a message offers it; the message stays for the next one.
constexpr const char* help_text = "Help";

const char* text_of(MessageAnswer answer) {
    return answer_texts.at(static_cast<std::size_t>(answer));
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
    asked_ = 0;
    progress_ = nullptr;
}

json ScriptScreen::end_call(bool command_failed) {
    if (!command_failed) {
        require_used("form", shown_forms_.size(), "actions", forms_.size());
        require_used("message", asked_, "answers", answers_.size());
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
    const std::vector<MessageAnswer> offered = answers_of(message.buttons);
    json texts = json::array();
    for (const MessageAnswer answer : offered) texts.push_back(text_of(answer));

    const auto help_wanted = [&] { return asked_ < answers_.size() && answers_[asked_] == help_text; };
    for (; message.open_help && help_wanted(); ++asked_) message.open_help();

    MessageAnswer answer = default_answer(message);
    const std::size_t place = asked_++;
    if (place < answers_.size()) {
        const auto chosen = std::ranges::find(texts, answers_[place]);
        if (chosen == texts.end()) {
            throw ScriptError(fmt::format("the message \"{}\" offers {}, but the script answers {}",
                                          to_utf8(message.text), texts.dump(), answers_[place].dump()));
        }
        answer = offered[static_cast<std::size_t>(chosen - texts.begin())];
    }
    messages_.push_back({{"title", to_utf8(message.title)},
                         {"text", to_utf8(message.text)},
                         {"icon", icon_names.at(static_cast<std::size_t>(message.icon))},
                         {"buttons", std::move(texts)},
                         {"answer", text_of(answer)}});
    if (message.help_id != 0) messages_.back()["helpId"] = message.help_id;
    return answer;
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
