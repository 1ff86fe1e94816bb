#include "core/MMain.hpp"

#include <cassert>
#include <optional>

namespace qor {
namespace {

std::optional<Environment> current;

}  // namespace

Object gExcel;

void set_environment(const Environment& environment) noexcept {
    current.emplace(environment);
}

const Environment& environment() noexcept {
    assert(current);
    return *current;
}

}  // namespace qor
