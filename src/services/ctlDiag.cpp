#include "services/ctlDiag.hpp"

#include "automation/error.hpp"
#include "services/CDiag.hpp"

namespace qor {

ctlDiag::ctlDiag(Form& form, std::u16string name) : box(form, std::move(name), u"GETFILE") {
    box.on_change = [this] { Change(); };
    box.on_pick = [this] { pick(); };
}

void ctlDiag::pick() {
    attempt([&] {
        CDiag dialog;
        dialog.GetMehwnd = &box.form();
        dialog.DialogTitle = u"Find Excel Template";
        dialog.Filter(u"Excel Templates (*.xlt) | *.xlt");
        dialog.ShowOpen();
        if (!dialog.GetCancel) box.set_text(dialog.FileName);
    });
}

}  // namespace qor
