#include "automation/error.hpp"

#include <doctest/doctest.h>

#include <string>

using namespace qor;

TEST_CASE("an error carries the run time's description of its number") {
    const Error error(ErrorNumber::division_by_zero);
    CHECK(error.number() == 11);
    CHECK(error.description() == u"Division by zero");
    CHECK(error.source().empty());
}

TEST_CASE("an unknown number has the host's general description") {
    CHECK(standard_description(static_cast<ErrorNumber>(4711)) == u"Application-defined or object-defined error");
}

TEST_CASE("a chain of procedures leaves a readable trace, the outermost first") {
    try {
        with_trace(u"UTAddWor", [] { with_trace(u"AddWk", [] { throw Error(ErrorNumber::host_refused, u"Host"); }); });
        FAIL("nothing was raised");
    } catch (const Error& error) {
        CHECK(error.source() == u"UTAddWor\rAddWk\rHost");
        CHECK(error.number() == 1004);
    }
}

TEST_CASE("a procedure that raises nothing answers through its trace") {
    CHECK(with_trace(u"Anything", [] { return 7; }) == 7);
}

TEST_CASE("an attempted statement that fails leaves its target as it was and gives its number") {
    int target = 3;
    const auto failing = []() -> int { throw Error(ErrorNumber::type_mismatch); };
    CHECK(attempt([&] { target = failing(); }) == 13);
    CHECK(target == 3);
    CHECK(attempt([&] { target = 4; }) == 0);
    CHECK(target == 4);
}

TEST_CASE("only errors of the run time are passed over: a defect shows itself") {
    CHECK_THROWS_AS(attempt([] { throw std::string("defect"); }), std::string);
}
