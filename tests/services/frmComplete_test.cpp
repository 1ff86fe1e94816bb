#include "services/frmComplete.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/fake_host.hpp"

using namespace qor;

namespace {

struct Progress : fakes::FakeHost {
    frmComplete form;

    int percent_at(std::int32_t part, std::int32_t total) {
        form.Percent(part, total);
        return form.SSPanel1.flood_percent();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Progress, "the progress window asks to wait, from its start and with what is going on") {
    CHECK(form.lblFeedback.text() == u"Please wait...");
    form.Feedback(u"Deleting rows");
    CHECK(form.lblFeedback.text() == u"Please Wait... Deleting rows");
    form.Feedback(u"");
    CHECK(form.lblFeedback.text() == u"Please Wait... ");
}

TEST_CASE_FIXTURE(Progress, "the panel is flooded by the rounded part, half to even") {
    CHECK(percent_at(0, 3) == 0);
    CHECK(percent_at(1, 3) == 33);
    CHECK(percent_at(2, 3) == 67);
    CHECK(percent_at(29, 100) == 29);  // 0.29 * 100 is a little less than 29
    CHECK(percent_at(1, 8) == 12);     // 0.125 goes to the even 0.12
    CHECK(percent_at(3, 8) == 38);     // 0.375 goes to the even 0.38
    CHECK(percent_at(1, 1) == 100);
}

TEST_CASE_FIXTURE(Progress, "more than the whole, and a job of nothing, leave the panel as it was") {
    CHECK(percent_at(1, 2) == 50);
    CHECK(percent_at(5, 3) == 50);
    CHECK(percent_at(101, 100) == 50);
    CHECK(percent_at(1, 0) == 50);
    CHECK(percent_at(1004, 1000) == 100);  // 1.004 rounds to 1
    CHECK(percent_at(2147483647, 1) == 100);
}

TEST_CASE_FIXTURE(Progress, "every step has the window painted") {
    form.Percent(1, 2);
    form.Percent(5, 3);
    CHECK(screen.log == std::vector<std::u16string>{u"progress frmComplete", u"progress frmComplete"});
}
