#include "automation/variant.hpp"

namespace qor {

Variant Dispatch::default_value() {
    throw Error(ErrorNumber::no_such_member);
}

std::vector<Variant> Dispatch::items() {
    throw Error(ErrorNumber::no_such_member);
}

Dispatch& Object::required() const {
    if (!target_) throw Error(ErrorNumber::object_not_set);
    return *target_;
}

Variant Object::invoke(const MemberName& name, Access access, Arguments arguments) const {
    return required().invoke(name, access, arguments);
}

std::vector<Variant> Object::items() const {
    return required().items();
}

const Object& Variant::object() const {
    const auto* held = get_if<Object>();
    if (!held) throw Error(ErrorNumber::object_required);
    return *held;
}

Array Array::list(std::vector<Variant> elements, std::int32_t lower_bound) {
    const std::size_t count = elements.size();
    return {1, 1, count, lower_bound, std::move(elements)};
}

Array Array::table(std::size_t rows, std::size_t columns, std::int32_t lower_bound) {
    return {2, rows, columns, lower_bound, std::vector<Variant>(rows * columns)};
}

}  // namespace qor
