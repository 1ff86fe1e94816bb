#include "services/ctlDiag.hpp"

#include <doctest/doctest.h>

#include "services/ctlBrowse.hpp"
#include "tests/fakes/fake_host.hpp"
#include "tests/fakes/form_with.hpp"

using namespace qor;
using fakes::Lines;

namespace {

struct Templates : fakes::FakeHost {
    fakes::FormWith<ctlDiag> form{screen, u"frmBoxes", u"txtTemplate"};
    ctlDiag& txtTemplate = form.control;
};

}  // namespace

TEST_CASE_FIXTURE(Templates, "a template is picked as a file") {
    txtTemplate.box.set_text(u"old.xlt");
    txtTemplate.box.pick();
    CHECK(txtTemplate.box.text() == u"old.xlt");
    screen.file = u"/templates/new.xlt";
    int changes = 0;
    txtTemplate.Change = [&] { ++changes; };
    txtTemplate.box.pick();
    CHECK(txtTemplate.box.text() == u"/templates/new.xlt");
    CHECK(changes == 1);
    CHECK(screen.log == Lines{u"file Find Excel Template", u"file Find Excel Template"});
}

TEST_CASE_FIXTURE(Templates, "the buttons show their faces") {
    const fakes::FormWith<ctlBrowse> other(screen, u"frmBoxes", u"txtFolder");
    CHECK(other.control.box.face() == u"FOLDER");
    CHECK(txtTemplate.box.face() == u"GETFILE");
}
