#pragma once

#include <com/sun/star/util/DateTime.hpp>
#include <optional>

#include "automation/variant.hpp"

namespace qor::calc {

// None for a date that was never set.
std::optional<Date> date_of(const css::util::DateTime& time);
css::util::DateTime office_time(Date date);

}  // namespace qor::calc
