#pragma once

#include <optional>
#include <tuple>
#include <type_traits>

#include "automation/member_table.hpp"
#include "runtime/conversion.hpp"

// Rows of a member table made from C++ member functions: arguments are converted by the run time's rules, a
// std::optional parameter may be left out, a Variant takes whatever comes, and what a parameter that is a reference
// to non-const holds after the call goes back to the caller.
namespace qor {
namespace detail {

template <class T>
struct OptionalOf : std::false_type {};
template <class T>
struct OptionalOf<std::optional<T>> : std::true_type {
    using type = T;
};

}  // namespace detail

// The argument in that place, converted; one that is absent is Missing.
template <class T>
T argument(std::span<Variant> arguments, std::size_t place) {
    static const Variant missing(Missing{});
    const Variant& value = place < arguments.size() ? arguments[place] : missing;
    if constexpr (detail::OptionalOf<T>::value) {
        if (value.is_missing()) return std::nullopt;
        return convert<typename detail::OptionalOf<T>::type>(value);
    } else {
        return convert<T>(value);
    }
}

namespace detail {

template <class Function>
struct Signature;

template <class R, class T, class... A>
struct Signature<R (T::*)(A...)> {
    using Target = T;
    using Result = R;
    using Values = std::tuple<std::remove_cvref_t<A>...>;
    static constexpr std::size_t count = sizeof...(A);
    template <class Parameter>
    static constexpr bool goes_back =
        std::is_lvalue_reference_v<Parameter> && !std::is_const_v<std::remove_reference_t<Parameter>>;
    static constexpr std::uint32_t by_reference = [] {
        std::uint32_t bits = 0;
        std::uint32_t bit = 1;
        [[maybe_unused]] const auto one = [&](bool is_output) {
            if (is_output) bits |= bit;
            bit <<= 1U;
        };
        (one(goes_back<A>), ...);
        return bits;
    }();

    template <auto function, std::size_t... place>
    static Variant call(T& target, std::span<Variant> arguments, std::index_sequence<place...>) {
        Values values{argument<std::tuple_element_t<place, Values>>(arguments, place)...};
        const auto write_back = [&] {
            [[maybe_unused]] const auto one = [&]<std::size_t i>() {
                using Parameter = std::tuple_element_t<i, std::tuple<A...>>;
                if constexpr (goes_back<Parameter>) {
                    if (i >= arguments.size()) return;
                    if constexpr (!OptionalOf<std::tuple_element_t<i, Values>>::value) {
                        arguments[i] = Variant(std::get<i>(values));
                    } else if (std::get<i>(values)) {
                        arguments[i] = Variant(*std::get<i>(values));
                    }
                }
            };
            (one.template operator()<place>(), ...);
        };
        if constexpr (std::is_void_v<R>) {
            (target.*function)(static_cast<A>(std::get<place>(values))...);
            write_back();
            return {};
        } else {
            Variant result((target.*function)(static_cast<A>(std::get<place>(values))...));
            write_back();
            return result;
        }
    }
};
template <class R, class T, class... A>
struct Signature<R (T::*)(A...) const> : Signature<R (T::*)(A...)> {};

template <class R>
Variant starting_value() {
    if constexpr (std::is_void_v<R> || std::is_same_v<R, Variant>)
        return {};
    else
        return Variant(R{});
}

template <auto function>
Variant call_member(typename Signature<decltype(function)>::Target& target, std::span<Variant> arguments) {
    using S = Signature<decltype(function)>;
    return S::template call<function>(target, arguments, std::make_index_sequence<S::count>{});
}

template <auto function>
using TargetOf = typename Signature<decltype(function)>::Target;

template <auto function>
using ResultOf = typename Signature<decltype(function)>::Result;

constexpr unsigned bits(Access access) {
    return static_cast<unsigned>(access);
}

}  // namespace detail

// A member that is called. Hosts ask for some of these as properties, so it answers a get too.
template <auto function>
Member<detail::TargetOf<function>> method(std::u16string_view name, std::vector<std::u16string_view> parameters = {},
                                          OnError on_error = OnError::leave) {
    return {name,
            accesses::callable,
            std::move(parameters),
            [](auto& target, Access, std::span<Variant> arguments) {
                return detail::call_member<function>(target, arguments);
            },
            on_error,
            detail::starting_value<detail::ResultOf<function>>(),
            detail::Signature<decltype(function)>::by_reference};
}

// A property that can only be read; one with parameters is read as a call too.
template <auto reader>
Member<detail::TargetOf<reader>> property(std::u16string_view name, std::vector<std::u16string_view> parameters = {},
                                          OnError on_error = OnError::leave) {
    return method<reader>(name, std::move(parameters), on_error);
}

// A property that can be read and written. The writer takes the parameters and then the value.
template <auto reader, auto writer>
Member<detail::TargetOf<reader>> property(std::u16string_view name, std::vector<std::u16string_view> parameters = {},
                                          OnError on_error = OnError::leave) {
    return {name,
            accesses::readable_and_writable,
            std::move(parameters),
            [](auto& target, Access access, std::span<Variant> arguments) {
                return access == Access::put ? detail::call_member<writer>(target, arguments)
                                             : detail::call_member<reader>(target, arguments);
            },
            on_error,
            detail::starting_value<detail::ResultOf<reader>>()};
}

// A plain data member as a property that can be read and written.
template <auto field, class T, class Target>
Member<Target> plain_property(T Target::*, std::u16string_view name, OnError on_error) {
    return {name,
            accesses::readable_and_writable,
            {},
            [](Target& target, Access access, std::span<Variant> arguments) -> Variant {
                if (access != Access::put) return Variant(target.*field);
                target.*field = argument<T>(arguments, 0);
                return {};
            },
            on_error,
            Variant(T{})};
}
template <auto field>
auto field_property(std::u16string_view name, OnError on_error = OnError::leave) {
    return plain_property<field>(field, name, on_error);
}

}  // namespace qor
