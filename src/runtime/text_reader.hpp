#pragma once

#include <optional>
#include <string_view>

namespace qor {

constexpr bool is_blank(char16_t c) {
    return c == u' ' || (c >= u'\t' && c <= u'\r') || c == u'\u00A0' || c == u'\u3000';
}

constexpr bool is_digit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

// Takes a text apart from its front.
class TextReader {
  public:
    explicit TextReader(std::u16string_view text) : rest_(text) {}

    bool at_end() const { return rest_.empty(); }
    bool at_digit() const { return !at_end() && is_digit(rest_.front()); }
    std::u16string_view rest() const { return rest_; }
    char16_t next() const { return rest_.front(); }  // not at the end
    // One of the choices, which are upper case, comes next in either case.
    bool at(std::u16string_view choices) const {
        return !at_end() && choices.find(upper(rest_.front())) != std::u16string_view::npos;
    }
    char16_t take() {
        const char16_t c = rest_.front();
        rest_.remove_prefix(1);
        return c;
    }
    std::optional<char16_t> take_if(std::u16string_view choices) {
        if (!at(choices)) return std::nullopt;
        return upper(take());
    }
    bool take_text(std::u16string_view text) {
        if (text.empty() || !rest_.starts_with(text)) return false;
        rest_.remove_prefix(text.size());
        return true;
    }
    void skip_blanks() {
        while (!at_end() && is_blank(rest_.front())) take();
    }

  private:
    static constexpr char16_t upper(char16_t c) {
        return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
    }

    std::u16string_view rest_;
};

}  // namespace qor
