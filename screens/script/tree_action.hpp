#pragma once

#include "screens/script/step.hpp"
#include "ui/tree_view.hpp"

namespace qor {

// What a user does in a tree. A node is named by its key as "node", or by its text as "row"; it comes into sight first.

// Clicks into its box; with "to" only if its state is another.
void check_node(const Step& step, TreeView& tree);
void double_click_node(const Step& step, TreeView& tree);
// Drags it "onto" another one, named in the same way; with "copy" true, while Ctrl is held.
void drag_node(const Step& step, TreeView& tree);
// Chooses the command of the caption "choose" from the menu that the right button shows on the node; without a node,
// below all of them.
void choose_command(const Step& step, TreeView& tree);
// Types "to" over the text that is being edited; null leaves it.
void type_over_label(const Step& step, TreeView& tree);
// Selects it and presses the Delete key.
void delete_node(const Step& step, TreeView& tree);

}  // namespace qor
