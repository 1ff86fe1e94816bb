// Writes a picture of every form into the folder that is its argument, as FORM.png.
#define DOCTEST_CONFIG_IMPLEMENT  // the fakes check what they are asked for
#include <doctest/doctest.h>
#include <wx/dialog.h>

#include <chrono>
#include <filesystem>
#include <iostream>
#include <thread>

#include "core/frmAbout.hpp"
#include "core/frmOptions.hpp"
#include "reports/report_forms.hpp"
#include "screens/wx/text.hpp"
#include "screens/wx/wx_screen.hpp"
#include "services/frmComplete.hpp"
#include "tests/fakes/tree_hand.hpp"
#include "tests/reports/report_host.hpp"
#include "tests/window/display.hpp"
#include "tests/window/hand.hpp"
#include "tests/wx/every_kind.hpp"
#include "tests/wx/user.hpp"
#include "tools/sheets/frmAddWk.hpp"
#include "tools/sheets/frmDelWk.hpp"
#include "tools/sheets/frmNav.hpp"
#include "tools/sheets/frmSpChk.hpp"
#include "tools/sheets/frmSrtWk.hpp"

namespace qor::wx {
const Layouts& test_layouts();
}

namespace {

using namespace qor;
using namespace qor::tests;

class Album {
  public:
    explicit Album(std::filesystem::path folder) : folder_(std::move(folder)) {
        wx::Layouts layouts = wx::product_layouts();
        layouts.insert(wx::test_layouts().begin(), wx::test_layouts().end());
        screen_.emplace(NativeWindow(), std::move(layouts));
        in_place_.emplace(Environment{*screen_, host_.settings});
        host_.add_sheet(u"Inputs", 1.0, u"1");
        host_.add_sheet(u"Loan", 1.0, u"1");
        host_.add_sheet(u"Ratios", 1.0, u"1");
        host_.start();
    }

    WxScreen& screen() { return *screen_; }

    void take(
        Form& form, const std::function<void(User&)>& prepare = [](User&) {}) {
        show(
            form, [this] { screen_->close_all(); },
            [&](User& user) {
                prepare(user);
                take_now(form, user);
            });
    }

    void take_now(const Form& form, User& user, const std::string& part = {}) const {
        hand::move(0, 0);
        std::this_thread::sleep_for(std::chrono::milliseconds(500));  // buttons fade in
        user.on_screen([&] { keep(form, part); });
    }

    // As it is to be seen now.
    void keep(const Form& form, const std::string& part = {}) const {
        for (const wxWindow* top : wxTopLevelWindows) {
            const auto* dialog = dynamic_cast<const wxDialog*>(top);
            if (!dialog || !dialog->IsShown() || dialog->GetTitle() != wx::to_wx(form.caption())) continue;
            const wxRect area = dialog->GetScreenRect();
            hand::take_picture(area.x, area.y, area.width, area.height,
                               folder_ / (to_utf8(form.name()) + part + ".png"));
        }
    }

  private:
    std::filesystem::path folder_;
    fakes::ReportHost host_;
    std::optional<WxScreen> screen_;
    std::optional<fakes::InPlace> in_place_;
};

// A dialog with the tree, one worksheet checked.
template <class TreeDialog>
void take_tree(Album& album, std::u16string_view title) {
    TreeDialog form;
    form.AppTitle = u"QOR Plus: " + std::u16string(title);
    album.take(form, [&](User& user) {
        user.on_screen([&] {
            TreeView& tree = form.ctlTreeView.treQOR;
            tree.find(u"model.xls")->set_expanded(true);
            fakes::click(tree, fakes::box_of(tree, u"model.xls*Loan"));
        });
    });
}

void take_complete(Album& album) {
    frmComplete form;
    form.show(nullptr);
    form.Feedback(u"Working on worksheet Ratios");
    for (int done = 1; done <= 42; ++done) {
        form.Percent(done, 100);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    album.keep(form);
    form.unload();
}

void take_about(Album& album) {
    frmAbout form;
    form.AppTitle = u"QOR Plus";
    album.take(form);
}

// One picture a tab.
void take_options(Album& album) {
    frmOptions form;
    form.AppTitle = u"QOR Plus: Options";
    show(
        form, [&] { album.screen().close_all(); },
        [&](User& user) {
            for (std::size_t tab = 0; tab < form.tabOptions.captions().size(); ++tab) {
                user.on_screen([&] { form.tabOptions.turn_to(static_cast<int>(tab)); });
                album.take_now(form, user, "-" + std::to_string(tab));
            }
        });
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "form_pictures FOLDER\n";
        return 2;
    }
    doctest::Context fakes(argc, argv);
    fakes.setAsDefaultForAssertsOutOfTestCases();
    try {
        use_virtual_display();
        Album album{argv[1]};
        take_tree<frmCellInfo>(album, u"Cell Information");
        take_tree<frmDtRev>(album, u"Date Review");
        take_tree<frmWBSum>(album, u"Workbook Summary");
        take_tree<frmWKSum>(album, u"Worksheet Summary");
        take_tree<frmAddWk>(album, u"Add Worksheets");
        take_tree<frmDelWk>(album, u"Delete Empty Worksheets");
        take_tree<frmSrtWk>(album, u"Sort Worksheets");
        take_tree<frmSpChk>(album, u"Spell Check");
        take_tree<frmNav>(album, u"Navigator");
        take_complete(album);
        take_about(album);
        take_options(album);
        frmEveryKind every_kind(album.screen());
        album.take(every_kind);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
