#include "services/CSort.hpp"

#include <array>
#include <optional>
#include <utility>

#include "runtime/compare.hpp"

namespace qor {
namespace {

using Elements = std::span<Variant>;

constexpr std::int64_t insertion_limit = 13;  // QuickSort leaves a part of so many elements to the insertion sort

// Both places counted.
struct Part {
    std::int64_t first;
    std::int64_t last;

    std::int64_t size() const { return last - first + 1; }
};

Variant& at(Elements array, std::int64_t place) {
    return array[static_cast<std::size_t>(place)];
}

bool is_less(const Variant& left, const Variant& right) {
    // The common case needs no protection, which would cost as much as the comparison.
    if (const auto* left_text = left.get_if<std::u16string>()) {
        if (const auto* right_text = right.get_if<std::u16string>()) return *left_text < *right_text;
    }
    bool result = false;
    attempt([&] { result = std::is_lt(compare(left, right)); });
    return result;
}

std::optional<Part> part_of(Elements array, std::int32_t first, std::int32_t last) {
    if (first < 0 || first >= last || static_cast<std::size_t>(last) >= array.size()) return std::nullopt;
    return Part{first, last};
}

// An insertion sort of the elements that lie a gap apart, for all of these rows at once.
void insert_in_strides(Elements array, Part part, std::int64_t gap) {
    for (std::int64_t i = part.first + gap; i <= part.last; ++i) {
        Variant element = std::move(at(array, i));
        std::int64_t hole = i;
        for (; hole - gap >= part.first && is_less(element, at(array, hole - gap)); hole -= gap) {
            at(array, hole) = std::move(at(array, hole - gap));
        }
        at(array, hole) = std::move(element);
    }
}

// The pivot's place: nothing before it is greater and nothing behind it is smaller.
std::int64_t partition(Elements array, Part part) {
    const auto [first, last] = part;
    // The first place is a hole from here on.
    Variant pivot = std::exchange(at(array, first + (last - first) / 2), std::move(at(array, first)));
    std::int64_t i = first + 1;
    std::int64_t j = last;
    for (;;) {
        while (i < j && is_less(at(array, i), pivot)) ++i;
        while (j >= i && is_less(pivot, at(array, j))) --j;
        if (i >= j) break;
        std::swap(at(array, i++), at(array, j--));
    }
    at(array, first) = std::move(at(array, j));
    at(array, j) = std::move(pivot);
    return j;
}

// The two sides of the pivot, the shorter one first.
std::pair<Part, Part> sides_of(Part part, std::int64_t pivot) {
    const Part left{part.first, pivot - 1};
    const Part right{pivot + 1, part.last};
    return left.size() > right.size() ? std::pair(right, left) : std::pair(left, right);
}

void quick_sort(Elements array, Part part) {
    while (part.size() > insertion_limit) {
        const auto [shorter, longer] = sides_of(part, partition(array, part));
        quick_sort(array, shorter);
        part = longer;
    }
    insert_in_strides(array, part, 1);
}

}  // namespace

void CSort::InsertSort(std::span<Variant> array, std::int32_t first, std::int32_t last) {
    if (const auto part = part_of(array, first, last)) insert_in_strides(array, *part, 1);
}

void CSort::ShellSort(std::span<Variant> array, std::int32_t first, std::int32_t last) {
    const auto part = part_of(array, first, last);
    if (!part) return;
    std::int64_t gap = 1;
    if (part->size() >= 14) {
        while (gap < part->size()) gap = 3 * gap + 1;
        gap = gap / 3 / 3;
    }
    for (; gap >= 1; gap /= 3) insert_in_strides(array, *part, gap);
}

void CSort::QuickSort(std::span<Variant> array, std::int32_t first, std::int32_t last) {
    if (const auto part = part_of(array, first, last)) quick_sort(array, *part);
}

void CSort::QSort(std::span<Variant> array, std::int32_t first, std::int32_t last) {
    const auto whole = part_of(array, first, last);
    if (!whole) return;
    // The shorter side always comes next, so that each pending part is at most half of the one below it.
    std::array<Part, 33> pending{*whole};
    for (std::size_t count = 1; count > 0;) {
        Part part = pending[--count];
        while (part.size() > 1) {
            const auto [shorter, longer] = sides_of(part, partition(array, part));
            if (longer.size() > 1) pending[count++] = longer;
            part = shorter;
        }
    }
}

}  // namespace qor
