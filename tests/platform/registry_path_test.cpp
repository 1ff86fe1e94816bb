#include "platform/registry_path.hpp"

#include <doctest/doctest.h>

using namespace qor;

TEST_CASE("a section of the settings is a key below the product's version") {
    CHECK((registry_path(u"Ombrel", u"QOR Plus", u"2.6", u"Options") == u"Software\\Ombrel\\QOR Plus\\2.6\\Options"));
    CHECK((registry_path(u"Ombrel", u"QOR Plus", u"2.6", u"A\\B") == u"Software\\Ombrel\\QOR Plus\\2.6\\A\\B"));
    CHECK((registry_path(u"Ombrel", u"QOR Plus", u"2.6", u"") == u"Software\\Ombrel\\QOR Plus\\2.6"));
}
