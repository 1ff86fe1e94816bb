#pragma once

#include <com/sun/star/beans/XPropertyState.hpp>
#include <optional>

#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/uno/property.hpp"

namespace qor::calc {

// The attribute that all cells of the range share; none when they differ.
template <class T>
std::optional<T> shared_attribute(const RangeAreas& areas, const char* name) {
    const Ref whole = areas.whole();
    const auto state = Ref<css::beans::XPropertyState>(whole)->getPropertyState(rtl::OUString::createFromAscii(name));
    if (state == css::beans::PropertyState_AMBIGUOUS_VALUE) return {};
    return get_property<T>(whole, name);
}

template <class T>
void set_attribute(const RangeAreas& areas, const char* name, const T& value) {
    before_formatting(areas);
    set_property(areas.whole(), name, value);
}

// What a range answers for an attribute: the value made of it, Null when the cells differ.
template <class T, class Convert>
Variant answer(const std::optional<T>& attribute, Convert convert) {
    return attribute ? Variant(convert(*attribute)) : Variant(Null{});
}

}  // namespace qor::calc
