#include "ground/CReg.hpp"

#include <doctest/doctest.h>

#include <string>

#include "ground/product.hpp"
#include "platform/ini_settings_store.hpp"
#include "platform/text.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;

namespace {

constexpr RootKey user = RootKey::current_user;

struct Fixture {
    test::TemporaryFolder folder;
    IniSettingsStore store{folder.path / "settings.ini"};
    CReg registry{store};

    std::u16string get(std::u16string_view section, std::u16string_view key) const {
        return registry.GetSetting(user, section, key, u"default");
    }
};

}  // namespace

TEST_CASE("the version of the settings is that of the build") {
    CHECK(to_utf8(product::version) ==
          std::to_string(product::major_version) + "." + std::to_string(product::minor_version));
}

TEST_CASE_FIXTURE(Fixture, "a fresh profile gives each reader its own default") {
    CHECK((registry.GetSetting(user, u"Options", u"chkT5ReportNewWorkbook", u"-1") == u"-1"));
    CHECK((registry.GetSetting(user, u"Options", u"chkT5ReportNewWorkbook", u"0") == u"0"));
    CHECK((registry.GetSetting(user, u"Options", u"txtT6InsSinCol", u"").empty()));
    CHECK(folder.names().empty());
}

TEST_CASE_FIXTURE(Fixture, "a saved value is given instead of the default, and at once to everyone") {
    CReg other(store);
    CHECK(registry.SaveSetting(user, u"Options", u"rdoT5ReportLocation0", u"True"));
    CHECK((get(u"Options", u"rdoT5ReportLocation0") == u"True"));
    CHECK((other.GetSetting(user, u"Options", u"rdoT5ReportLocation0", u"-1") == u"True"));
    CHECK((get(u"Options", u"rdoT5ReportLocation1") == u"default"));
    CHECK((get(u"ColRowIns", u"rdoT5ReportLocation0") == u"default"));
}

TEST_CASE_FIXTURE(Fixture, "a value that exists and is empty reads as empty") {
    CHECK(registry.SaveSetting(user, u"Options", u"txtT2DefaultSaveFolder", u""));
    CHECK(get(u"Options", u"txtT2DefaultSaveFolder").empty());
}

TEST_CASE_FIXTURE(Fixture, "the key * is the section's unnamed value") {
    CHECK((get(u"Options", u"*") == u"default"));
    CHECK(registry.SaveSetting(user, u"Options", u"*", u"unnamed"));
    CHECK(registry.SaveSetting(user, u"Options", u"named", u"other"));
    CHECK((get(u"Options", u"*") == u"unnamed"));
    CHECK((get(u"Options", u"") == u"unnamed"));
    CHECK((get(u"options", u"NAMED") == u"other"));
    CHECK(registry.DeleteSetting(user, u"Options", u"*"));
    CHECK((get(u"Options", u"*") == u"default"));
    CHECK((get(u"Options", u"named") == u"other"));
    CHECK_FALSE(registry.DeleteSetting(user, u"Options", u"*"));
}

TEST_CASE_FIXTURE(Fixture, "a section may be nested or be the version's own key") {
    CHECK(registry.SaveSetting(user, u"Tools\\CellColor", u"BDates", u"8454143"));
    CHECK(registry.SaveSetting(user, u"", u"own", u"1"));
    CHECK((get(u"Tools\\CellColor", u"BDates") == u"8454143"));
    CHECK((get(u"", u"own") == u"1"));
    CHECK((get(u"Tools", u"BDates") == u"default"));
}

TEST_CASE_FIXTURE(Fixture, "deleting takes one value, or with an empty key the section") {
    CHECK_FALSE(registry.DeleteSetting(user, u"Options", u""));
    CHECK(registry.SaveSetting(user, u"Options", u"a", u"1"));
    CHECK(registry.SaveSetting(user, u"Options", u"b", u"2"));
    CHECK(registry.SaveSetting(user, u"Options\\Nested", u"c", u"3"));
    CHECK(registry.DeleteSetting(user, u"Options", u"a"));
    CHECK_FALSE(registry.DeleteSetting(user, u"Options", u"a"));
    CHECK_FALSE(registry.DeleteSetting(user, u"Options", u""));
    CHECK((get(u"Options", u"b") == u"2"));
    CHECK(registry.DeleteSetting(user, u"Options\\Nested", u""));
    CHECK(registry.DeleteSetting(user, u"Options", u""));
    CHECK((get(u"Options", u"b") == u"default"));
}

TEST_CASE_FIXTURE(Fixture, "only the current user has settings, but a section is always deleted from there") {
    CHECK(registry.SaveSetting(user, u"Options", u"a", u"1"));
    CHECK((registry.GetSetting(RootKey::local_machine, u"Options", u"a", u"default") == u"default"));
    CHECK_FALSE(registry.SaveSetting(RootKey::local_machine, u"Options", u"a", u"2"));
    CHECK_FALSE(registry.DeleteSetting(RootKey::local_machine, u"Options", u"a"));
    CHECK((get(u"Options", u"a") == u"1"));
    CHECK(registry.DeleteSetting(RootKey::local_machine, u"Options", u""));
    CHECK((get(u"Options", u"a") == u"default"));
}

TEST_CASE("a store that refuses gives the default and false") {
    const test::TemporaryFolder folder;
    std::filesystem::create_directory(folder.path / "settings.ini");
    IniSettingsStore store(folder.path / "settings.ini");
    CReg registry(store);
    CHECK_FALSE(registry.SaveSetting(user, u"Options", u"a", u"1"));
    CHECK((registry.GetSetting(user, u"Options", u"a", u"default") == u"default"));
    CHECK_FALSE(registry.DeleteSetting(user, u"Options", u"a"));
    CHECK_FALSE(registry.DeleteSetting(user, u"Options", u""));
}

TEST_CASE_FIXTURE(Fixture, "company and title are trimmed and never empty, and make the key's path") {
    CHECK((registry.Company() == u"Ombrel"));
    CHECK((registry.Title() == u"QOR Plus"));
    CHECK((registry.SubKey(u"Options") == u"Software\\Ombrel\\QOR Plus\\2.6\\Options"));
    CHECK((registry.SubKey(u"") == u"Software\\Ombrel\\QOR Plus\\2.6"));
    registry.Company(u"");
    registry.Title(u"   ");
    CHECK((registry.SubKey(u"A\\B") == u"Software\\Ombrel\\QOR Plus\\2.6\\A\\B"));
    registry.Company(u"  Other Makers ");
    registry.Title(u" Title");
    CHECK((registry.Company() == u"Other Makers"));
    CHECK((registry.Title() == u"Title"));
    CHECK((registry.SubKey(u"Options") == u"Software\\Other Makers\\Title\\2.6\\Options"));
}
