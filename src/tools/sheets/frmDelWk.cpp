#include "tools/sheets/frmDelWk.hpp"

#include "tools/sheets/DelEmpWor.hpp"

namespace qor {

frmDelWk::frmDelWk() : TreeForm(u"frmDelWk") {
    connect(ctlTreeView, cmdButton);
}

void frmDelWk::work() {
    with_progress([this] { DelEmpWor(ctlTreeView); });
}

}  // namespace qor
