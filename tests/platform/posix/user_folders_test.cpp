#include "platform/user_folders.hpp"

#include <doctest/doctest.h>
#include <stdlib.h>

#include <optional>
#include <string>

using namespace qor;

namespace {

constexpr ProductName product{u"Ombrel", u"QOR Plus", u"2.6"};

// A variable of the environment for as long as the object lives; without a value it is not there.
class Variable {
  public:
    Variable(const char* name, const char* value) : name_(name) {
        if (const char* before = ::getenv(name)) before_ = before;
        set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { set(before_ ? before_->c_str() : nullptr); }

  private:
    void set(const char* value) { value ? ::setenv(name_, value, 1) : ::unsetenv(name_); }

    const char* name_;
    std::optional<std::string> before_;
};

}  // namespace

TEST_CASE("settings lie in the user's configuration folder, data in the data folder") {
    const Variable home("HOME", "/home/me");
    for (const char* unset : {static_cast<const char*>(nullptr), "", "relative/folder"}) {
        const Variable configuration("XDG_CONFIG_HOME", unset);
        const Variable data("XDG_DATA_HOME", unset);
        CHECK(settings_folder(product) == "/home/me/.config/Ombrel/QOR Plus/2.6");
        CHECK(data_folder(product) == "/home/me/.local/share/Ombrel/QOR Plus/2.6");
    }
    const Variable configuration("XDG_CONFIG_HOME", "/etc/mine");
    const Variable data("XDG_DATA_HOME", "/var/mine");
    CHECK(settings_folder(product) == "/etc/mine/Ombrel/QOR Plus/2.6");
    CHECK(data_folder(product) == "/var/mine/Ombrel/QOR Plus/2.6");
}
