#include <doctest/doctest.h>

#include "ground/MMain.hpp"
#include "platform/text.hpp"
#include "services/ctlBrowse.hpp"
#include "services/ctlDiag.hpp"
#include "services/ctlSpinner.hpp"
#include "services/list_items.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/fake_settings.hpp"
#include "tests/platform/temporary_folder.hpp"

using namespace qor;

namespace {

using Log = std::vector<std::u16string>;

class frmBoxes final : public Form {
  public:
    explicit frmBoxes(Screen& screen) : Form(u"frmBoxes", screen) {}
    std::u16string_view caption() const noexcept override { return u"Boxes"; }

    ctlBrowse txtFolder{*this, u"txtFolder"};
    ctlDiag txtTemplate{*this, u"txtTemplate"};
    ctlSpinner txtNumber{*this, u"txtNumber"};
    ctlSpinner txtMinutes{*this, u"txtMinutes", u"10", 1, 60};
    ListBox lstLeft{*this, u"lstLeft", {{u"Name"}, {u"Range"}}, ListBox::Selecting::several_rows};
    ListBox lstRight{*this, u"lstRight", {{u"Name"}, {u"Range"}}, ListBox::Selecting::several_rows};
};

struct Boxes {
    fakes::FakeScreen screen;
    fakes::FakeSettings settings;
    frmBoxes form{screen};
    test::TemporaryFolder folder;
    std::u16string path = from_utf8(folder.path.string());

    Boxes() { set_environment({screen, settings}); }

    void leave_with(const std::u16string& text) {
        form.txtFolder.box.set_text(text);
        form.txtFolder.box.on_leave();
    }
};

Log names_in(const ListBox& list) {
    Log names;
    for (std::size_t row = 0; row < list.count(); ++row) names.push_back(list.text(row, 0) + list.text(row, 1));
    return names;
}

}  // namespace

TEST_CASE_FIXTURE(Boxes, "leaving a folder box looks for the folder") {
    CHECK_FALSE(form.txtFolder.FolderExists);
    leave_with(path);
    CHECK(form.txtFolder.FolderExists);
    leave_with(u"  ");
    CHECK(form.txtFolder.FolderExists);
    CHECK(screen.log.empty());
    leave_with(path + u"/nothing");
    CHECK_FALSE(form.txtFolder.FolderExists);
    CHECK(screen.log == Log{u"message The folder displayed does not exists.  Please enter a valid folder."});
}

TEST_CASE_FIXTURE(Boxes, "a folder that is picked is there") {
    screen.folder = u"/picked";
    bool existed_at_change = false;
    form.txtFolder.Change = [&] { existed_at_change = form.txtFolder.FolderExists; };
    form.txtFolder.box.pick();
    CHECK(form.txtFolder.box.text() == u"/picked");
    CHECK(existed_at_change);
    CHECK(screen.log == Log{u"folder Browse for folder"});
    screen.folder.reset();
    form.txtFolder.box.pick();
    CHECK(form.txtFolder.box.text() == u"/picked");
}

TEST_CASE_FIXTURE(Boxes, "a template is picked as a file") {
    form.txtTemplate.box.set_text(u"old.xlt");
    form.txtTemplate.box.pick();
    CHECK(form.txtTemplate.box.text() == u"old.xlt");
    screen.file = u"/templates/new.xlt";
    int changes = 0;
    form.txtTemplate.Change = [&] { ++changes; };
    form.txtTemplate.box.pick();
    CHECK(form.txtTemplate.box.text() == u"/templates/new.xlt");
    CHECK(changes == 1);
    CHECK(screen.log == Log{u"file Find Excel Template", u"file Find Excel Template"});
}

TEST_CASE_FIXTURE(Boxes, "the buttons show their faces") {
    CHECK(form.txtFolder.box.face() == u"FOLDER");
    CHECK(form.txtTemplate.box.face() == u"GETFILE");
}

TEST_CASE_FIXTURE(Boxes, "a number beyond a limit becomes the limit") {
    Log changes;
    form.txtNumber.Change = [&] { changes.push_back(form.txtNumber.box.text()); };
    form.txtMinutes.Change = [&] { changes.push_back(form.txtMinutes.box.text()); };
    CHECK(form.txtNumber.box.text() == u"0");
    CHECK(form.txtMinutes.box.text() == u"10");
    form.txtNumber.box.set_text(u"200000");
    form.txtNumber.box.set_text(u"99999");
    form.txtNumber.box.set_text(u"-1");
    form.txtMinutes.box.set_text(u"61");
    form.txtMinutes.box.set_text(u"0");
    form.txtMinutes.box.set_text(u"60");
    CHECK(changes == Log{u"99999", u"0", u"60", u"1", u"60"});
}

TEST_CASE_FIXTURE(Boxes, "a text that is no number stays as it is typed") {
    form.txtMinutes.box.set_text(u"");
    CHECK(form.txtMinutes.box.text().empty());
    form.txtMinutes.box.set_text(u"many");
    CHECK(form.txtMinutes.box.text() == u"many");
    form.txtMinutes.box.set_text(u"1e300");
    CHECK(form.txtMinutes.box.text() == u"60");
}

TEST_CASE_FIXTURE(Boxes, "only digits are typed into a number box, and its arrows keep to the limits") {
    for (const char16_t digit : std::u16string_view(u"0123456789")) CHECK(form.txtNumber.box.takes(digit));
    for (const char16_t other : std::u16string_view(u"a-+., \b")) CHECK_FALSE(form.txtNumber.box.takes(other));
    form.txtMinutes.box.set_text(u"59");
    form.txtMinutes.box.step(1);
    form.txtMinutes.box.step(1);
    CHECK(form.txtMinutes.box.text() == u"60");
    form.txtNumber.box.step(-1);
    CHECK(form.txtNumber.box.text() == u"0");
}

TEST_CASE_FIXTURE(Boxes, "selected entries move to the other list from the last to the first") {
    for (const auto* name : {u"a", u"b", u"c", u"d"}) form.lstLeft.add_row({name, u"1"});
    form.lstLeft.set_selected(0, true);
    form.lstLeft.set_selected(2, true);
    MoveSelectedItems(form.lstLeft, form.lstRight, MoveDirection::to_second);
    CHECK(names_in(form.lstLeft) == Log{u"b1", u"d1"});
    CHECK(names_in(form.lstRight) == Log{u"c1", u"a1"});
    CHECK(form.lstLeft.selection().empty());
    CHECK(form.lstRight.selection().empty());
    SelectAllItems(form.lstRight);
    CHECK(form.lstRight.selection().size() == 2);
    MoveSelectedItems(form.lstLeft, form.lstRight, MoveDirection::to_first);
    CHECK(names_in(form.lstLeft) == Log{u"b1", u"d1", u"a1", u"c1"});
    CHECK(form.lstRight.count() == 0);
}
