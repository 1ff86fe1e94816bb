#include "tools/sheets/frmDelWk.hpp"

namespace qor {

frmDelWk::frmDelWk() : TreeForm(u"frmDelWk") {
    connect(ctlTreeView, cmdButton);
}

void frmDelWk::work() {
    with_progress([this] { ctlTreeView.DelEmpWor(); });
}

}  // namespace qor
