#include <doctest/doctest.h>

#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/fake_settings.hpp"
#include "tests/runtime/raised.hpp"

using namespace qor;
using test::raised;

namespace {

const MemberName HundredsTensUnits(u"HundredsTensUnits"), NUMBERTOWORDS(u"NUMBERTOWORDS"), UseAnd(u"UseAnd");

struct AddIn {
    fakes::FakeScreen screen;
    fakes::FakeSettings settings;
    Object com = (set_environment({screen, settings}), make_object<CCom>());

    template <class... Args>
    std::u16string words(Args&&... arguments) const {
        const Variant result = com.call(HundredsTensUnits, std::forward<Args>(arguments)...);
        REQUIRE(result.get_if<std::u16string>());
        return *result.get_if<std::u16string>();
    }
};

}  // namespace

TEST_CASE_FIXTURE(AddIn, "groups are spelled once the object has its words") {
    com.call(NUMBERTOWORDS, u"abc");
    CHECK(words(21) == u"Twenty One ");
    CHECK(words(100, true) == u"One Hundred and ");
    CHECK(words(134, true) == u"One Hundred and Thirty Four ");
    CHECK(words(999) == u"Nine Hundred Ninety Nine ");
    CHECK(words(7, true) == u"and Seven ");
    CHECK(words(0).empty());
    CHECK(words(0, true) == u"and ");
    CHECK(words(-5).empty());
    CHECK(words(1000) == u"Ten Hundred ");
    CHECK(words(u"12", named(UseAnd, false)) == u"Twelve ");
}

TEST_CASE_FIXTURE(AddIn, "before the first number in words a group above 0 has no words") {
    CHECK(raised([&] { words(1); }) == 9);
    CHECK(raised([&] { words(21, true); }) == 9);
    CHECK(raised([&] { words(100); }) == 9);
    CHECK(words(0).empty());
    CHECK(words(0, true) == u"and ");
    CHECK(words(-1).empty());
    com.call(NUMBERTOWORDS, 5);
    CHECK(words(1) == u"One ");
    CHECK(raised([] { make_object<CCom>().call(HundredsTensUnits, 1); }) == 9);  // each object has its own
}

TEST_CASE_FIXTURE(AddIn, "a group beyond the table and one beyond 16 bits are refused") {
    com.call(NUMBERTOWORDS, 5);
    CHECK(words(2700) == u"Ninety Hundred ");
    CHECK(raised([&] { words(2800); }) == 9);
    CHECK(raised([&] { words(40000); }) == 6);
    CHECK(raised([&] { words(); }) == 449);
    CHECK(raised([&] { words(1, true, 3); }) == 450);
}

TEST_CASE_FIXTURE(AddIn, "the and goes back to the caller as the boolean that it is") {
    std::vector<Variant> arguments{0, u"-1"};
    com.invoke(HundredsTensUnits, Access::call, {arguments, {}});
    REQUIRE(arguments[1].get_if<bool>());
    CHECK(*arguments[1].get_if<bool>());
    CHECK(arguments[0].is(Variant::Kind::long_integer));
    arguments[1] = Missing{};
    com.invoke(HundredsTensUnits, Access::call, {arguments, {}});
    CHECK(arguments[1].is_missing());
}
