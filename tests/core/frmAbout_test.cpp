#include "core/frmAbout.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/command_host.hpp"
#include "ui/button.hpp"
#include "ui/label.hpp"

using namespace qor;

TEST_CASE_FIXTURE(fakes::CommandHost, "the About box tells title, version and legal notice") {
    fakes::Lines seen;
    screen.while_modal = [&](Form& form) {
        seen.emplace_back(form.name());
        seen.emplace_back(form.caption());
        for (Control* control : form.controls()) {
            if (const auto* label = dynamic_cast<Label*>(control))
                seen.push_back(label->name() + u": " + label->text());
        }
        auto* ok = dynamic_cast<Button*>(form.controls().back());
        REQUIRE(ok);
        seen.push_back(ok->name() + u": " + ok->caption());
        ok->press();
        CHECK_FALSE(form.loaded());
        CHECK(form.caption().empty());
    };
    com.call(MemberName(u"QAbout"));
    REQUIRE(seen.size() == 6);
    CHECK(seen[0] == u"frmAbout");
    CHECK(seen[1] == u"QOR Plus (Excel Add-in)");
    CHECK(seen[2] == u"lblTitle: QOR Plus (Excel Add-in)");
    CHECK(seen[3] == u"lblVersion: Version: 2.6  Build (5)");
    CHECK(seen[4].starts_with(u"lblDisclaimer: Copyright (c) 2026 "));
    CHECK(seen[5] == u"cmdOK: OK");
}
