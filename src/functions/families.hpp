#pragma once

#include <vector>

#include "functions/function.hpp"

// The families of worksheet functions, each in a file of its own.
namespace qor {

std::vector<FunctionDeclaration> common_size_functions();
std::vector<FunctionDeclaration> turnover_and_liquidity_functions();
std::vector<FunctionDeclaration> profitability_functions();
std::vector<FunctionDeclaration> cash_flow_functions();
std::vector<FunctionDeclaration> business_failure_functions();
std::vector<FunctionDeclaration> factory_cost_functions();
std::vector<FunctionDeclaration> variance_functions();
std::vector<FunctionDeclaration> break_even_and_leverage_functions();
std::vector<FunctionDeclaration> shares_and_market_functions();
std::vector<FunctionDeclaration> rate_of_return_functions();
std::vector<FunctionDeclaration> interest_and_present_value_functions();
std::vector<FunctionDeclaration> option_and_right_functions();
std::vector<FunctionDeclaration> inventory_and_cash_functions();
std::vector<FunctionDeclaration> workforce_functions();
std::vector<FunctionDeclaration> date_functions();
std::vector<FunctionDeclaration> number_and_name_functions();
std::vector<FunctionDeclaration> logical_functions();
std::vector<FunctionDeclaration> information_functions();
std::vector<FunctionDeclaration> reserved_name_functions();

}  // namespace qor
