#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"
#include "hosts/calc/adapter/sheets/drawn_objects.hpp"

namespace qor::calc {
namespace {

class ShapesObject final : public CalcObject<ShapesObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Shapes";

    explicit ShapesObject(Sheet sheet) : sheet_(std::move(sheet)) {}

    void require_alive() const { sheet_.require_alive(); }
    static const MemberTable<ShapesObject>& members() {
        using S = ShapesObject;
        static const MemberTable<S> table({
            property<&S::application>(u"Application"),
            property<&S::count>(u"Count"),
            property<&S::parent>(u"Parent"),
        });
        return table;
    }

  private:
    std::int32_t count() { return count_drawn_objects(sheet_); }
    Object parent() { return make_worksheet(sheet_); }
    Object application() { return make_application(sheet_.book.host); }

    Sheet sheet_;
};

}  // namespace

Object make_shapes(Sheet sheet) {
    return make_object<ShapesObject>(std::move(sheet));
}

}  // namespace qor::calc
