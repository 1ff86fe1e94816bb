#pragma once

#include <memory>

#include "automation/object.hpp"
#include "hosts/calc/adapter/ground/host_user.hpp"
#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// Excel's Application, answered from the office of this process. It and all that comes from it may be used on the
// office's main thread only. The companion's folder is where the data files lie.
Object make_application(const Context& context, std::shared_ptr<HostUser> user, std::u16string companion_folder = {});

}  // namespace qor::calc
