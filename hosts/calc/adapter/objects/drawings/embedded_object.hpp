#pragma once

#include "hosts/calc/adapter/objects/collection.hpp"
#include "hosts/calc/adapter/sheets/drawn_objects.hpp"
#include "platform/text.hpp"

namespace qor::calc {

inline Object application_of(const DrawnObject& object) {
    return application_of(object.sheet);
}
inline void require_alive(const DrawnObject& object) {
    object.require_alive();
}

// What charts and foreign objects have in common, lying on a sheet.
template <class Self>
class EmbeddedObject : public OwnedObject<Self, DrawnObject> {
    using Base = OwnedObject<Self, DrawnObject>;

  public:
    using Base::Base;

    Identity identity() const { return Identity(this->owner().shape); }
    Object parent() const { return make_worksheet(this->owner().sheet); }

  protected:
    static std::vector<Member<Self>> rows_with(std::vector<Member<Self>> rows) {
        using E = EmbeddedObject;
        rows.push_back(inherited<Self>(method<&E::select>(u"Activate")));
        rows.push_back(inherited<Self>(method<&E::remove>(u"Delete")));
        rows.push_back(inherited<Self>(property<&E::name, &E::set_name>(u"Name")));
        rows.push_back(inherited<Self>(method<&E::select>(u"Select")));
        return Base::rows_with(std::move(rows));
    }

  private:
    void select() const { this->owner().select(); }
    void remove() const { this->owner().remove(); }
    std::u16string name() const { return this->owner().name(); }
    void set_name(const std::u16string& name) const { this->owner().set_name(name); }
};

// Those of one kind on a sheet.
template <class Self, class Element, Embedded kind>
class EmbeddedObjects : public Collection<Self, Sheet> {
  public:
    using Collection<Self, Sheet>::Collection;

    static constexpr ErrorNumber outside = ErrorNumber::host_refused;

    std::vector<DrawnObject> all() const { return embedded_objects(this->owner(), kind); }
    Object made(const DrawnObject& object) const { return make_object<Element>(object); }
    Object named(const std::u16string& name) const {
        return this->first_that([&](const DrawnObject& object) { return equal_ignoring_case(object.name(), name); });
    }
};

}  // namespace qor::calc
