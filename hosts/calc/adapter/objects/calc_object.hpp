#pragma once

#include <algorithm>
#include <com/sun/star/uno/XInterface.hpp>
#include <functional>

#include "automation/member_names.hpp"
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

  protected:
    Self& self() { return static_cast<Self&>(*this); }
    const Self& self() const { return static_cast<const Self&>(*this); }

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
};

using Identity = Ref<css::uno::XInterface>;

// A member that a class has from its base.
template <class Self, class Base>
Member<Self> inherited(Member<Base> row) {
    return {row.name,     row.accesses,          std::move(row.parameters), std::move(row.invoke),
            row.on_error, row.result_at_failure, row.by_reference};
}

// The element that an index from 1 asks for. Raises that error when it lies outside.
template <class Elements>
auto& element_at(Elements& elements, std::int32_t index, ErrorNumber outside = ErrorNumber::subscript_out_of_range) {
    if (index < 1 || static_cast<std::size_t>(index) > elements.size()) throw Error(outside);
    return elements[static_cast<std::size_t>(index - 1)];
}

// The other way round: the index of an element. Raises 1004 when it is none of them.
template <class Elements, class Value, class Projection = std::identity>
std::int32_t index_of(const Elements& elements, const Value& value, Projection projection = {}) {
    const auto found = std::ranges::find(elements, value, projection);
    if (found == elements.end()) throw Error(ErrorNumber::host_refused);
    return static_cast<std::int32_t>(found - elements.begin()) + 1;
}

// A property that answers a collection, and called with an index its element.
inline Variant item_or_all(Object collection, const Variant& index) {
    return index.is_missing() ? Variant(std::move(collection)) : collection.get(names::Item, index);
}

}  // namespace qor::calc
