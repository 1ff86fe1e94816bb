#include "functions/between.hpp"

#include "runtime/compare.hpp"

namespace qor {

bool between(const Variant& value, const Variant& low, const Variant& high) {
    return std::is_lt(compare(low, value)) && std::is_lt(compare(value, high));
}

}  // namespace qor
