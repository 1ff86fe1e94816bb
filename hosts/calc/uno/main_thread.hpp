#pragma once

#include <functional>

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// Runs the work on the office's main thread, where documents and windows may be touched, and waits for its end. What
// the work throws is thrown here. Called on the main thread, it runs the work at once.
void run_on_main_thread(const Context& context, const std::function<void()>& work);

// Has the office's main thread do the work when it is next free, and returns at once. What the work throws is lost: it
// has no caller. An office that ends does it no more.
void post_to_main_thread(const Context& context, std::function<void()> work);

bool on_main_thread() noexcept;

}  // namespace qor::calc
