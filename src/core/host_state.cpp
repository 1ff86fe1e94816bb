#include "core/host_state.hpp"

#include "automation/variant.hpp"
#include "core/MMain.hpp"

namespace qor {

SwitchedOff::SwitchedOff(const MemberName& property) : property_(property) {
    gExcel.put(property_, false);
}

SwitchedOff::~SwitchedOff() {
    attempt([&] { gExcel.put(property_, true); });
}

}  // namespace qor
