#include "services/CDiag.hpp"

#include <doctest/doctest.h>

#include <filesystem>
#include <fstream>

#include "platform/text.hpp"
#include "tests/fakes/fake_host.hpp"
#include "tests/support/raised.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using test::error_from;

namespace {

class frmOwner final : public Form {
  public:
    explicit frmOwner(Screen& screen) : Form(u"frmOwner", screen) {}
    std::u16string_view caption() const noexcept override { return u""; }
};

struct Dialogs : fakes::FakeHost {
    CDiag dialog;
};

}  // namespace

TEST_CASE_FIXTURE(Dialogs, "a new dialog lists all files and opens in the current folder") {
    CHECK(dialog.Filter() == u"All Files (*.*)|*.*");
    CHECK(dialog.FilterIndex == 1);
    CHECK(dialog.MaxFileSize == 260);
    CHECK_FALSE(dialog.GetCancel);
    CHECK(dialog.InitDir == from_utf8(std::filesystem::current_path().string()));
    dialog.ShowOpen();
    CHECK(screen.offered.folder == dialog.InitDir);
    REQUIRE(screen.offered.kinds.size() == 1);
    CHECK(screen.offered.kinds[0].description == u"All Files (*.*)");
    CHECK(screen.offered.kinds[0].pattern == u"*.*");
}

TEST_CASE_FIXTURE(Dialogs, "a filter is written with bars and read with them, and ends in two more") {
    dialog.Filter(u"Books|*.xls|Texts|*.txt");
    CHECK(dialog.Filter() == u"Books|*.xls|Texts|*.txt||");
    dialog.Filter(dialog.Filter());
    CHECK(dialog.Filter() == u"Books|*.xls|Texts|*.txt||");
    dialog.Filter(u"Books|*.xls|");
    CHECK(dialog.Filter() == u"Books|*.xls||");
    dialog.Filter(u"");
    CHECK(dialog.Filter() == u"||");
}

TEST_CASE_FIXTURE(Dialogs, "the filter's pairs are offered without the blanks around them") {
    dialog.Filter(u"Excel Templates (*.xlt) | *.xlt|alone");
    dialog.ShowOpen();
    REQUIRE(screen.offered.kinds.size() == 1);
    CHECK(screen.offered.kinds[0].description == u"Excel Templates (*.xlt)");
    CHECK(screen.offered.kinds[0].pattern == u"*.xlt");
}

TEST_CASE_FIXTURE(Dialogs, "a file that is picked fills the properties") {
    frmOwner form(screen);
    dialog.GetMehwnd = &form;
    dialog.DialogTitle = u"Find";
    dialog.Filter(u"Books|*.xls|Texts|*.txt");
    dialog.FileName = u"old.xls";
    dialog.InitDir = u" /tmp ";
    screen.file = u" /tmp/my.books/plan.txt ";
    screen.kind = 1;
    CHECK(dialog.ShowOpen() == u"/tmp/my.books/plan.txt");
    CHECK_FALSE(dialog.GetCancel);
    CHECK(dialog.FileName == u"/tmp/my.books/plan.txt");
    CHECK(dialog.FileTitle == u"plan.txt");
    CHECK(dialog.FileExt == 19);
    CHECK(dialog.FilterIndex == 2);
    CHECK(dialog.InitDir == u"/tmp");
    CHECK(screen.asked_over == &form);
    CHECK(screen.offered.purpose == FileDialog::Purpose::open);
    CHECK(screen.offered.title == u"Find");
    CHECK(screen.offered.file_name == u"old.xls");
    CHECK(screen.offered.chosen_kind == 0);
    dialog.ShowOpen();
    CHECK(screen.offered.chosen_kind == 1);
}

TEST_CASE_FIXTURE(Dialogs, "a name without an extension gets the default one; a file to open that is there does not") {
    const test::TemporaryFolder folder;
    const std::u16string path = from_utf8((folder.path / "plan").string());
    dialog.DefaultExt = u"xls";
    screen.file = path;
    CHECK(dialog.ShowSave() == path + u".xls");
    CHECK(screen.offered.purpose == FileDialog::Purpose::save);
    CHECK(dialog.ShowOpen() == path + u".xls");
    test::put(folder.path / "plan", "text");
    CHECK(dialog.ShowOpen() == path);
    CHECK(dialog.FileExt == 0);
    CHECK(dialog.ShowSave() == path + u".xls");
    screen.file = path + u".txt";
    CHECK(dialog.ShowSave() == path + u".txt");
}

TEST_CASE_FIXTURE(Dialogs, "a cancelled dialog says so, and the next one that is not clears that") {
    dialog.FileName = u"old.xls";
    CHECK(dialog.ShowSave() == u"old.xls");
    CHECK(dialog.GetCancel);
    screen.file = u"new.xls";
    CHECK(dialog.ShowSave() == u"new.xls");
    CHECK_FALSE(dialog.GetCancel);
    screen.file.reset();
    dialog.ShowOpen();
    CHECK(dialog.GetCancel);
    CHECK(dialog.BrowseForFolder(u"Folder").empty());
    CHECK(dialog.GetCancel);
    screen.folder = u"/tmp";
    CHECK(dialog.BrowseForFolder(u"Folder") == u"/tmp");
    CHECK_FALSE(dialog.GetCancel);
    CHECK(dialog.GetColorWDiag() == 0);
    CHECK(dialog.GetCancel);
    screen.color = 0x0000FF;
    CHECK(dialog.GetColorWDiag() == 255);
    CHECK_FALSE(dialog.GetCancel);
}

TEST_CASE_FIXTURE(Dialogs, "an empty folder is a cancelled one") {
    screen.folder = u"";
    CHECK(dialog.BrowseForFolder(u"Folder").empty());
    CHECK(dialog.GetCancel);
}

TEST_CASE_FIXTURE(Dialogs, "what a dialog raises goes on with the member's name") {
    screen.picks_fail = true;
    CHECK(error_from([&] { dialog.ShowOpen(); }).source() == u"ShowOpen\rScreen");
    CHECK(error_from([&] { dialog.ShowSave(); }).source() == u"ShowSave\rScreen");
    CHECK(error_from([&] { dialog.BrowseForFolder(u""); }).source() == u"BrowseForFolder\rScreen");
    CHECK(error_from([&] { dialog.GetColorWDiag(); }).source() == u"GetColorWDiag\rScreen");
}
