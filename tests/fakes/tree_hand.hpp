#pragma once

#include <string_view>

#include "ui/tree_view.hpp"

// What a user's hand does to a tree.
namespace qor::fakes {

inline void open_branches(TreeView& tree) {
    for (std::size_t index = 1; index <= tree.count(); ++index) tree.node(index).set_expanded(true);
}

inline Pointer box_of(const TreeView& tree, std::u16string_view key) {
    return *tree.picture_point(*tree.find(key));
}
inline Pointer text_of(const TreeView& tree, std::u16string_view key) {
    return *tree.text_point(*tree.find(key));
}

inline Pointer held(Pointer place, MouseButton button = MouseButton::left, int shift = 0) {
    place.button = button;
    place.shift = shift;
    return place;
}
inline void click(TreeView& tree, const Pointer& place, MouseButton button = MouseButton::left) {
    tree.move_pointer(place);
    tree.press_pointer(held(place, button));
    tree.release_pointer(held(place, button));
}

}  // namespace qor::fakes
