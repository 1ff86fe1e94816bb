#include "functions/registry.hpp"

#include <array>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include "functions/families.hpp"
#include "functions/registration_order.hpp"
#include "platform/text.hpp"

namespace qor {
namespace {

constexpr std::array families{
    common_size_functions,
    turnover_and_liquidity_functions,
    profitability_functions,
    cash_flow_functions,
    business_failure_functions,
    factory_cost_functions,
    variance_functions,
    break_even_and_leverage_functions,
    shares_and_market_functions,
    rate_of_return_functions,
    interest_and_present_value_functions,
    option_and_right_functions,
    inventory_and_cash_functions,
    workforce_functions,
    date_functions,
    number_and_name_functions,
    logical_functions,
    information_functions,
};

std::unordered_map<std::u16string_view, FunctionDeclaration> declared_functions() {
    std::unordered_map<std::u16string_view, FunctionDeclaration> declarations;
    for (const auto family : families) {
        for (FunctionDeclaration& declaration : family()) {
            const std::u16string_view name = declaration.name;
            if (!declarations.try_emplace(name, std::move(declaration)).second) {
                throw std::logic_error(to_utf8(name) + " is declared twice");
            }
        }
    }
    return declarations;
}

std::vector<Function> functions_in_order() {
    auto declarations = declared_functions();
    std::vector<Function> functions;
    functions.reserve(declarations.size());
    for (const RegistrationRun& run : registration_runs()) {
        for (const std::u16string_view name : run.names) {
            auto declared = declarations.extract(name);
            if (declared) functions.emplace_back(std::move(declared.mapped()), run.category);
        }
    }
    if (!declarations.empty()) {
        throw std::logic_error(to_utf8(declarations.begin()->first) + " has no place in the order of registration");
    }
    return functions;
}

std::unordered_map<std::u16string, const Function*> functions_by_upper_name() {
    std::unordered_map<std::u16string, const Function*> functions;
    for (const Function& function : worksheet_functions()) functions.emplace(to_upper(function.name), &function);
    return functions;
}

}  // namespace

std::span<const Function> worksheet_functions() {
    static const std::vector<Function> functions = functions_in_order();
    return functions;
}

std::span<const Function> reserved_functions() {
    static const std::vector<Function> functions = [] {
        std::vector<Function> reserved;
        for (FunctionDeclaration& declaration : reserved_name_functions()) {
            reserved.emplace_back(std::move(declaration), Category::financial);
        }
        return reserved;
    }();
    return functions;
}

const Function* find_function(std::u16string_view name) {
    static const auto functions = functions_by_upper_name();
    const auto found = functions.find(to_upper(name));
    return found == functions.end() ? nullptr : found->second;
}

}  // namespace qor
