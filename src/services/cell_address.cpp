#include "services/cell_address.hpp"

#include "automation/variant.hpp"
#include "runtime/value_tests.hpp"

namespace qor {
namespace {

constexpr std::u16string_view digits = u"0123456789";

std::u16string doubled(std::u16string_view part) {
    if (part.empty()) return {};
    return std::u16string(part) + u':' + std::u16string(part);
}

}  // namespace

std::u16string relative_address(std::int32_t row, std::int32_t column) {
    std::u16string address;
    for (; row > 0; row /= 10) address.insert(address.begin(), static_cast<char16_t>(u'0' + row % 10));
    for (; column > 0; column = (column - 1) / 26) {
        address.insert(address.begin(), static_cast<char16_t>(u'A' + (column - 1) % 26));
    }
    return address;
}

std::u16string_view first_area(std::u16string_view address) {
    return address.substr(0, address.find(u','));
}

std::u16string_view first_cell(std::u16string_view address) {
    return address.substr(0, address.find(u':'));
}

std::u16string whole_column(std::u16string_view address) {
    const std::u16string_view base = first_cell(address);
    const std::u16string_view column = base.substr(0, base.find_first_of(digits));
    return doubled(column.empty() ? base : column);
}

std::u16string whole_row(std::u16string_view address) {
    const std::u16string_view base = first_cell(address);
    return doubled(is_numeric(base) ? base : base.substr(base.find_last_not_of(digits) + 1));
}

}  // namespace qor
