#include "tools/sheets/frmNav.hpp"

namespace qor {

frmNav::frmNav() : ToolForm(u"frmNav") {
    ctlTreeView.RequestClose = [this](bool close) {
        if (close) unload();
    };
    cmdButton.on_click = [this](int index) {
        if (index == 4) {
            show_help();
        } else {
            unload();
        }
    };
}

}  // namespace qor
