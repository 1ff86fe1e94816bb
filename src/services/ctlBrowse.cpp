#include "services/ctlBrowse.hpp"

#include "automation/error.hpp"
#include "ground/message.hpp"
#include "runtime/trim.hpp"
#include "services/CDiag.hpp"
#include "services/CFile.hpp"

namespace qor {

ctlBrowse::ctlBrowse(Form& form, std::u16string name) : box(form, std::move(name), u"FOLDER") {
    box.on_change = [this] { Change(); };
    box.on_leave = [this] { leave(); };
    box.on_pick = [this] { pick(); };
}

void ctlBrowse::leave() {
    if (trim(box.text()).empty()) return;
    FolderExists = CFile::FolderExists(box.text());
    if (FolderExists) return;
    show_message(u"The folder displayed does not exists.  Please enter a valid folder.", MessageIcon::information);
}

void ctlBrowse::pick() {
    attempt([&] {
        CDiag dialog;
        dialog.GetMehwnd = &box.form();
        const std::u16string folder = dialog.BrowseForFolder(u"Browse for folder");
        if (dialog.GetCancel) return;
        FolderExists = true;
        box.set_text(folder);
    });
}

}  // namespace qor
