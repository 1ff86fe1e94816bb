#pragma once

#include <cstdint>
#include <span>

#include "automation/variant.hpp"

namespace qor {

// Sorts the elements of an array in place and in ascending order, from the first to the last place, both counted. Texts
// are ordered by their code units; elements that cannot be compared count as neither greater nor smaller. Only
// InsertSort keeps equal elements in their order. Places outside of the array leave it as it is. Nothing is raised.
class CSort {
  public:
    static void InsertSort(std::span<Variant> array, std::int32_t first, std::int32_t last);
    static void ShellSort(std::span<Variant> array, std::int32_t first, std::int32_t last);
    static void QuickSort(std::span<Variant> array, std::int32_t first, std::int32_t last);
    static void QSort(std::span<Variant> array, std::int32_t first, std::int32_t last);
};

}  // namespace qor
