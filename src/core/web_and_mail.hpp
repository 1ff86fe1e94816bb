#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qor {

// What is raised in these goes on with the procedure's name in the trace.

void OpenWWWURL(const std::u16string& sURL);
void SendMail(const std::u16string& sRecipient, const std::optional<std::u16string>& sCC,
              const std::optional<std::u16string>& sBCC, const std::optional<std::u16string>& sSubject,
              const std::optional<std::u16string>& sBody);

// "mailto:" and the recipient, and behind a question mark what else is not blank, joined by ampersands. Each text is
// encoded as a whole, and no field name is added to it: one that a caller wants stands in its text.
std::u16string MailToURL(std::u16string_view sRecipient, std::u16string_view sCC, std::u16string_view sBCC,
                         std::u16string_view sSubject, std::u16string_view sBody);

}  // namespace qor
