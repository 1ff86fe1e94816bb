#include "functions/function_words.hpp"

#include <doctest/doctest.h>

using namespace qor;

TEST_CASE("users read of every category by its name") {
    CHECK(category_name(Category::financial) == u"Financial");
    CHECK(category_name(Category::date_and_time) == u"Date & Time");
    CHECK(category_name(Category::text) == u"Text");
    CHECK(category_name(Category::logical) == u"Logical");
    CHECK(category_name(Category::information) == u"Information");
}

TEST_CASE("users read of every kind of value by its name, and of an argument in a sentence") {
    CHECK(kind_name(ValueKind::number) == u"number");
    CHECK(kind_name(ValueKind::whole_number) == u"whole number");
    CHECK(kind_name(ValueKind::variant) == u"value");
    CHECK(kind_name(ValueKind::text) == u"text");
    CHECK(kind_name(ValueKind::boolean) == u"boolean");
    CHECK(kind_phrase(ValueKind::number) == u"A number");
    CHECK(kind_phrase(ValueKind::whole_number) == u"A whole number");
    CHECK(kind_phrase(ValueKind::variant) == u"A value of any kind");
    CHECK(kind_phrase(ValueKind::text) == u"A text");
    CHECK(kind_phrase(ValueKind::boolean) == u"TRUE or FALSE");
}
