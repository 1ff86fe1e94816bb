#pragma once

#include <chrono>
#include <vector>

#include "automation/variant.hpp"
#include "hosts/excel/com/com_pointer.hpp"
#include "hosts/excel/com/ole.hpp"

namespace qor::excel {

// An object of the host or of any other server, driven late bound by its members' names.
class HostObject final : public Dispatch {
  public:
    explicit HostObject(ComPointer<IDispatch> target) : target_(std::move(target)) {}

    Variant invoke(const MemberName& name, Access access, Arguments arguments) override;
    Variant default_value() override;
    std::vector<Variant> items() override;
    // Whether both are one object by the rules of COM: its IUnknown is always the same.
    bool is_same(const Dispatch& other) const noexcept override;
    std::u16string_view type_name() const noexcept override { return u"Object"; }

    IDispatch& target() const noexcept { return *target_.get(); }

  private:
    DISPID id_of(const MemberName& name);
    std::vector<DISPID> ids_of(const MemberName& name, std::span<const NamedArgument> named);

    struct KnownId {
        std::size_t name;
        DISPID id;
    };

    ComPointer<IDispatch> target_;
    std::vector<KnownId> known_ids_;
};

// How long a host that is busy is asked again before its refusal is raised.
struct Patience {
    std::chrono::milliseconds pause{50};
    int tries = 200;
};
Patience& patience();

Object from_host(ComPointer<IDispatch> target);
// Null for Nothing.
ComPointer<IDispatch> to_host(const Object& object);

}  // namespace qor::excel
