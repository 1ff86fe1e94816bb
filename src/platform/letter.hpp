#pragma once

namespace qor {

// The system's knowledge of a letter's other case, one code point for one and without regard to locale.
char32_t upper_letter(char32_t code_point);
char32_t lower_letter(char32_t code_point);

}  // namespace qor
