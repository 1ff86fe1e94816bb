#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {
namespace {

class AreasObject final : public CalcObject<AreasObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Areas";

    explicit AreasObject(RangeAreas areas) : areas_(std::move(areas)) {}

    void require_alive() const { areas_.sheet.require_alive(); }
    static const MemberTable<AreasObject>& members() {
        static const MemberTable<AreasObject> table({
            property<&AreasObject::application>(u"Application"),
            property<&AreasObject::count>(u"Count"),
            property<&AreasObject::item>(u"Item", {u"Index"}),
            property<&AreasObject::parent>(u"Parent"),
        });
        return table;
    }

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const Cells& cells : areas_.areas) {
            result.emplace_back(make_range({areas_.sheet, {cells}, areas_.unit}));
        }
        return result;
    }

  private:
    std::int32_t count() { return static_cast<std::int32_t>(areas_.areas.size()); }
    Object item(std::int32_t index) {
        return make_range({areas_.sheet, {element_at(areas_.areas, index)}, areas_.unit});
    }
    Object parent() { return make_range(areas_); }
    Object application() { return make_application(areas_.sheet.book.host); }

    RangeAreas areas_;
};

}  // namespace

Object make_areas(RangeAreas areas) {
    return make_object<AreasObject>(std::move(areas));
}

}  // namespace qor::calc
