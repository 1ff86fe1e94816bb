#include "core/web_and_mail.hpp"

#include "automation/error.hpp"
#include "ground/MMain.hpp"
#include "platform/text.hpp"
#include "runtime/trim.hpp"

namespace qor {
namespace {

// The codes 0x80 to 0x9F of Windows-1252; those that it leaves free stand for themselves.
constexpr std::u16string_view ansi_specials =
    u"\u20AC\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\x8D\u017D\x8F"
    u"\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\x9D\u017E\u0178";
static_assert(ansi_specials.size() == 32);

// A question mark's for a character that is not in the code page.
unsigned ansi_code(char16_t unit) {
    if (const std::size_t place = ansi_specials.find(unit); place != ansi_specials.npos)
        return static_cast<unsigned>(0x80 + place);
    return unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF) ? unit : u'?';
}

// Letters of English stay; everything else, digits too, becomes its code.
std::u16string url_encoded(std::u16string_view text) {
    constexpr std::u16string_view digits = u"0123456789ABCDEF";
    std::u16string encoded;
    for (const char16_t unit : text) {
        const unsigned upper = ansi_code(to_upper({&unit, 1}).front());
        if (upper >= u'A' && upper <= u'Z') {
            encoded += unit;
        } else {
            encoded += {u'%', digits[ansi_code(unit) / 16], digits[ansi_code(unit) % 16]};
        }
    }
    return encoded;
}

}  // namespace

void OpenWWWURL(const std::u16string& sURL) {
    with_trace(u"OpenWWWURL", [&] { environment().shell.open(sURL); });
}

void SendMail(const std::u16string& sRecipient, const std::optional<std::u16string>& sCC,
              const std::optional<std::u16string>& sBCC, const std::optional<std::u16string>& sSubject,
              const std::optional<std::u16string>& sBody) {
    with_trace(u"SendMail", [&] {
        environment().shell.open(with_trace(u"MailToURL", [&] {
            return MailToURL(sRecipient, sCC.value_or(u""), sBCC.value_or(u""), sSubject.value_or(u""),
                             sBody.value_or(u""));
        }));
    });
}

std::u16string MailToURL(std::u16string_view sRecipient, std::u16string_view sCC, std::u16string_view sBCC,
                         std::u16string_view sSubject, std::u16string_view sBody) {
    std::u16string url = u"mailto:" + url_encoded(sRecipient);
    char16_t joint = u'?';
    for (const std::u16string_view text : {sCC, sBCC, sSubject, sBody}) {
        if (trim(text).empty()) continue;
        url += joint + url_encoded(text);
        joint = u'&';
    }
    return url;
}

}  // namespace qor
