#pragma once

#include "hosts/calc/adapter/objects/owned_object.hpp"

namespace qor::calc {

// A collection says what its elements are in all(), a list of whatever it knows them by, and makes the object for one
// of them in made(). One that finds them by a text has named(), too, and one that raises another error than 9 for what
// is not there has an `outside` of its own. What the office answers faster, such as count(), it may say by itself.
template <class Self, class Owner>
class Collection : public OwnedObject<Self, Owner> {
    using Base = OwnedObject<Self, Owner>;

  public:
    using Base::Base;

    static constexpr ErrorNumber outside = ErrorNumber::subscript_out_of_range;

    static const MemberTable<Self>& members() {
        static const MemberTable<Self> table(rows_with({}));
        return table;
    }

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const auto& one : this->self().all()) result.emplace_back(this->self().made(one));
        return result;
    }
    std::int32_t count() const { return static_cast<std::int32_t>(this->self().all().size()); }
    Object item(const Variant& index) const {
        const auto* name = index.get_if<std::u16string>();
        return name ? this->self().named(*name) : numbered(index);
    }
    Object named(const std::u16string& name) const { return numbered(name); }

  protected:
    static std::vector<Member<Self>> rows_with(std::vector<Member<Self>> rows) {
        rows.push_back(inherited<Self>(property<&Self::count>(u"Count")));
        rows.push_back(inherited<Self>(property<&Self::item>(u"Item", {u"Index"})));
        return Base::rows_with(std::move(rows));
    }

    Object numbered(const Variant& index) const {
        const auto& all = this->self().all();
        return this->self().made(element_at(all, to_long(index), Self::outside));
    }
    template <class Fits>
    Object first_that(Fits fits) const {
        for (const auto& one : this->self().all()) {
            if (fits(one)) return this->self().made(one);
        }
        throw Error(Self::outside);
    }
};

}  // namespace qor::calc
