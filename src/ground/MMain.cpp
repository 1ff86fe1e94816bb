#include "ground/MMain.hpp"

#include <cassert>
#include <optional>

namespace qor {
namespace {

std::optional<Environment> current;

class NoFaces final : public FaceClipboard {
  public:
    void put(std::u16string_view) override {
        constexpr std::int32_t resource_not_found = 326;
        throw Error(resource_not_found, {}, u"This host has no faces.");
    }
};

}  // namespace

Object gExcel;

FaceClipboard& no_faces() noexcept {
    static NoFaces faces;
    return faces;
}

void set_environment(const Environment& environment) noexcept {
    current.emplace(environment);
}

const Environment& environment() noexcept {
    assert(current);
    return *current;
}

}  // namespace qor
