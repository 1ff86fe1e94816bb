#include "hosts/calc/office/process/start_variable.hpp"

#include <doctest/doctest.h>

TEST_CASE("a dollar sign in a path begins no variable of the office") {
    CHECK(qor::calc::address_in_variable("/home/me/a b$USER$") == "file:///home/me/a%20b%24USER%24");
}
