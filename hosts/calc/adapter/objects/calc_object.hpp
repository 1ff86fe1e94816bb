#pragma once

#include <com/sun/star/uno/XInterface.hpp>

#include "automation/member_table.hpp"
#include "hosts/calc/adapter/objects/object_model.hpp"
#include "hosts/calc/adapter/objects/refusal.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/ref.hpp"
#include "runtime/bind.hpp"

namespace qor::calc {

// An object of Excel's model answered from the office. A class has its rows in members(), its name in `name_of_type`,
// and says in identity() which object of the office it stands for.
template <class Self>
class CalcObject : public Dispatch {
  public:
    Variant invoke(const MemberName& name, Access access, Arguments arguments) final {
        try {
            return guarded([&] {
                if constexpr (requires { self().require_alive(); }) self().require_alive();
                return Self::members().invoke(self(), name, access, arguments);
            });
        } catch (const Error& error) {
            if constexpr (requires(const Self& object) { object.place(); }) {
                throw at_place(error, name, access);
            } else {
                throw;
            }
        }
    }
    std::vector<Variant> items() final {
        return guarded([&]() -> std::vector<Variant> {
            if constexpr (requires { self().require_alive(); }) self().require_alive();
            if constexpr (requires(Self & object) { object.elements(); }) {
                return self().elements();
            } else {
                return Dispatch::items();
            }
        });
    }
    bool is_same(const Dispatch& other) const noexcept final {
        const auto* same_kind = dynamic_cast<const Self*>(&other);
        if (!same_kind) return false;
        if constexpr (requires(const Self& object) { object.identity(); }) {
            bool same = false;
            attempt([&] { guarded([&] { same = self().identity() == same_kind->identity(); }); });
            return same;
        } else {
            return this == &other;
        }
    }
    std::u16string_view type_name() const noexcept final {
        static_cast<void>(is_described);
        return Self::name_of_type;
    }

  private:
    // A refusal, said in the host's words with the member and the place. One that another object raised, on whose
    // members this one's stands, has been said already.
    Error at_place(const Error& error, const MemberName& name, Access access) const {
        if (error.number() != static_cast<std::int32_t>(ErrorNumber::host_refused) || !error.source().empty()) {
            return error;
        }
        std::u16string place;
        attempt([&] { guarded([&] { place = self().place(); }); });
        return refusal(Self::name_of_type, name.text(), access, place, error.description());
    }

    static std::vector<MemberDescription> describe_members() {
        std::vector<MemberDescription> result;
        for (const auto& row : Self::members().rows()) {
            result.push_back({row.name, row.accesses == accesses::readable_and_writable});
        }
        return result;
    }
    // A class enters the list of objects by being compiled: type_name() above is what instantiates this.
    static inline const bool is_described =
        (object_model().push_back({Self::name_of_type, &CalcObject::describe_members}), true);

    Self& self() { return static_cast<Self&>(*this); }
    const Self& self() const { return static_cast<const Self&>(*this); }
};

using Identity = css::uno::Reference<css::uno::XInterface>;

// The element of a collection that an index from 1 asks for. Raises 9 when it lies outside.
template <class Elements>
auto& element_at(Elements& elements, std::int32_t index) {
    if (index < 1 || static_cast<std::size_t>(index) > elements.size()) {
        throw Error(ErrorNumber::subscript_out_of_range);
    }
    return elements[static_cast<std::size_t>(index - 1)];
}

}  // namespace qor::calc
