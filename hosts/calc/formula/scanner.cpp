#include "hosts/calc/formula/scanner.hpp"

namespace qor::calc {

std::u16string_view Scanner::take_number() {
    const std::size_t start = position_;
    if (!is_digit(here()) && !(here() == u'.' && is_digit(peek(1)))) return {};
    while (is_digit(here()) || here() == u'.') ++position_;
    const std::size_t sign = peek(1) == u'+' || peek(1) == u'-' ? 2 : 1;
    if ((here() | 0x20) == u'e' && is_digit(peek(sign))) {
        position_ += sign;
        while (is_digit(here())) ++position_;
    }
    return text_.substr(start, position_ - start);
}

bool Scanner::copy_constant() {
    const std::size_t start = position_;
    if (here() == u'"') {
        take_quoted(text_, position_);
    } else if (const auto error = error_constant_at(text_, position_); !error.empty()) {
        position_ += error.size();
    } else if (take_number().empty()) {
        return false;
    }
    put(text_.substr(start, position_ - start));
    return true;
}

void Scanner::copy_brackets(char16_t separator, char16_t translated) {
    int depth = 0;
    do {
        const char16_t c = take();
        if (c == u'[') ++depth;
        if (c == u']') --depth;
        put(c == separator && depth == 1 ? translated : c);
        if (c == u'\'' && !at_end()) put(take());
    } while (depth > 0 && !at_end());
}

}  // namespace qor::calc
