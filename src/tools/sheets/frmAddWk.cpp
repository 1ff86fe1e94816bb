#include "tools/sheets/frmAddWk.hpp"

#include "runtime/conversion.hpp"
#include "tools/sheets/AddWk.hpp"

namespace qor {

frmAddWk::frmAddWk() : TreeForm(u"frmAddWk") {
    connect(ctlTreeView, cmdButton);
    optOrder.choose(0);
}

void frmAddWk::work() {
    std::int32_t number = 0;  // a box without a number adds none
    attempt([&] { number = to_long(ctlSpinner1.box.text()); });
    with_progress([&] { AddWk(ctlTreeView, number, optOrder.chosen() == 0); });
}

}  // namespace qor
