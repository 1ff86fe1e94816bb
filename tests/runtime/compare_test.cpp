#include "runtime/compare.hpp"

#include <doctest/doctest.h>

#include "tests/support/raised.hpp"

using namespace qor;
using test::raised;

TEST_CASE("numbers of any kind compare by value") {
    CHECK(equals(1, 1.0));
    CHECK(equals(true, -1));
    CHECK(equals(Date{2}, 2.0F));
    CHECK(equals(Currency{15000}, 1.5));
    CHECK(std::is_lt(compare(std::int16_t{2}, 3.5)));
    CHECK(std::is_gt(compare(false, true)));
    CHECK(std::is_lt(compare(Currency{9223372036854775806}, Currency{9223372036854775807})));
}

TEST_CASE("texts compare by their code units") {
    CHECK(equals(u"abc", u"abc"));
    CHECK_FALSE(equals(u"abc", u"ABC"));
    CHECK(std::is_lt(compare(u"B", u"a")));
    CHECK(std::is_gt(compare(u"ab", u"a")));
    CHECK(std::is_lt(compare(u"10", u"9")));
}

TEST_CASE("a number comes before any text") {
    CHECK(std::is_lt(compare(9, u"1")));
    CHECK(std::is_gt(compare(u"", -1)));
    CHECK_FALSE(equals(5, u"5"));
}

TEST_CASE("Empty is 0 beside numbers and no text beside texts") {
    CHECK(equals(Empty{}, 0));
    CHECK(equals(Empty{}, u""));
    CHECK(equals(Empty{}, Empty{}));
    CHECK(equals(false, Empty{}));
    CHECK(std::is_gt(compare(Empty{}, -1)));
    CHECK(std::is_lt(compare(Empty{}, u"a")));
}

TEST_CASE("Null has no order") {
    CHECK_FALSE(equals(Null{}, Null{}));
    CHECK((compare(Null{}, 1) == std::partial_ordering::unordered));
    CHECK((compare(u"", Null{}) == std::partial_ordering::unordered));
}

TEST_CASE("an error in a comparison is a type mismatch") {
    CHECK(raised([] { return equals(ErrorValue{2007}, u""); }) == 13);
    CHECK(raised([] { return equals(1, ErrorValue{2007}); }) == 13);
    CHECK(raised([] { return equals(Null{}, ErrorValue{2007}); }) == 13);
    CHECK(raised([] { return equals(1, Missing{}); }) == 13);
    CHECK(raised([] { return equals(Array::list({1}), 1); }) == 13);
    CHECK(raised([] { return equals(Object(), 1); }) == 91);
}
