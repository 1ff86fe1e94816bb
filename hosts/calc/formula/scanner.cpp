#include "hosts/calc/formula/scanner.hpp"

namespace qor::calc {

bool Scanner::copy_constant() {
    const std::size_t start = position_;
    if (here() == u'"') {
        take_quoted(text_, position_);
    } else if (const auto error = error_constant_at(text_, position_); !error.empty()) {
        position_ += error.size();
    } else if (is_digit(here()) || (here() == u'.' && is_digit(peek(1)))) {
        while (is_digit(here()) || here() == u'.') ++position_;
        const std::size_t sign = peek(1) == u'+' || peek(1) == u'-' ? 2 : 1;
        if ((here() | 0x20) == u'e' && is_digit(peek(sign))) {
            position_ += sign;
            while (is_digit(here())) ++position_;
        }
    } else {
        return false;
    }
    put(text_.substr(start, position_ - start));
    return true;
}

}  // namespace qor::calc
