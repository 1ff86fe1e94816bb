#include "reports/report_fields.hpp"

#include <algorithm>

namespace qor {

void ReportFields::add(std::u16string_view key, std::u16string_view heading) {
    const auto place = static_cast<std::int32_t>(entries_.size());
    entries_.push_back(
        {.Heading = std::u16string(heading), .Key = std::u16string(key), .Order = place, .NewOrder = place});
}

const ReportField* ReportFields::find(std::u16string_view key) const noexcept {
    const auto entry = std::ranges::find(entries_, key, &ReportField::Key);
    return entry == entries_.end() ? nullptr : &*entry;
}

std::int32_t ReportFields::toggle(std::u16string_view key) {
    ReportField& entry = *std::ranges::find(entries_, key, &ReportField::Key);
    entry.CheckState = entry.CheckState == ReportField::checked ? ReportField::unchecked : ReportField::checked;
    return entry.CheckState;
}

void ReportFields::move(std::int32_t dragged, std::int32_t target) {
    const std::int32_t step = dragged > target ? 1 : -1;
    const auto [low, high] = std::minmax(dragged, target);
    for (ReportField& entry : entries_) {
        const bool shifts = low <= entry.Order && entry.Order <= high;
        if (entry.Order == dragged) {
            entry.NewOrder = target;
        } else {
            entry.NewOrder = shifts ? entry.Order + step : entry.Order;
        }
    }
    for (ReportField& entry : entries_) entry.Order = entry.NewOrder;
    std::ranges::sort(entries_, {}, &ReportField::Order);
}

std::vector<std::u16string> ReportFields::checked_headings() const {
    std::vector<std::u16string> headings;
    for (const ReportField& entry : entries_) {
        if (entry.CheckState == ReportField::checked) headings.push_back(entry.Heading);
    }
    return headings;
}

}  // namespace qor
