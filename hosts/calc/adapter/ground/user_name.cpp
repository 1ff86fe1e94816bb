#include "hosts/calc/adapter/ground/user_name.hpp"

#include <pwd.h>
#include <unistd.h>

#include "hosts/calc/adapter/ground/configuration.hpp"
#include "platform/text.hpp"

namespace qor::calc {

std::u16string user_name(const Host& host) {
    const Configuration user(host.context(), u"/org.openoffice.UserProfile/Data");
    const std::u16string given = user.text("givenname");
    const std::u16string family = user.text("sn");
    if (!given.empty() && !family.empty()) return given + u" " + family;
    if (!given.empty() || !family.empty()) return given + family;
    const passwd* account = ::getpwuid(::geteuid());
    return from_utf8(account ? account->pw_name : "");
}

}  // namespace qor::calc
