#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {
namespace {

// In Excel the macros that call the add-in live in a workbook of their own. Calc needs none: of it there is only the
// folder in which the data files lie.
class CompanionBookObject final : public CalcObject<CompanionBookObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"ThisWorkbook";

    explicit CompanionBookObject(HostPointer host) : host_(std::move(host)) {}

    static const MemberTable<CompanionBookObject>& members() {
        using C = CompanionBookObject;
        static const MemberTable<C> table({
            property<&C::application>(u"Application"),
            property<&C::application>(u"Parent"),
            property<&C::path>(u"Path"),
        });
        return table;
    }

    Identity identity() const { return Identity(host_->desktop().reference(), css::uno::UNO_QUERY); }

  private:
    std::u16string path() { return host_->companion_folder(); }
    Object application() { return make_application(host_); }

    HostPointer host_;
};

}  // namespace

Object make_companion_book(HostPointer host) {
    return make_object<CompanionBookObject>(std::move(host));
}

}  // namespace qor::calc
