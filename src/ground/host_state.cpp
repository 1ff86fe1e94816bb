#include "ground/host_state.hpp"

#include "automation/variant.hpp"
#include "ground/MMain.hpp"

namespace qor {

SwitchedOff::SwitchedOff(const MemberName& property) : property_(property) {
    gExcel.put(property_, false);
}

SwitchedOff::~SwitchedOff() {
    const auto switch_on = [&] { gExcel.put(property_, true); };
    // A host that stays switched off is of no use, so one failure is not believed.
    if (attempt(switch_on) != 0) attempt(switch_on);
}

}  // namespace qor
