#pragma once

#include <chrono>
#include <functional>

namespace qor::calc::tests {

// Lets the office do what it has put off: callbacks, drawing, what a pointer or a key has caused.
void let_office_work(std::chrono::milliseconds time = std::chrono::milliseconds(0));

// Lets the office work until that holds, for some seconds at most; says whether it held.
bool office_comes_to(const std::function<bool()>& condition);

}  // namespace qor::calc::tests
