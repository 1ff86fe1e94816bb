#include "services/ctlSpinner.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/form_with.hpp"

using namespace qor;

namespace {

struct Numbers {
    fakes::FakeScreen screen;
    fakes::FormWith<ctlSpinner> any{screen, u"frmBoxes", u"txtNumber"};
    fakes::FormWith<ctlSpinner> of_an_hour{screen, u"frmBoxes", u"txtMinutes", u"10", std::int16_t{1}, 60};
    ctlSpinner& txtNumber = any.control;
    ctlSpinner& txtMinutes = of_an_hour.control;
};

}  // namespace

TEST_CASE_FIXTURE(Numbers, "a number beyond a limit becomes the limit") {
    std::vector<std::u16string> changes;
    txtNumber.Change = [&] { changes.push_back(txtNumber.box.text()); };
    txtMinutes.Change = [&] { changes.push_back(txtMinutes.box.text()); };
    CHECK(txtNumber.box.text() == u"0");
    CHECK(txtMinutes.box.text() == u"10");
    txtNumber.box.set_text(u"200000");
    txtNumber.box.set_text(u"99999");
    txtNumber.box.set_text(u"-1");
    txtMinutes.box.set_text(u"61");
    txtMinutes.box.set_text(u"0");
    txtMinutes.box.set_text(u"60");
    CHECK(changes == std::vector<std::u16string>{u"99999", u"0", u"60", u"1", u"60"});
}

TEST_CASE_FIXTURE(Numbers, "a text that is no number stays as it is typed") {
    txtMinutes.box.set_text(u"");
    CHECK(txtMinutes.box.text().empty());
    txtMinutes.box.set_text(u"many");
    CHECK(txtMinutes.box.text() == u"many");
    txtMinutes.box.set_text(u"1e300");
    CHECK(txtMinutes.box.text() == u"60");
}

TEST_CASE_FIXTURE(Numbers, "only digits are typed into a number box, and its arrows keep to the limits") {
    for (const char16_t digit : std::u16string_view(u"0123456789")) CHECK(txtNumber.box.takes(digit));
    for (const char16_t other : std::u16string_view(u"a-+., \b")) CHECK_FALSE(txtNumber.box.takes(other));
    txtMinutes.box.set_text(u"59");
    txtMinutes.box.step(1);
    txtMinutes.box.step(1);
    CHECK(txtMinutes.box.text() == u"60");
    txtNumber.box.step(-1);
    CHECK(txtNumber.box.text() == u"0");
}
