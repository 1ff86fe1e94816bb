#include "hosts/calc/bars/control.hpp"

#include <algorithm>

namespace qor::calc {
namespace {

// Writes the text with another sign before access keys; the old sign doubled stood for itself, and so does the new one.
std::u16string with_access_key_sign(std::u16string_view text, char16_t old_sign, std::u16string_view new_sign) {
    std::u16string result;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (!new_sign.empty() && text[place] == new_sign.front()) {
            result += new_sign;
            result += new_sign;
        } else if (text[place] != old_sign) {
            result += text[place];
        } else if (place + 1 < text.size() && text[place + 1] == old_sign) {
            result += text[place++];
        } else {
            result += new_sign;
        }
    }
    return result;
}

}  // namespace

bool contains(const Controls& controls, const Control& control) {
    return std::ranges::any_of(
        controls, [&](const ControlPointer& one) { return one.get() == &control || contains(one->children, control); });
}

bool contains_own(const Controls& controls) {
    return std::ranges::any_of(controls,
                               [](const ControlPointer& one) { return !one->built_in || contains_own(one->children); });
}

std::u16string plain_caption(std::u16string_view caption) {
    return with_access_key_sign(caption, u'&', u"");
}

std::u16string office_label(std::u16string_view caption) {
    return with_access_key_sign(caption, u'&', u"~");
}

std::u16string caption_of_label(std::u16string_view label) {
    return with_access_key_sign(label, u'~', u"&");
}

}  // namespace qor::calc
