#include "automation/variant.hpp"

#include <doctest/doctest.h>

using namespace qor;
using Kind = Variant::Kind;

TEST_CASE("a value keeps its own type") {
    CHECK(Variant().kind() == Kind::empty);
    CHECK(Variant(Null{}).kind() == Kind::null);
    CHECK(Variant(Missing{}).is_missing());
    CHECK(Variant(true).kind() == Kind::boolean);
    CHECK(Variant(std::int16_t{1}).kind() == Kind::integer);
    CHECK(Variant(1).kind() == Kind::long_integer);
    CHECK(Variant(1.0F).kind() == Kind::single);
    CHECK(Variant(1.0).kind() == Kind::double_float);
    CHECK(Variant(Currency{10'000}).kind() == Kind::currency);
    CHECK(Variant(Date{1.5}).kind() == Kind::date);
    CHECK(Variant(u"text").kind() == Kind::text);
    CHECK(Variant(ErrorValue{2007}).kind() == Kind::error);
    CHECK(Variant(Object()).kind() == Kind::object);
    CHECK(Variant(Array::list({})).kind() == Kind::array);
}

TEST_CASE("text may hold any unit of UTF-16, a zero included") {
    const Variant text(std::u16string(u"a\0b\xD800", 4));
    CHECK(text.get_if<std::u16string>()->size() == 4);
}

TEST_CASE("a table counts rows and columns and is shared when copied") {
    Array table = Array::table(2, 3);
    table.at(1, 2) = 7;
    const Variant value(std::move(table));
    const Variant copy = value;
    REQUIRE(copy.array());
    CHECK(copy.array() == value.array());
    CHECK(copy.array()->dimensions() == 2);
    CHECK(copy.array()->rows() == 2);
    CHECK(copy.array()->columns() == 3);
    CHECK(copy.array()->lower_bound() == 1);
    CHECK(*copy.array()->at(1, 2).get_if<std::int32_t>() == 7);
    CHECK(copy.array()->at(0, 0).is_empty());
}

TEST_CASE("a list is one row counted from zero") {
    const Array list = Array::list({Variant(1), Variant(u"b")});
    CHECK(list.dimensions() == 1);
    CHECK(list.rows() == 1);
    CHECK(list.size() == 2);
    CHECK(list.lower_bound() == 0);
}
