#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {

Object selection_of(const Book& book, const Ref<css::frame::XController>& controller) {
    auto areas = selected_areas(book, controller);
    return areas ? make_range(*std::move(areas)) : Object();
}

Object active_cell_of(const Book& book, const Ref<css::frame::XController>& controller) {
    return make_range(active_cell(book, controller));
}

}  // namespace qor::calc
