#include <doctest/doctest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "functions/registration_order.hpp"
#include "functions/registry.hpp"
#include "platform/text.hpp"
#include "runtime/compare.hpp"
#include "tests/runtime/country.hpp"
#include "tests/support/raised.hpp"

using namespace qor;

namespace {

std::map<std::u16string_view, std::int32_t> help_ids_by_rule() {
    // Ids rise by 5 down a run; these few do not follow on the name before them.
    const std::map<std::u16string_view, std::int32_t> apart{
        {u"APT", 100010},        {u"CAGR", 100145},     {u"EBITDA", 100283},     {u"EOQ", 100285},
        {u"SHARPE", 100778},     {u"SDC", 100780},      {u"HRA", 120000},        {u"EDATEADD", 110005},
        {u"BETWEEN", 140000},    {u"CELLINFO", 130000}, {u"FORMATNAME", 160000}, {u"WRKBKINFO", 130025},
        {u"WRKSHTINFO", 130020},
    };
    std::map<std::u16string_view, std::int32_t> help_ids;
    std::int32_t help_id = 0;
    for (const RegistrationRun& run : registration_runs()) {
        for (const std::u16string_view name : run.names) {
            const auto row = apart.find(name);
            help_id = row == apart.end() ? help_id + 5 : row->second;
            help_ids[name] = help_id;
        }
    }
    return help_ids;
}

constexpr ValueKind kind_by_prefix(char16_t prefix) {
    switch (prefix) {
        case u'd':
            return ValueKind::number;
        case u'l':
            return ValueKind::whole_number;
        case u's':
            return ValueKind::text;
        case u'b':
            return ValueKind::boolean;
        default:
            return ValueKind::variant;
    }
}

bool is_required_number(const Parameter& parameter) {
    const bool is_number = parameter.kind == ValueKind::number || parameter.kind == ValueKind::whole_number;
    return is_number && !parameter.is_optional();
}

bool is_changed_by_exchange(const Function& function, std::vector<Variant> arguments, std::size_t left,
                            std::size_t right) {
    const Variant result = function.invoke(arguments);
    std::swap(arguments[left], arguments[right]);
    return !equals(result, function.invoke(std::move(arguments)));
}

// A sum or a product does not tell its terms apart, and neither does an average.
bool are_exchangeable(const Function& function, std::size_t left, std::size_t right) {
    if (!is_required_number(function.parameters[left]) || !is_required_number(function.parameters[right])) return true;
    std::vector<Variant> arguments;
    for (std::size_t place = 0; place < function.parameters.size(); ++place) {
        if (function.parameters[place].is_optional()) break;
        arguments.emplace_back(static_cast<double>(3 + place * place));
    }
    return !is_changed_by_exchange(function, std::move(arguments), left, right);
}

bool is_told_apart(const Function& function, std::size_t left, std::size_t right) {
    return std::ranges::any_of(function.examples, [&](const Example& example) {
        return is_changed_by_exchange(function, example.arguments, left, right);
    });
}

}  // namespace

TEST_CASE("the order of registration names 207 functions once") {
    std::set<std::u16string_view> names;
    std::size_t count = 0;
    for (const RegistrationRun& run : registration_runs()) {
        names.insert(run.names.begin(), run.names.end());
        count += run.names.size();
    }
    CHECK(count == 207);
    CHECK(names.size() == 207);
    CHECK((registration_runs().front().names.front() == u"APT"));
    CHECK((registration_runs().front().names.back() == u"WCapital"));
    CHECK(registration_runs().front().names.size() == 173);
}

TEST_CASE("the table stands in the order of registration") {
    auto function = worksheet_functions().begin();
    for (const RegistrationRun& run : registration_runs()) {
        for (const std::u16string_view name : run.names) {
            if (function == worksheet_functions().end() || function->name != name) continue;
            CHECK(function->category == run.category);
            ++function;
        }
    }
    CHECK((function == worksheet_functions().end()));
}

