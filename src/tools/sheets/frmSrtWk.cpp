#include "tools/sheets/frmSrtWk.hpp"

#include "tools/sheets/SorWor.hpp"

namespace qor {

frmSrtWk::frmSrtWk() : TreeForm(u"frmSrtWk") {
    connect(ctlTreeView, cmdButton);
    optOrder.choose(0);
}

void frmSrtWk::work() {
    with_progress([this] { SorWor(ctlTreeView, optOrder.chosen() == 0); });
}

}  // namespace qor
