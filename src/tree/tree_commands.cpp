// The menu of the tree, and the double click.
#include <algorithm>
#include <array>

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "runtime/conversion.hpp"
#include "tree/ctlTree.hpp"
#include "tree/tree_nodes.hpp"
#include "workbooks/all_workbooks.hpp"

namespace qor {

void ctlTree::show_menu() {
    if (PointerOnLines || PointerOnCheck) return;
    if (HoverNode) {
        treQOR.select(HoverNode);
        for (const auto* id : {u"ID_DeleteWorksheet", u"ID_RenameWorksheet"})
            ID_mnuPopup.set_enabled(id, HoverNode->level() == 3);
    }
    treQOR.show_popup(ID_mnuPopup);
}

void ctlTree::run_command(std::u16string_view id) {
    struct Command {
        std::u16string_view id;
        void (*run)(ctlTree&);
    };
    static constexpr std::array commands{
        Command{u"ID_CloseAll",
                [](ctlTree& tree) {
                    attempt([] { CloseAllWorkbooks(); });
                    tree.RequestClose(true);
                }},
        Command{u"ID_CloseChecked", [](ctlTree& tree) { tree.close_checked(); }},
        Command{u"ID_SaveAll", [](ctlTree&) { attempt([] { SaveAllWorkbooks(); }); }},
        Command{u"ID_SaveChecked", [](ctlTree& tree) { tree.save_checked(); }},
        Command{u"ID_DeleteWorksheet", [](ctlTree& tree) { tree.treQOR.delete_selected(); }},
        Command{u"ID_RenameWorksheet", [](ctlTree& tree) { tree.treQOR.start_label_edit(); }},
        Command{u"ID_PrintAll", [](ctlTree&) { attempt([] { PrintAllWorksheets(); }); }},
        Command{u"ID_PrintChecked", [](ctlTree& tree) { tree.print_checked(); }},
    };
    std::ranges::find(commands, id, &Command::id)->run(*this);
}

void ctlTree::close_checked() {
    bool saves_files = false;
    attempt([&] { saves_files = saves_before_close(); });
    for (const TreeNode* node : checked_nodes(2)) attempt([&] { close_workbook(workbook_of(*node), saves_files); });
    RequestClose(true);
}

void ctlTree::save_checked() {
    for (const TreeNode* node : checked_nodes(2)) attempt([&] { save_workbook(workbook_of(*node)); });
}

void ctlTree::print_checked() {
    for (const TreeNode* node : checked_nodes(3)) attempt([&] { worksheet_of(*node).call(names::PrintOut); });
}

void ctlTree::open_worksheet() const {
    if (!HoverNode || PointerOnLines || PointerOnCheck || HoverNode->level() != 3) return;
    const auto show = [](const Object& object, std::int32_t state) {
        if (to_long(object.get(names::Visible)) != state) object.put(names::Visible, true);
    };
    attempt([&] {
        const TreeNode& window_node = *HoverNode->parent();
        const Object window = workbook_of(window_node).get(names::Windows, window_node.text());
        attempt([&] { show(window, to_long(true)); });
        window.call(names::Activate);
    });
    attempt([&] {
        const Object worksheet = worksheet_of(*HoverNode);
        attempt([&] { show(worksheet, numbers::visibility::visible); });
        worksheet.call(names::Activate);
    });
    RequestClose(true);
}

}  // namespace qor
