#pragma once

#include <vector>

#include "hosts/excel/com/ole_variant.hpp"

namespace qor::excel {

// An IEnumVARIANT over the values, for a host that goes through them one by one.
OleVariant enumeration_of(std::vector<Variant> values);

}  // namespace qor::excel
