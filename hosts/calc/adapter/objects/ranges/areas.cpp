#include "hosts/calc/adapter/objects/collection.hpp"

namespace qor::calc {
namespace {

class AreasObject final : public Collection<AreasObject, RangeAreas> {
  public:
    static constexpr std::u16string_view name_of_type = u"Areas";

    using Collection::Collection;

    const AreaList& all() const { return owner().areas; }
    Object made(const Cells& cells) const { return make_range({owner().sheet, {cells}, owner().unit}); }
};

}  // namespace

Object make_areas(RangeAreas areas) {
    return make_object<AreasObject>(std::move(areas));
}

}  // namespace qor::calc
