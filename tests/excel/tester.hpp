#pragma once

#include <doctest/doctest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "platform/text.hpp"
#include "runtime/bind.hpp"
#include "runtime/compare.hpp"

namespace qor::test {

// A value's kind and content in one line, as the file of results has it.
inline std::string described(const Variant& value) {
    const auto number = [](double content) {
        char text[40];
        std::snprintf(text, sizeof(text), "%a", content);
        return std::string(text);
    };
    switch (value.kind()) {
        case Variant::Kind::empty:
            return "empty";
        case Variant::Kind::boolean:
            return to_boolean(value) ? "boolean 1" : "boolean 0";
        case Variant::Kind::integer:
        case Variant::Kind::long_integer:
        case Variant::Kind::double_float:
            return "number " + number(to_double(value));
        case Variant::Kind::date:
            return "date " + number(to_double(value));
        case Variant::Kind::text: {
            std::string units = "text ";
            for (const char16_t unit : *value.get_if<std::u16string>())
                units.append(units.size() == 5 ? "" : " ").append(std::to_string(static_cast<unsigned>(unit)));
            return units;
        }
        default:
            return "another kind";
    }
}

// What scripts know as T: they say by it what they have found.
class Tester final : public Dispatch {
  public:
    // Scripts find only names that have been spelled.
    Tester() { members(); }

    static const MemberTable<Tester>& members() {
        static const MemberTable<Tester> table({
            method<&Tester::Equal>(u"Equal", {u"actual", u"expected"}),
            method<&Tester::Result>(u"Result", {u"value", u"error"}),
            property<&Tester::Omitted>(u"Omitted"),
            method<&Tester::Day>(u"Day", {u"serial"}),
            method<&Tester::Text>(u"Text", {u"units"}),
        });
        return table;
    }
    Variant invoke(const MemberName& name, Access access, Arguments arguments) override {
        return members().invoke(*this, name, access, arguments);
    }
    std::u16string_view type_name() const noexcept override { return u"Tester"; }

    // The lines that the calls of Result are compared with, one after the other.
    void expect(const std::string& file) { expected_.open(file, std::ios::binary); }
    int checks() const noexcept { return checks_; }

    void Equal(const Variant& actual, const Variant& expected) {
        ++checks_;
        INFO("check ", checks_);
        CHECK(described(actual) == described(expected));
    }
    void Result(const Variant& value, std::int32_t error) {
        ++checks_;
        std::string line;
        if (!std::getline(expected_, line)) throw Error(ErrorNumber::subscript_out_of_range);
        std::istringstream words(line);
        std::string function;
        std::int32_t expected_error = 0;
        words >> function >> expected_error;
        std::string expected_value;
        std::getline(words >> std::ws, expected_value);
        INFO("call ", checks_, " of ", function);
        CHECK(error == expected_error);
        if (error != 0 || is_next_to(value, expected_value)) return;
        CHECK(described(value) == expected_value);
    }
    Variant Omitted() const { return Missing{}; }
    Variant Day(double serial) const { return Date{serial}; }
    std::u16string Text(const std::u16string& units) const {
        std::istringstream numbers(to_utf8(units));
        std::u16string text;
        for (unsigned unit = 0; numbers >> unit;) text += static_cast<char16_t>(unit);
        return text;
    }

  private:
    // A power may differ in its last bit: the two systems' libraries round it each in their own way.
    static bool is_next_to(const Variant& value, const std::string& expected) {
        if (!expected.starts_with("number ") || !value.is(Variant::Kind::double_float)) return false;
        const double wanted = std::strtod(expected.c_str() + 7, nullptr);
        const double number = to_double(value);
        return number == std::nextafter(wanted, number);
    }

    int checks_ = 0;
    std::ifstream expected_;
};

}  // namespace qor::test
