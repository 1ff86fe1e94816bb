#pragma once

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/uno/Sequence.hxx>
#include <initializer_list>
#include <type_traits>

#include "hosts/calc/uno/ref.hpp"
#include "hosts/calc/uno/text.hpp"

namespace qor::calc {

// The value in the type asked for, an object as a Ref; raises 1004 when it is of another.
template <class T>
T value_of(const css::uno::Any& value) {
    if constexpr (requires(const T& object) { object.reference(); }) {
        return value_of<std::remove_cvref_t<decltype(std::declval<T>().reference())>>(value);
    } else {
        T result{};
        if (!(value >>= result)) throw Error(ErrorNumber::host_refused);
        return result;
    }
}

template <class T, class Interface>
T get_property(const Ref<Interface>& object, const char* name) {
    return value_of<T>(Ref<css::beans::XPropertySet>(object)->getPropertyValue(rtl::OUString::createFromAscii(name)));
}

template <class Interface, class T>
void set_property(const Ref<Interface>& object, const char* name, const T& value) {
    Ref<css::beans::XPropertySet>(object)->setPropertyValue(rtl::OUString::createFromAscii(name), css::uno::Any(value));
}

template <class T>
css::beans::PropertyValue named_value(const char* name, const T& value) {
    return {rtl::OUString::createFromAscii(name), 0, css::uno::Any(value), css::beans::PropertyState_DIRECT_VALUE};
}

using PropertyValues = css::uno::Sequence<css::beans::PropertyValue>;

}  // namespace qor::calc
