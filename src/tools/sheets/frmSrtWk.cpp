#include "tools/sheets/frmSrtWk.hpp"

namespace qor {

frmSrtWk::frmSrtWk() : TreeForm(u"frmSrtWk") {
    connect(ctlTreeView, cmdButton);
    optOrder.choose(0);
}

void frmSrtWk::work() {
    with_progress([this] { ctlTreeView.SorWor(optOrder.chosen() == 0); });
}

}  // namespace qor
