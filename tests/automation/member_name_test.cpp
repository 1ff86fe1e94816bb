#include "automation/member_name.hpp"

#include <doctest/doctest.h>

#include "automation/member_names.hpp"

namespace qor {

TEST_CASE("a name of the compiler's own is the name that a text gives") {
    static_assert(names::Activate.id() == 0);
    for (std::size_t place = 0; place < names::all.size(); ++place) {
        const MemberName& name = names::all[place];
        CHECK(name.id() == place);
        CHECK(MemberName(name.text()) == name);
        CHECK(MemberName::numbered(place)->text() == name.text());
    }
    CHECK(MemberName(u"wOrKbOoKs") == names::Workbooks);
    CHECK(MemberName(u"wOrKbOoKs").text() == u"Workbooks");
}

TEST_CASE("names differ by their letters alone, not by their case") {
    const MemberName first(u"Dividend"), second(u"DIVIDEND"), other(u"Dividends");
    CHECK(first == second);
    CHECK(second.text() == u"Dividend");
    CHECK_FALSE(first == other);
}

TEST_CASE("a name that nobody spelled is unknown, and asking leaves nothing behind") {
    CHECK_FALSE(MemberName::known(u"NobodySpellsThis"));
    CHECK_FALSE(MemberName::known(u"NobodySpellsThis"));
    const MemberName spelled(u"SomebodySpellsThis");
    CHECK(MemberName::known(u"somebodyspellsthis") == spelled);
}

}  // namespace qor
