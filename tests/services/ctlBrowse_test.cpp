#include "services/ctlBrowse.hpp"

#include <doctest/doctest.h>

#include "platform/text.hpp"
#include "tests/fakes/fake_host.hpp"
#include "tests/fakes/form_with.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using fakes::Lines;

namespace {

struct Browsing : fakes::FakeHost {
    test::TemporaryFolder folder;
    std::u16string path = from_utf8(folder.path.string());
    fakes::FormWith<ctlBrowse> form{screen, u"frmBoxes", u"txtFolder"};
    ctlBrowse& txtFolder = form.control;

    void leave_with(const std::u16string& text) {
        txtFolder.box.set_text(text);
        txtFolder.box.on_leave();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Browsing, "leaving a folder box looks for the folder") {
    CHECK_FALSE(txtFolder.FolderExists);
    leave_with(path);
    CHECK(txtFolder.FolderExists);
    leave_with(u"  ");
    CHECK(txtFolder.FolderExists);
    CHECK(screen.log.empty());
    leave_with(path + u"/nothing");
    CHECK_FALSE(txtFolder.FolderExists);
    CHECK(screen.log == Lines{u"message The folder displayed does not exists.  Please enter a valid folder."});
}

TEST_CASE_FIXTURE(Browsing, "a folder that is picked is there") {
    screen.folder = u"/picked";
    bool existed_at_change = false;
    txtFolder.Change = [&] { existed_at_change = txtFolder.FolderExists; };
    txtFolder.box.pick();
    CHECK(txtFolder.box.text() == u"/picked");
    CHECK(existed_at_change);
    CHECK(screen.log == Lines{u"folder Browse for folder"});
    screen.folder.reset();
    txtFolder.box.pick();
    CHECK(txtFolder.box.text() == u"/picked");
}
