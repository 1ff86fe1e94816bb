#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/objects/drawings/embedded_object.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/file_address.hpp"

namespace qor::calc {
namespace {

class OleObject final : public EmbeddedObject<OleObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"OLEObject";

    using EmbeddedObject::EmbeddedObject;

    static const MemberTable<OleObject>& members() {
        static const MemberTable<OleObject> table(rows_with({
            property<&OleObject::type>(u"OLEType"),
            property<&OleObject::source_name>(u"SourceName"),
        }));
        return table;
    }

  private:
    rtl::OUString link() const { return get_property<rtl::OUString>(owner().shape, "LinkURL"); }

    std::int32_t type() { return link().isEmpty() ? numbers::ole_type::embedded : numbers::ole_type::linked; }
    std::u16string source_name() {
        const rtl::OUString address = link();
        if (address.isEmpty()) throw Error(ErrorNumber::host_refused);
        return path_of_address(view_of(address));
    }
};

class OleObjects final : public EmbeddedObjects<OleObjects, OleObject, Embedded::other> {
  public:
    static constexpr std::u16string_view name_of_type = u"OLEObjects";

    using EmbeddedObjects::EmbeddedObjects;
};

}  // namespace

Object make_ole_objects(Sheet sheet) {
    return make_object<OleObjects>(std::move(sheet));
}

}  // namespace qor::calc
