#include "hosts/calc/adapter/ground/window_layout.hpp"

#include <algorithm>
#include <cmath>

#include "automation/error.hpp"

namespace qor::calc {
namespace {

constexpr std::int32_t cascade_step = 30;  // about the height of a window's title bar

// The part of a length that is one of `count` equal ones; together they are the whole length.
std::int32_t share(std::int32_t length, std::int32_t place, std::int32_t count) {
    return length * (place + 1) / count - length * place / count;
}

std::vector<WindowPlace> in_rows(std::int32_t count, const WindowPlace& area) {
    std::vector<WindowPlace> result;
    result.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i) {
        result.push_back({area.x, area.y + area.height * i / count, area.width, share(area.height, i, count)});
    }
    return result;
}

std::vector<WindowPlace> in_columns(std::int32_t count, const WindowPlace& area) {
    std::vector<WindowPlace> result;
    result.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i) {
        result.push_back({area.x + area.width * i / count, area.y, share(area.width, i, count), area.height});
    }
    return result;
}

// As many columns as make the windows about as wide as high; the last columns take what is left over.
std::vector<WindowPlace> in_tiles(std::int32_t count, const WindowPlace& area) {
    const auto columns = static_cast<std::int32_t>(std::ceil(std::sqrt(count)));
    const std::int32_t with_one_more = count % columns;
    std::vector<WindowPlace> result;
    const std::vector<WindowPlace> places = in_columns(columns, area);
    for (std::int32_t i = 0; i < columns; ++i) {
        const std::int32_t rows = count / columns + (i >= columns - with_one_more ? 1 : 0);
        std::ranges::copy(in_rows(rows, places[static_cast<std::size_t>(i)]), std::back_inserter(result));
    }
    return result;
}

std::vector<WindowPlace> in_cascade(std::int32_t count, const WindowPlace& area) {
    // Many windows stand closer, so that none gets smaller than half of the area.
    const std::int32_t steps = std::max(count - 1, 1);
    const std::int32_t step = std::min({cascade_step, area.width / 2 / steps, area.height / 2 / steps});
    const std::int32_t farthest = step * (count - 1);
    std::vector<WindowPlace> result;
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t offset = farthest - step * i;
        result.push_back({area.x + offset, area.y + offset, area.width - farthest, area.height - farthest});
    }
    return result;
}

}  // namespace

std::vector<WindowPlace> arranged(ArrangeStyle style, std::size_t count, const WindowPlace& area) {
    if (count == 0) return {};
    const auto windows = static_cast<std::int32_t>(count);
    switch (style) {
        case ArrangeStyle::tiled:
            return in_tiles(windows, area);
        case ArrangeStyle::horizontal:
            return in_rows(windows, area);
        case ArrangeStyle::vertical:
            return in_columns(windows, area);
        case ArrangeStyle::cascade:
            return in_cascade(windows, area);
    }
    throw Error(ErrorNumber::host_refused);
}

}  // namespace qor::calc
