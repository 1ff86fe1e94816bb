#pragma once

#include <string>
#include <vector>

#include "automation/variant.hpp"

namespace qor::test {

// A call as a client writes it and what comes of it.
struct FunctionCall {
    std::u16string_view function;
    std::vector<Variant> arguments;
    Variant result;
    std::int32_t error = 0;  // 0: none
};

// Every worksheet function: its examples, the same with numbers as texts, with trailing arguments left out, with one
// too many, and with what is no number. Those whose results are the machine's own are not among them.
std::vector<FunctionCall> function_calls();

}  // namespace qor::test
