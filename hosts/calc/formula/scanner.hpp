#pragma once

#include <string>
#include <string_view>

#include "hosts/calc/formula/notation.hpp"

namespace qor::calc {

// Walks over a formula and gathers its translation. What both notations write alike is copied from here.
class Scanner {
  public:
    explicit Scanner(std::u16string_view text) : text_(text) {}

    bool at_end() const { return position_ >= text_.size(); }
    char16_t here() const { return peek(0); }
    char16_t peek(std::size_t ahead) const {
        return position_ + ahead < text_.size() ? text_[position_ + ahead] : u'\0';
    }
    std::u16string_view text() const { return text_; }
    std::size_t& position() { return position_; }
    std::u16string take_result() { return std::move(result_); }

    void put(std::u16string_view text) { result_ += text; }
    void put(char16_t c) { result_ += c; }
    char16_t take() { return text_[position_++]; }

    bool take_if(std::u16string_view part) {
        if (!text_.substr(position_).starts_with(part)) return false;
        position_ += part.size();
        return true;
    }

    std::u16string_view take_word() {
        const std::size_t start = position_;
        while (is_word(here())) ++position_;
        return text_.substr(start, position_ - start);
    }

    // The number that stands here, empty if there is none.
    std::u16string_view take_number();

    // Copies a text constant, a number or an error constant if one stands here.
    bool copy_constant();

    // Copies what stands in square brackets here, the columns of a table, with another sign between its parts. In the
    // name of a column an apostrophe protects the character behind it.
    void copy_brackets(char16_t separator, char16_t translated);

  private:
    std::u16string_view text_;
    std::size_t position_ = 0;
    std::u16string result_;
};

}  // namespace qor::calc
