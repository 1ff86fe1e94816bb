#include "tests/excel/native/calls.hpp"

#include <algorithm>
#include <array>

#include "functions/registry.hpp"
#include "runtime/conversion.hpp"

namespace qor::test {
namespace {

// What the first two give is the machine's, and what the last one gives depends on the calls before it.
constexpr std::array<std::u16string_view, 3> not_compared{u"DRIVEINFO", u"SYSINFO", u"HundredsTensUnits"};

FunctionCall computed(const Function& function, std::vector<Variant> arguments) {
    FunctionCall call{function.member, std::move(arguments), {}, 0};
    std::vector<Variant> given = call.arguments;
    call.error = attempt([&] { call.result = function.invoke(std::span(given)); });
    return call;
}

std::vector<Variant> as_texts(std::vector<Variant> arguments) {
    for (Variant& argument : arguments)
        if (argument.is(Variant::Kind::double_float) || argument.is(Variant::Kind::long_integer))
            argument = to_text(argument);
    return arguments;
}

void add_calls(const Function& function, const std::vector<Variant>& arguments, std::vector<FunctionCall>& calls) {
    calls.push_back(computed(function, arguments));
    calls.push_back(computed(function, as_texts(arguments)));
    for (std::size_t count = 0; count < arguments.size(); ++count)
        calls.push_back(
            computed(function, {arguments.begin(), arguments.begin() + static_cast<std::ptrdiff_t>(count)}));
    std::vector<Variant> too_many = arguments;
    too_many.resize(function.parameters.size() + 1, 1);
    calls.push_back(computed(function, std::move(too_many)));
    if (arguments.empty()) return;
    for (const Variant& wrong : std::array<Variant, 6>{u"no number", Null{}, Empty{}, true, Date{38047.5}, u""}) {
        std::vector<Variant> changed = arguments;
        changed.front() = wrong;
        calls.push_back(computed(function, std::move(changed)));
    }
}

}  // namespace

std::vector<FunctionCall> function_calls() {
    std::vector<FunctionCall> calls;
    for (const auto functions : {worksheet_functions(), reserved_functions()}) {
        for (const Function& function : functions) {
            if (std::ranges::find(not_compared, function.name) != not_compared.end()) continue;
            for (const Example& example : function.examples) add_calls(function, example.arguments, calls);
            if (function.examples.empty())
                calls.push_back(computed(function, std::vector<Variant>(function.parameters.size(), 1.0)));
        }
    }
    return calls;
}

}  // namespace qor::test
