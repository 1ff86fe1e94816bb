#include "platform/letter.hpp"

#include <glib.h>

namespace qor {

char32_t upper_letter(char32_t code_point) {
    return g_unichar_toupper(code_point);
}

char32_t lower_letter(char32_t code_point) {
    return g_unichar_tolower(code_point);
}

}  // namespace qor
