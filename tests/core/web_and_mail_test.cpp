#include "core/web_and_mail.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/command_host.hpp"
#include "tests/support/raised.hpp"

using namespace qor;

namespace {

class RecordingShell final : public Shell {
  public:
    fakes::Lines opened;
    bool fails = false;

    void open(std::u16string_view target) override {
        if (fails) throw Error(5, u"Shell", u"No shell.");
        opened.emplace_back(target);
    }
};

struct Web : fakes::CommandHost {
    RecordingShell shell;
    fakes::InPlace with_shell{{screen, settings, no_faces(), shell}};
};

const MemberName UTOpenWWW(u"UTOpenWWW"), UTSendMail(u"UTSendMail");

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
    CHECK(shell.opened ==
          fakes::Lines{u"https://example.org/a b", u"mailto:joe", u"mailto:joe?abc&de", u"mailto:joe?de"});
    CHECK(attempt([&] { com.call(UTSendMail); }) == 449);
}

TEST_CASE_FIXTURE(Web, "an error of the shell leaves a trace of the procedures") {
    shell.fails = true;
    CHECK(test::error_from([&] { com.call(UTOpenWWW, u"x"); }).source() == u"UTOpenWWW\rOpenWWWURL\rShell");
    CHECK(test::error_from([&] { com.call(UTSendMail, u"x"); }).source() == u"UTSendMail\rSendMail\rShell");
}
