#include <wx/dataview.h>

#include "tests/wx/fixture.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

class frmSeveral final : public Form {
  public:
    explicit frmSeveral(Screen& screen) : Form(u"frmSeveral", screen) {
        for (const char16_t* name : {u"Cover", u"Inputs", u"Loan", u"Sales"}) lstMain.add_row({name});
        lstMain.set_selected(1, true);
        cmdButton.on_click = [this](int) { unload(); };
    }
    std::u16string_view caption() const noexcept override { return u"Several rows"; }

    ListBox lstMain{*this, u"lstMain", {{u"Name"}}, ListBox::Selecting::several_rows};
    Buttons cmdButton{*this, u"cmdButton", {{1, u"Cancel"}}};
};

struct Several : OnDisplay {
    WxScreen screen{{}, wx::test_layouts()};
    frmSeveral form{screen};

    using Rows = std::set<std::size_t>;

    // What the window shows as selected.
    static Rows shown() {
        auto& list = window_of<wxDataViewCtrl>("lstMain");
        const auto* rows = dynamic_cast<wxDataViewVirtualListModel*>(list.GetModel());
        wxDataViewItemArray selection;
        list.GetSelections(selection);
        Rows result;
        for (const wxDataViewItem& item : selection) result.insert(rows->GetRow(item));
        return result;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Several, "several rows of a list are selected by the keyboard and by the form") {
    show(
        form, [&] { screen.close_all(); },
        [&](User& user) {
            Rows seen;
            user.on_screen([&] {
                seen = shown();
                window_of<wxWindow>("lstMain").SetFocus();
            });
            CHECK((seen == Rows{1}));
            user.key("Home");
            CHECK((form.lstMain.selection() == Rows{0}));
            user.key("shift+Down");
            user.key("shift+Down");
            CHECK((form.lstMain.selection() == Rows{0, 1, 2}));
            user.key("ctrl+a");
            CHECK((form.lstMain.selection() == Rows{0, 1, 2, 3}));
            user.on_screen([&] { form.lstMain.set_selected(2, false); });
            user.settle();
            user.on_screen([&] { seen = shown(); });
            CHECK((seen == Rows{0, 1, 3}));
        });
    CHECK((form.lstMain.selection() == Rows{0, 1, 3}));
}
