#include "hosts/calc/adapter/objects/owned_object.hpp"
#include "hosts/calc/adapter/sheets/drawn_objects.hpp"

namespace qor::calc {
namespace {

class ShapesObject final : public OwnedObject<ShapesObject, Sheet> {
  public:
    static constexpr std::u16string_view name_of_type = u"Shapes";

    using OwnedObject::OwnedObject;

    static const MemberTable<ShapesObject>& members() {
        static const MemberTable<ShapesObject> table(rows_with({
            property<&ShapesObject::count>(u"Count"),
        }));
        return table;
    }

  private:
    std::int32_t count() { return count_drawn_objects(owner()); }
};

}  // namespace

Object make_shapes(Sheet sheet) {
    return make_object<ShapesObject>(std::move(sheet));
}

}  // namespace qor::calc
