#pragma once

#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {

// Of what an object belongs to: the application,
inline Object application_of(const HostPointer& host) {
    return make_application(host);
}
inline Object application_of(const Book& book) {
    return make_application(book.host);
}
inline Object application_of(const Sheet& sheet) {
    return make_application(sheet.book.host);
}
inline Object application_of(const RangeAreas& areas) {
    return make_application(areas.sheet.book.host);
}
// the object that stands for it,
inline Object object_of(const HostPointer& host) {
    return make_application(host);
}
inline Object object_of(const Book& book) {
    return make_workbook(book);
}
inline Object object_of(const Sheet& sheet) {
    return make_worksheet(sheet);
}
inline Object object_of(const RangeAreas& areas) {
    return make_range(areas);
}
// and whether it is still there; raises 1004 when it is gone.
inline void require_alive(const HostPointer&) {}
inline void require_alive(const Book& book) {
    book.require_alive();
}
inline void require_alive(const Sheet& sheet) {
    sheet.require_alive();
}
inline void require_alive(const RangeAreas& areas) {
    areas.sheet.require_alive();
}

// An object that belongs to something of the office, and is gone when that is. For an owner of another kind there are
// functions as above beside it. A class whose parent is another object says so in parent() of its own.
template <class Self, class Owner>
class OwnedObject : public CalcObject<Self> {
  public:
    explicit OwnedObject(Owner owner) : owner_(std::move(owner)) {}

    void require_alive() const {
        using qor::calc::require_alive;
        require_alive(owner_);
    }
    Object parent() const { return object_of(owner_); }

  protected:
    // The rows that all have, and those of one kind.
    static std::vector<Member<Self>> rows_with(std::vector<Member<Self>> rows) {
        rows.push_back(inherited<Self>(property<&OwnedObject::application>(u"Application")));
        rows.push_back(inherited<Self>(property<&Self::parent>(u"Parent")));
        return rows;
    }

    const Owner& owner() const noexcept { return owner_; }

  private:
    Object application() const { return application_of(owner_); }

    Owner owner_;
};

}  // namespace qor::calc
