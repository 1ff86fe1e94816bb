#include "tools/sheets/frmSpChk.hpp"

#include "tools/sheets/SpeCheAll.hpp"

namespace qor {

frmSpChk::frmSpChk() : TreeForm(u"frmSpChk") {
    connect(ctlTreeView, cmdButton);
}

void frmSpChk::work() {
    SpeCheAll(ctlTreeView, chkIgnoreHF.checked());
}

}  // namespace qor
