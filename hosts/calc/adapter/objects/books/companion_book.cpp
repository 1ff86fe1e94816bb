#include "hosts/calc/adapter/objects/owned_object.hpp"

namespace qor::calc {
namespace {

// In Excel the macros that call the add-in live in a workbook of their own. Calc needs none: of it there is only the
// folder in which the data files lie.
class CompanionBookObject final : public OwnedObject<CompanionBookObject, HostPointer> {
  public:
    static constexpr std::u16string_view name_of_type = u"ThisWorkbook";

    using OwnedObject::OwnedObject;

    static const MemberTable<CompanionBookObject>& members() {
        static const MemberTable<CompanionBookObject> table(rows_with({
            property<&CompanionBookObject::path>(u"Path"),
        }));
        return table;
    }

    Identity identity() const { return Identity(owner()->desktop()); }

  private:
    std::u16string path() { return owner()->companion_folder(); }
};

}  // namespace

Object make_companion_book(HostPointer host) {
    return make_object<CompanionBookObject>(std::move(host));
}

}  // namespace qor::calc
