#pragma once

#include <com/sun/star/drawing/XShape.hpp>

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// What lies on a sheet beside its cells.
struct DrawnObject {
    Sheet sheet;
    Ref<css::drawing::XShape> shape;

    // The one it was given, else the one under which the office keeps what is embedded.
    std::u16string name() const;
    void set_name(const std::u16string& name) const;
    // Selects it in the workbook's current window, where its sheet comes to the front.
    void select() const;
    void remove() const;
    // Raises 1004 when it is gone.
    void require_alive() const;
};

// Charts are embedded objects of one class; all others, linked ones too, are foreign.
enum class Embedded : std::uint8_t { chart, other };
std::vector<DrawnObject> embedded_objects(const Sheet& sheet, Embedded kind);

// How many objects there are, comments among them.
std::int32_t count_drawn_objects(const Sheet& sheet);

// The object that is selected alone in the workbook's current window; none when something else is.
std::optional<DrawnObject> selected_object(const Book& book);

}  // namespace qor::calc
