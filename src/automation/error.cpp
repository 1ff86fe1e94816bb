#include "automation/error.hpp"

#include <algorithm>
#include <array>

namespace qor {
namespace {

struct Description {
    ErrorNumber number;
    std::u16string_view text;
};

constexpr std::array descriptions{
    Description{ErrorNumber::invalid_call, u"Invalid procedure call or argument"},
    Description{ErrorNumber::overflow, u"Overflow"},
    Description{ErrorNumber::subscript_out_of_range, u"Subscript out of range"},
    Description{ErrorNumber::division_by_zero, u"Division by zero"},
    Description{ErrorNumber::type_mismatch, u"Type mismatch"},
    Description{ErrorNumber::object_not_set, u"Object variable or With block variable not set"},
    Description{ErrorNumber::invalid_pattern, u"Invalid pattern string"},
    Description{ErrorNumber::invalid_use_of_null, u"Invalid use of Null"},
    Description{ErrorNumber::object_required, u"Object required"},
    Description{ErrorNumber::no_such_member, u"Object doesn't support this property or method"},
    Description{ErrorNumber::named_argument_not_found, u"Named argument not found"},
    Description{ErrorNumber::argument_not_optional, u"Argument not optional"},
    Description{ErrorNumber::wrong_argument_count, u"Wrong number of arguments or invalid property assignment"},
    Description{ErrorNumber::host_refused, u"Application-defined or object-defined error"},
};

}  // namespace

std::u16string_view standard_description(ErrorNumber number) noexcept {
    const auto* row = std::ranges::find(descriptions, number, &Description::number);
    return row == descriptions.end() ? u"Application-defined or object-defined error" : row->text;
}

Error::Error(std::int32_t number, std::u16string source, std::u16string description)
    : number_(number),
      source_(std::move(source)),
      description_(std::move(description)),
      what_("run-time error " + std::to_string(number)) {}

void Error::add_to_trace(std::u16string_view procedure) {
    source_.insert(0, 1, u'\r');
    source_.insert(0, procedure);
}

}  // namespace qor
