#include <doctest/doctest.h>

#include "platform/text.hpp"
#include "tests/functions/call.hpp"

using namespace qor;

namespace {

using Names = std::vector<std::u16string_view>;

const Function& reserved(std::u16string_view name) {
    for (const Function& function : reserved_functions()) {
        if (function.name == name) return function;
    }
    FAIL("not reserved: " << to_utf8(name));
    std::abort();
}

}  // namespace

TEST_CASE("three names are reserved and no worksheet functions") {
    REQUIRE(reserved_functions().size() == 3);
    for (const Function& function : reserved_functions()) CHECK(find_function(function.name) == nullptr);
}

TEST_CASE("reserved names have the parameters that callers know") {
    CHECK((reserved(u"MACRS").parameter_names() ==
           Names{u"dMeth", u"dPercent", u"dConvention", u"dLife", u"dCosts", u"dSec179", u"dBusPerc", u"dDeprPeriod",
                 u"vInService", u"vOutService", u"vFiscalYrEnd", u"vShortYrBeg", u"dDepRecMethSTYr", u"lDecPlace"}));
    CHECK((reserved(u"SEC179").parameter_names() ==
           Names{u"dTtlCov", u"dEEContribution", u"dYear", u"vBirthDate", u"vFromDate", u"vToDate", u"lDecPlace"}));
    CHECK((reserved(u"HundredsTensUnits").parameter_names() == Names{u"TestValue", u"UseAnd"}));
    CHECK(reserved(u"HundredsTensUnits").parameters[1].is_by_reference);
    for (const std::u16string_view name : {u"MACRS", u"SEC179"}) {
        const Function& function = reserved(name);
        for (const Parameter& parameter : function.parameters) {
            CAPTURE(to_utf8(parameter.name));
            const bool is_variant = parameter.name.front() == u'v';
            const bool is_places = parameter.name.front() == u'l';
            CHECK(parameter.kind == (is_variant  ? ValueKind::variant
                                     : is_places ? ValueKind::whole_number
                                                 : ValueKind::number));
            CHECK(parameter.is_optional() ==
                  (is_places || parameter.name == u"vShortYrBeg" || parameter.name == u"dDepRecMethSTYr"));
            CHECK_FALSE(parameter.is_by_reference);
        }
    }
}

TEST_CASE("names without a method give 0 for any arguments") {
    const auto gives_zero = [](std::u16string_view name, std::vector<Variant> arguments) {
        const Variant result = reserved(name).invoke(std::move(arguments));
        return result.is(Variant::Kind::double_float) && *result.get_if<double>() == 0;
    };
    CHECK(gives_zero(u"MACRS", {1, 1, 1, 5, 10000, 0, 1, 2, u"1/1/2001", Empty{}, ErrorValue{2042}}));
    CHECK(gives_zero(u"MACRS", {1e308, -1, 0, 0, 0, 0, 0, 0, 1, 2, 3, Missing{}, Missing{}, -1}));
    CHECK(gives_zero(u"MACRS", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}));
    CHECK(gives_zero(u"SEC179", {1000, 50, 2004, u"2/3/1960", u"1/1/2004", u"12/31/2004"}));
    CHECK(gives_zero(u"SEC179", {1000, 50, 2004, Null{}, u"never", Empty{}, -1}));
}

TEST_CASE("the words of a number below a thousand are those of the table") {
    const auto words = [](std::vector<Variant> arguments) {
        return to_text(reserved(u"HundredsTensUnits").invoke(std::move(arguments)));
    };
    CHECK((words({999}) == u"Nine Hundred Ninety Nine "));
    CHECK((words({20}) == u"Twenty "));
    CHECK((words({105, true}) == u"One Hundred and Five "));
    CHECK(words({0}).empty());
    CHECK(words({5000}).empty());
    CHECK(words({40000}).empty());
}
