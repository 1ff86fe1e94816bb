#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "automation/error.hpp"
#include "automation/object.hpp"

namespace qor {

struct Empty {
    bool operator==(const Empty&) const = default;
};
struct Null {
    bool operator==(const Null&) const = default;
};
// An argument that the caller left out.
struct Missing {
    bool operator==(const Missing&) const = default;
};
// Money as a whole number of ten-thousandths.
struct Currency {
    std::int64_t ten_thousandths = 0;
    bool operator==(const Currency&) const = default;
};
// Days since 30 December 1899, the time of day as the fraction.
struct Date {
    double serial = 0;
    bool operator==(const Date&) const = default;
};
// An error as a cell holds it, by the host's code: 2007 is #DIV/0!.
struct ErrorValue {
    std::int32_t code = 0;
    bool operator==(const ErrorValue&) const = default;
};

class Array;

// One host value. The order of Kind is the order of the alternatives.
class Variant {
  public:
    enum class Kind : std::uint8_t {
        empty,
        null,
        missing,
        boolean,
        integer,
        long_integer,
        single,
        double_float,
        currency,
        date,
        text,
        error,
        object,
        array,
    };

    Variant() noexcept = default;
    Variant(Empty) noexcept {}
    Variant(Null value) noexcept : value_(value) {}
    Variant(Missing value) noexcept : value_(value) {}
    Variant(std::same_as<bool> auto value) noexcept : value_(value) {}
    Variant(std::int16_t value) noexcept : value_(value) {}
    Variant(std::int32_t value) noexcept : value_(value) {}
    Variant(float value) noexcept : value_(value) {}
    Variant(double value) noexcept : value_(value) {}
    Variant(Currency value) noexcept : value_(value) {}
    Variant(Date value) noexcept : value_(value) {}
    Variant(ErrorValue value) noexcept : value_(value) {}
    Variant(std::u16string value) noexcept : value_(std::move(value)) {}
    Variant(std::u16string_view value) : value_(std::u16string(value)) {}
    Variant(const char16_t* value) : value_(std::u16string(value)) {}
    Variant(Object value) noexcept : value_(std::move(value)) {}
    Variant(Array value);

    Kind kind() const noexcept { return static_cast<Kind>(value_.index()); }
    bool is(Kind kind_asked) const noexcept { return kind() == kind_asked; }
    bool is_missing() const noexcept { return is(Kind::missing); }
    bool is_empty() const noexcept { return is(Kind::empty); }

    // The value as the type it holds, null when it holds another.
    template <class T>
    const T* get_if() const noexcept {
        return std::get_if<T>(&value_);
    }
    const Array* array() const noexcept {
        const auto* held = std::get_if<std::shared_ptr<const Array>>(&value_);
        return held ? held->get() : nullptr;
    }

    // The object held; raises 424 when this is no object. Nothing is a valid answer.
    const Object& object() const;
    operator Object() const { return object(); }

    // Shorthands, so that accesses can be chained.
    template <class... Args>
    Variant get(const MemberName& name, Args&&... arguments) const {
        return object().get(name, std::forward<Args>(arguments)...);
    }
    template <class... Args>
    void put(const MemberName& name, Args&&... arguments_and_value) const {
        object().put(name, std::forward<Args>(arguments_and_value)...);
    }
    template <class... Args>
    Variant call(const MemberName& name, Args&&... arguments) const {
        return object().call(name, std::forward<Args>(arguments)...);
    }

    // Calls the visitor with the value in its own type; an array comes as std::shared_ptr<const Array>.
    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) const {
        return std::visit(std::forward<Visitor>(visitor), value_);
    }

  private:
    std::variant<Empty, Null, Missing, bool, std::int16_t, std::int32_t, float, double, Currency, Date, std::u16string,
                 ErrorValue, Object, std::shared_ptr<const Array>>
        value_;
};

struct NamedArgument {
    MemberName name;
    Variant value;
};

template <class T>
NamedArgument named(const MemberName& name, T&& value) {
    return {name, Variant(std::forward<T>(value))};
}

// A rectangular array of one or two dimensions, row by row. The hosts count from the lower bounds given.
class Array {
  public:
    static Array list(std::vector<Variant> elements, std::int32_t lower_bound = 0);
    static Array table(std::size_t rows, std::size_t columns, std::int32_t lower_bound = 1);

    int dimensions() const noexcept { return dimensions_; }
    std::size_t rows() const noexcept { return rows_; }
    std::size_t columns() const noexcept { return columns_; }
    std::int32_t lower_bound() const noexcept { return lower_bound_; }
    std::size_t size() const noexcept { return elements_.size(); }

    // By places from 0, whatever the lower bounds are.
    const Variant& at(std::size_t place) const noexcept { return elements_[place]; }
    Variant& at(std::size_t place) noexcept { return elements_[place]; }
    const Variant& at(std::size_t row, std::size_t column) const noexcept { return elements_[row * columns_ + column]; }
    Variant& at(std::size_t row, std::size_t column) noexcept { return elements_[row * columns_ + column]; }

    auto begin() const noexcept { return elements_.begin(); }
    auto end() const noexcept { return elements_.end(); }

  private:
    Array(int dimensions, std::size_t rows, std::size_t columns, std::int32_t lower_bound,
          std::vector<Variant> elements)
        : dimensions_(dimensions),
          rows_(rows),
          columns_(columns),
          lower_bound_(lower_bound),
          elements_(std::move(elements)) {}

    int dimensions_;
    std::size_t rows_;  // a list is one row
    std::size_t columns_;
    std::int32_t lower_bound_;
    std::vector<Variant> elements_;
};

inline Variant::Variant(Array value) : value_(std::make_shared<const Array>(std::move(value))) {}

namespace detail {

template <class... Args>
constexpr std::size_t named_count = (std::size_t{0} + ... + (std::same_as<std::remove_cvref_t<Args>, NamedArgument>));

// Splits a call's arguments into positional and named ones; the named ones come last.
template <class... Args>
Variant invoke_with(const Object& object, const MemberName& name, Access access, Args&&... arguments) {
    if constexpr (named_count<Args...> == 0) {
        std::array<Variant, sizeof...(Args)> positional{Variant(std::forward<Args>(arguments))...};
        return object.invoke(name, access, {positional, {}});
    } else {
        std::vector<Variant> positional;
        std::vector<NamedArgument> named_ones;
        const auto place = [&](auto&& argument) {
            if constexpr (std::same_as<std::remove_cvref_t<decltype(argument)>, NamedArgument>) {
                named_ones.push_back(std::forward<decltype(argument)>(argument));
            } else {
                positional.emplace_back(std::forward<decltype(argument)>(argument));
            }
        };
        (place(std::forward<Args>(arguments)), ...);
        return object.invoke(name, access, {positional, named_ones});
    }
}

}  // namespace detail

template <class... Args>
Variant Object::get(const MemberName& name, Args&&... arguments) const {
    return detail::invoke_with(*this, name, Access::get, std::forward<Args>(arguments)...);
}

template <class... Args>
void Object::put(const MemberName& name, Args&&... arguments_and_value) const {
    detail::invoke_with(*this, name, Access::put, std::forward<Args>(arguments_and_value)...);
}

template <class... Args>
Variant Object::call(const MemberName& name, Args&&... arguments) const {
    return detail::invoke_with(*this, name, Access::call, std::forward<Args>(arguments)...);
}

}  // namespace qor
