#pragma once

#include <memory>

namespace qor::calc {

class Bars;

// Keeps the bars until the office ends, tells them of every window that comes, and of the end.
void keep_until_end(const std::shared_ptr<Bars>& bars);

}  // namespace qor::calc
