#include "core/web_and_mail.hpp"

#include <doctest/doctest.h>

#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/memory_settings.hpp"
#include "ui/button.hpp"
#include "ui/label.hpp"

using namespace qor;

namespace {

class RecordingShell final : public Shell {
  public:
    std::vector<std::u16string> opened;
    bool fails = false;

    void open(std::u16string_view target) override {
        if (fails) throw Error(5, u"Shell", u"No shell.");
        opened.emplace_back(target);
    }
};

struct Web {
    fakes::FakeScreen screen;
    fakes::MemorySettings settings;
    RecordingShell shell;
    Object com = (set_environment({screen, settings, no_faces(), shell}), make_object<CCom>());

    template <class... Arguments>
    std::u16string source_of(const MemberName& member, Arguments... arguments) {
        try {
            com.call(member, arguments...);
        } catch (const Error& error) {
            return error.source();
        }
        return u"nothing was raised";
    }
};

const MemberName UTOpenWWW(u"UTOpenWWW"), UTSendMail(u"UTSendMail"), QAbout(u"QAbout");

std::u16string mail_to(std::u16string_view recipient) {
    return MailToURL(recipient, u"", u"", u"", u"");
}

}  // namespace

TEST_CASE("a mail to a recipient alone has no question mark") {
    CHECK(mail_to(u"joe") == u"mailto:joe");
    CHECK(MailToURL(u"joe", u"  ", u"", u" ", u"") == u"mailto:joe");
}

TEST_CASE("what else a mail holds follows a question mark, joined by ampersands, without field names") {
    CHECK(MailToURL(u"joe", u"", u"", u"abc", u"de") == u"mailto:joe?abc&de");
    CHECK(MailToURL(u"joe", u"a", u"b", u"c", u"d") == u"mailto:joe?a&b&c&d");
    CHECK(MailToURL(u"joe", u"", u"", u"subject=Hi there", u"") == u"mailto:joe?subject%3DHi%20there");
    CHECK(MailToURL(u"joe", u" a ", u"", u"", u"") == u"mailto:joe?%20a%20");
}

TEST_CASE("everything but the letters of English becomes its code in Windows-1252") {
    CHECK(mail_to(u"Az") == u"mailto:Az");
    CHECK(mail_to(u"joe1@example.org") == u"mailto:joe%31%40example%2Eorg");
    CHECK(mail_to(u"\t\r\n") == u"mailto:%09%0D%0A");
    CHECK(mail_to(u"@[`{") == u"mailto:%40%5B%60%7B");
    CHECK(mail_to(u"\u00E9\u00FF\u00A0") == u"mailto:%E9%FF%A0");
    CHECK(mail_to(u"\u20AC\u017E\u0178\u2122") == u"mailto:%80%9E%9F%99");
    CHECK(mail_to(u"\x81") == u"mailto:%81");
    CHECK(mail_to(u"\u0416\u4E2D") == u"mailto:%3F%3F");
    CHECK(mail_to(u"\U0001F600") == u"mailto:%3F%3F");
    CHECK(mail_to(std::u16string_view(u"\0", 1)) == u"mailto:%00");
}

TEST_CASE_FIXTURE(Web, "pages and mails go to the shell as they are told") {
    com.call(UTOpenWWW, u"https://example.org/a b");
    com.call(UTSendMail, u"joe");
    com.call(UTSendMail, u"joe", Missing{}, Missing{}, u"abc", u"de");
    com.call(UTSendMail, u"joe", named(MemberName(u"sBody"), u"de"));
    CHECK(shell.opened == std::vector<std::u16string>{u"https://example.org/a b", u"mailto:joe", u"mailto:joe?abc&de",
                                                      u"mailto:joe?de"});
    CHECK(attempt([&] { com.call(UTSendMail); }) == 449);
}

TEST_CASE_FIXTURE(Web, "an error of the shell leaves a trace of the procedures") {
    shell.fails = true;
    CHECK(source_of(UTOpenWWW, u"x") == u"UTOpenWWW\rOpenWWWURL\rShell");
    CHECK(source_of(UTSendMail, u"x") == u"UTSendMail\rSendMail\rShell");
}

TEST_CASE_FIXTURE(Web, "the About box tells title, version and legal notice") {
    std::vector<std::u16string> seen;
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
    com.call(QAbout);
    REQUIRE(seen.size() == 6);
    CHECK(seen[0] == u"frmAbout");
    CHECK(seen[1] == u"QOR Plus (Excel Add-in)");
    CHECK(seen[2] == u"lblTitle: QOR Plus (Excel Add-in)");
    CHECK(seen[3] == u"lblVersion: Version: 2.6  Build (5)");
    CHECK(seen[4].starts_with(u"lblDisclaimer: Copyright (c) 2026 "));
    CHECK(seen[5] == u"cmdOK: OK");
}
