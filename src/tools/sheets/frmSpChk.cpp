#include "tools/sheets/frmSpChk.hpp"

namespace qor {

frmSpChk::frmSpChk() : TreeForm(u"frmSpChk") {
    connect(ctlTreeView, cmdButton);
}

void frmSpChk::work() {
    ctlTreeView.SpeCheAll(chkIgnoreHF.checked());
}

}  // namespace qor
