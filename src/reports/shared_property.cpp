#include "reports/shared_property.hpp"

#include <algorithm>

namespace qor {
namespace {

template <class T>
bool are_equal(const Variant& left, const Variant& right) {
    const T* one = left.get_if<T>();
    const T* other = right.get_if<T>();
    return one && other && *one == *other;
}

}  // namespace

SharedProperty::SharedProperty(Object sheet, const CellArea& area, const MemberName& property)
    : sheet_(std::move(sheet)), area_(area), property_(property), columns_(static_cast<std::size_t>(area.columns)) {}

const Variant* SharedProperty::at(std::int32_t row, std::int32_t column) {
    if (!std::exchange(asked_, true)) of_all_ = ask(area_);
    if (of_all_) return *of_all_;
    Runs& runs = columns_[static_cast<std::size_t>(column - area_.column)];
    if (runs.empty()) find_runs({area_.row, column, area_.rows, 1}, runs);
    return std::ranges::lower_bound(runs, row, {}, &Run::last_row)->value;
}

// Nothing where the cells differ, and where the host refuses a range: its parts may be told.
std::optional<const Variant*> SharedProperty::ask(const CellArea& part) {
    Variant answer = Null{};
    attempt([&] { answer = range_of(sheet_, part).get(property_); });
    if (!answer.is(Variant::Kind::null)) return kept(std::move(answer));
    if (part.cells() == 1) return nullptr;
    return {};
}

void SharedProperty::find_runs(const CellArea& part, Runs& runs) {
    if (const auto value = ask(part)) {
        const std::int32_t last = part.row + part.rows - 1;
        if (!runs.empty() && runs.back().value == *value) {
            runs.back().last_row = last;
        } else {
            runs.push_back({last, *value});
        }
        return;
    }
    const auto [first, second] = part.halves();
    find_runs(first, runs);
    find_runs(second, runs);
}

const Variant* SharedProperty::kept(Variant value) {
    const auto known = std::ranges::find_if(values_, [&](const Variant& one) {
        return are_equal<std::u16string>(one, value) || are_equal<bool>(one, value);
    });
    return known == values_.end() ? &values_.emplace_back(std::move(value)) : &*known;
}

}  // namespace qor