TEST_CASE("every function carries the help id of its place") {
    const auto help_ids = help_ids_by_rule();
    std::set<std::int32_t> seen;
    for (const Function& function : worksheet_functions()) {
        CAPTURE(to_utf8(function.name));
        CHECK(function.help_id == help_ids.at(function.name));
        CHECK(seen.insert(function.help_id).second);
    }
}

TEST_CASE("every function is fit to be shown to a user") {
    for (const Function& function : worksheet_functions()) {
        CAPTURE(to_utf8(function.name));
        CHECK(function.description.starts_with(u"Returns "));
        CHECK(function.description.ends_with(u'.'));
        CHECK(function.description.size() <= 255);  // as much as the host's dialog takes
        CHECK(equal_ignoring_case(function.name, function.member));
        CHECK_FALSE(function.examples.empty());
        std::set<std::u16string_view> names;
        bool optional_before = false;
        for (const Parameter& parameter : function.parameters) {
            CAPTURE(to_utf8(parameter.name));
            CHECK(parameter.name.size() >= 2);
            CHECK(parameter.kind == kind_by_prefix(parameter.name.front()));
            CHECK(names.insert(parameter.name).second);
            CHECK_FALSE((optional_before && !parameter.is_optional()));
            optional_before = parameter.is_optional();
        }
        const bool has_places = !function.parameters.empty() && function.parameters.back().name == u"lDecPlace";
        CHECK(has_places == (function.rounding != Rounding::none));
        CHECK((function.parameter_names().size() == function.parameters.size()));
    }
}

TEST_CASE("every example comes out") {
    const test::Country english(english_locale());
    for (const Function& function : worksheet_functions()) {
        for (const Example& example : function.examples) {
            const Variant result = function.invoke(example.arguments);
            INFO(to_utf8(function.name), " gives ", to_utf8(to_text(result)));
            CHECK(result.kind() == example.result.kind());
            CHECK(equals(result, example.result));
        }
    }
}

TEST_CASE("the examples show which argument is which") {
    for (const Function& function : worksheet_functions()) {
        for (std::size_t left = 0; left < function.parameters.size(); ++left) {
            for (std::size_t right = left + 1; right < function.parameters.size(); ++right) {
                if (!are_exchangeable(function, left, right)) {
                    INFO(to_utf8(function.name), ": ", to_utf8(function.parameters[left].name), " and ",
                         to_utf8(function.parameters[right].name));
                    CHECK(is_told_apart(function, left, right));
                }
            }
        }
    }
}

TEST_CASE("no argument that is a number makes an error leave a function") {
    const std::vector<Variant> numbers{0, 1, -1, Empty{}, true, 1e308, -1e308, 5e-324, 1e-308, u"7"};
    const std::vector<Variant> whole_numbers{0, 365, -1, Empty{}, true, 2147483647, u"7"};
    for (const Function& function : worksheet_functions()) {
        CAPTURE(to_utf8(function.name));
        for (std::size_t first = 0; first < numbers.size(); ++first) {
            for (std::size_t step = 0; step < numbers.size(); ++step) {
                std::vector<Variant> arguments;
                for (std::size_t place = 0; place < function.parameters.size(); ++place) {
                    const bool is_whole = function.parameters[place].kind == ValueKind::whole_number;
                    const auto& values = is_whole ? whole_numbers : numbers;
                    arguments.push_back(values[(first + step * place) % values.size()]);
                }
                CHECK(test::raised([&] { function.invoke(arguments); }) == 0);
            }
        }
    }
}

TEST_CASE("a function is found by its name in any case") {
    for (const Function& function : worksheet_functions()) {
        CHECK(find_function(function.name) == &function);
        CHECK(find_function(to_lower(function.name)) == &function);
        CHECK(find_function(function.member) == &function);
    }
    CHECK(find_function(u"") == nullptr);
    CHECK(find_function(u"ARAX") == nullptr);
    CHECK(find_function(u"MACRS") == nullptr);
}
