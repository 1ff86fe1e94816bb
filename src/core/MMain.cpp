#include "core/MMain.hpp"

#include <utility>

namespace qor {
namespace {

Environment current;

}  // namespace

Object gExcel;

const Environment& environment() noexcept {
    return current;
}

Environment set_environment(const Environment& environment) noexcept {
    return std::exchange(current, environment);
}

}  // namespace qor
