#include "tests/tree/tree_host.hpp"
#include "tools/sheets/frmAddWk.hpp"
#include "tools/sheets/frmDelWk.hpp"
#include "tools/sheets/frmNav.hpp"
#include "tools/sheets/frmSpChk.hpp"
#include "tools/sheets/frmSrtWk.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

struct Forms : TwoBooks {
    // Loaded, with all branches open.
    template <class Dialog>
    static void load(Dialog& dialog) {
        dialog.HelpFile = u"qor.hlp";
        dialog.HelpFileId = 170000;
        dialog.load();
        fakes::open_branches(dialog.ctlTreeView.treQOR);
    }
    template <class Dialog>
    static void check(Dialog& dialog, std::u16string_view key) {
        TreeView& view = dialog.ctlTreeView.treQOR;
        fakes::click(view, fakes::box_of(view, key));
    }
    template <class Dialog>
    static void double_click(Dialog& dialog, std::u16string_view key) {
        TreeView& view = dialog.ctlTreeView.treQOR;
        view.move_pointer(fakes::text_of(view, key));
        view.double_click();
    }

    // What OK of a batch shows with the two windows of plan.xls checked.
    template <class Dialog>
    Lines log_of_ok() {
        Dialog dialog;
        load(dialog);
        check(dialog, u"plan.xls:1");
        check(dialog, u"plan.xls:2");
        if constexpr (std::is_same_v<Dialog, frmAddWk>) dialog.ctlSpinner1.box.set_text(u"3");
        screen.log.clear();
        dialog.cmdButton(0).press();
        return screen.log;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Forms, "OK waits until something is checked, and Cancel closes") {
    const auto try_form = [&]<class Dialog>(Dialog dialog) {
        load(*dialog);
        CHECK_FALSE(dialog->cmdButton(0).enabled());
        check(*dialog, u"Book2*Notes");
        CHECK(dialog->cmdButton(0).enabled());
        check(*dialog, u"Book2*Notes");
        CHECK_FALSE(dialog->cmdButton(0).enabled());
        dialog->cmdButton(1).press();
        CHECK_FALSE(dialog->loaded());
    };
    try_form(std::make_unique<frmAddWk>());
    try_form(std::make_unique<frmDelWk>());
    try_form(std::make_unique<frmSrtWk>());
    try_form(std::make_unique<frmSpChk>());
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(Forms, "a double click on a worksheet closes the dialog, and Help shows the tool's help") {
    const auto try_form = [&]<class Dialog>(Dialog dialog) {
        load(*dialog);
        dialog->cmdButton(4).press();
        CHECK(dialog->loaded());
        double_click(*dialog, u"Book2*Notes");
        CHECK_FALSE(dialog->loaded());
    };
    try_form(std::make_unique<frmAddWk>());
    try_form(std::make_unique<frmSpChk>());
    try_form(std::make_unique<frmNav>());
    CHECK(done == Lines{u"help qor.hlp 170000", u"Book2 activate", u"Notes activate", u"help qor.hlp 170000",
                        u"Book2 activate", u"Notes activate", u"help qor.hlp 170000", u"Book2 activate",
                        u"Notes activate"});
}

TEST_CASE_FIXTURE(Forms, "OK works under a progress window and closes; progress counts windows, or worksheets") {
    const Lines two{u"modeless frmComplete over frmAddWk", u"progress frmComplete", u"progress frmComplete",
                    u"unload frmComplete", u"unload frmAddWk"};
    CHECK(log_of_ok<frmAddWk>() == two);
    CHECK(log_of_ok<frmSrtWk>() == Lines{u"modeless frmComplete over frmSrtWk", u"progress frmComplete",
                                         u"progress frmComplete", u"unload frmComplete", u"unload frmSrtWk"});
    const Lines six = log_of_ok<frmDelWk>();
    CHECK(six.size() == 3 + 6);
    CHECK(six.back() == u"unload frmDelWk");
    CHECK(log_of_ok<frmSpChk>() == Lines{u"unload frmSpChk"});
}

TEST_CASE_FIXTURE(Forms, "spelling is checked once for each window, of whole worksheets or of their cells alone") {
    const auto spell = [&](bool cells_only) {
        done.clear();
        frmSpChk dialog;
        load(dialog);
        for (const char16_t* key : {u"Book2*Draft", u"plan.xls:1*Loan", u"plan.xls:2*Loan"}) check(dialog, key);
        if (cells_only) dialog.chkIgnoreHF.set_checked(true);
        dialog.cmdButton(0).press();
        return done;
    };
    CHECK(spell(false) == Lines{u"Loan spelling", u"Loan spelling", u"Draft spelling"});
    CHECK(spell(true) == Lines{u"Loan cells spelling", u"Loan cells spelling", u"Draft cells spelling"});
    int asked = 0;
    host_log.refuses = [&](std::u16string_view, std::u16string_view member, Access) {
        return member == u"CheckSpelling" && ++asked == 1;
    };
    CHECK(spell(false) == Lines{u"Loan spelling", u"Draft spelling"});
}

TEST_CASE_FIXTURE(Forms, "the Navigator's buttons need nothing checked, and OK does nothing more than close") {
    for (const int button : {0, 1}) {
        frmNav dialog;
        load(dialog);
        CHECK(dialog.cmdButton(0).enabled());
        check(dialog, u"ROOT");
        check(dialog, u"ROOT");
        CHECK(dialog.cmdButton(0).enabled());
        dialog.cmdButton(button).press();
        CHECK_FALSE(dialog.loaded());
    }
    CHECK(done.empty());
}
