#pragma once

#include "ui/form.hpp"
#include "ui/tree_view.hpp"

namespace qor {

// The tree of open workbook windows (level 2) and their worksheets (level 3) under one root, with a check box on every
// node: its picture, 1 unchecked or 2 checked. The tree is a snapshot; only LoadExcel looks at the host again.
// A node of level 2 is a window: a workbook with two windows has two, both tagged with the workbook's name.
// No member raises: a statement that the host refuses is passed over, and the next one runs.
class ctlTree {
  public:
    static constexpr int unchecked = 1;
    static constexpr int checked = 2;

    ctlTree(Form& form, std::u16string name);

    TreeView treQOR;

    // Empties the tree and fills it from gExcel.
    void LoadExcel();

    // How many windows of the workbook the tree shows. The name is compared with its case.
    std::int32_t CountWorkbooks(std::u16string_view WorkbookName) const;
    // How many nodes of that level are checked.
    std::int32_t CountCheckBoxes(std::int32_t Level) const;

    // Those of that level, in index order.
    std::vector<TreeNode*> checked_nodes(std::int32_t level) const;

    // The form is to close.
    Event<bool> RequestClose;
    // After every click into a check box: whether anything is checked.
    Event<bool> CheckStateChanged;
    // After each item of a job on what is checked: done, total.
    Event<std::int32_t, std::int32_t> Progress;

  private:
    enum class Drag : std::uint8_t { none, move, copy };

    void load_workbook(const Variant& workbook, TreeNode& root);
    void load_window(const Variant& window, const Variant& workbook, TreeNode& root);
    void load_worksheet(const Variant& worksheet, TreeNode& window_node);

    void set_check_width();
    void hit_test(const Pointer& pointer);
    void node_click(TreeNode& node);
    void propagate(TreeNode& node);
    void propagate_root(const TreeNode& root);
    void propagate_window(TreeNode& window_node);
    void propagate_worksheet(TreeNode& sheet_node);
    bool is_window_checked() const;

    void forget_nodes();
    void show_menu();
    void run_command(std::u16string_view id);
    void close_checked();
    void save_checked();
    void print_checked();
    void rename_worksheet(const std::u16string& text, bool& cancel);
    void ask_to_delete(TreeNode& node, bool& cancel);
    void delete_worksheet(TreeNode& node);
    void uncheck(TreeNode& node);
    void open_worksheet() const;

    void press(const Pointer& pointer);
    void begin_drag(const Pointer& pointer);
    void drag_as(Drag mode);
    void drag_over(const Pointer& pointer);
    void drop();
    void place_dragged(const TreeNode& target) const;

    bool ShowHiddenWorkbooks = false;
    bool ShowHiddenWorksheets = false;
    // As the last move of the mouse left them.
    bool PointerOnLines = false;
    bool PointerOnCheck = false;
    TreeNode* HoverNode = nullptr;
    std::int32_t CheckWidth = 0;  // twips

    Drag DragMode = Drag::none;
    TreeNode* DragSource = nullptr;
    TreeNode* DropTarget = nullptr;
    PopupMenu ID_mnuPopup;
};

}  // namespace qor
