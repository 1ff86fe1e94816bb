#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/cells/cell_copy.hpp"
#include "hosts/calc/adapter/cells/cell_shift.hpp"
#include "hosts/calc/adapter/cells/clipboard.hpp"
#include "hosts/calc/adapter/objects/ranges/range_object.hpp"

namespace qor::calc {

void RangeObject::insert(std::optional<std::int32_t> shift) {
    insert_cells(areas_, shift);
}

void RangeObject::remove(std::optional<std::int32_t> shift) {
    delete_cells(areas_, shift);
}

void RangeObject::copy(const Variant& destination) {
    if (destination.is_missing()) {
        put_on_clipboard(areas_);
    } else {
        copy_cells(areas_, areas_of(destination));
    }
}

void RangeObject::paste_special(std::optional<std::int32_t> what) {
    paste_from_clipboard(areas_, what.value_or(numbers::paste::all));
}

}  // namespace qor::calc
