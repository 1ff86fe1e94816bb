// Worksheets renamed and deleted in the tree.
#include <optional>

#include "automation/member_names.hpp"
#include "ground/host_state.hpp"
#include "ground/message.hpp"
#include "runtime/conversion.hpp"
#include "tree/ctlTree.hpp"
#include "tree/tree_nodes.hpp"

namespace qor {

// The twins of the node under other windows keep the old name until the tree is loaded again.
void ctlTree::rename_worksheet(const std::u16string& text, bool& cancel) {
    cancel = true;
    TreeNode& node = *treQOR.edited();
    if (node.level() != 3) return;
    attempt([&] {
        worksheet_of(node).put(names::Name, text);
        node.set_text(text);
        node.set_key(node.parent()->text() + u'*' + text);
        cancel = false;
    });
}

void ctlTree::ask_to_delete(TreeNode& node, bool& cancel) {
    cancel = true;
    if (node.level() != 3) return;
    if (node.parent()->child_count() < 2) {
        show_message(u"Cannot delete since a workbook must have at least one worksheet.", MessageIcon::critical);
        return;
    }
    const MessageAnswer answer = show_message(
        u"Choose OK to confirm the deletion of worksheet named " + node.text() + u".  Otherwise choose Cancel.",
        MessageIcon::none, MessageButtons::ok_cancel);
    if (answer != MessageAnswer::ok) return;
    cancel = false;
    delete_worksheet(node);
}

// The tree takes the node itself away afterwards, whether or not the host has deleted the worksheet.
void ctlTree::delete_worksheet(TreeNode& node) {
    {
        std::optional<SwitchedOff> display_alerts;
        attempt([&] { display_alerts.emplace(names::DisplayAlerts); });
        attempt([&] { worksheet_of(node).call(names::Delete); });
    }
    forget_nodes();
    uncheck(node);
    const auto is_twin = [&](const TreeNode& other) {
        return other.level() == 3 && other.text() == node.text() && other.parent() != node.parent() &&
               to_text(other.parent()->tag()) == to_text(node.parent()->tag());
    };
    for (std::size_t index = 1; index <= treQOR.count(); ++index) {
        TreeNode& other = treQOR.node(index);
        if (!is_twin(other)) continue;
        uncheck(other);
        treQOR.remove(index);
    }
}

void ctlTree::uncheck(TreeNode& node) {
    node.set_image(unchecked);
    propagate(node);
}

}  // namespace qor
