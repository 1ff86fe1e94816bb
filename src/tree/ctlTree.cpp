#include "tree/ctlTree.hpp"

#include "automation/host_numbers.hpp"
#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "ground/option_table.hpp"
#include "runtime/conversion.hpp"

namespace qor {
namespace {

constexpr int ctrl_key = 2;  // alone
constexpr std::int32_t yellow = 65535;
constexpr std::int32_t red = 255;
constexpr std::int32_t green = 65280;

std::vector<Variant> items(const Object& owner, const MemberName& collection) {
    std::vector<Variant> found;
    attempt([&] { found = owner.get(collection).object().items(); });
    return found;
}

// False where the host does not say.
bool is_true(const Variant& object, const MemberName& property) {
    bool answer = false;
    attempt([&] { answer = to_boolean(object.get(property)); });
    return answer;
}

}  // namespace

ctlTree::ctlTree(Form& form, std::u16string name)
    : treQOR(form, std::move(name)),
      ID_mnuPopup({{u"ID_CloseAll", u"Close All"},
                   {u"ID_CloseChecked", u"Close Checked"},
                   {u"ID_SaveAll", u"Save All", true},
                   {u"ID_SaveChecked", u"Save Checked"},
                   {u"ID_DeleteWorksheet", u"Delete Worksheet", true},
                   {u"ID_RenameWorksheet", u"Rename Worksheet"},
                   {u"ID_PrintAll", u"Print All", true},
                   {u"ID_PrintChecked", u"Print Checked"}}) {
    treQOR.set_editable(true);
    treQOR.on_mouse_move = [this](const Pointer& pointer) {
        hit_test(pointer);
        begin_drag(pointer);
    };
    treQOR.on_mouse_down = [this](const Pointer& pointer) { press(pointer); };
    treQOR.on_mouse_up = [this](const Pointer& pointer) {
        if (pointer.button == MouseButton::right) show_menu();
    };
    treQOR.on_node_click = [this](TreeNode& node) { node_click(node); };
    treQOR.on_double_click = [this] { open_worksheet(); };
    treQOR.on_key_down = [this](int shift) {
        if (shift == ctrl_key) drag_as(Drag::copy);
    };
    treQOR.on_key_up = [this](int shift) {
        if (shift != ctrl_key) drag_as(Drag::move);
    };
    treQOR.on_drag_over = [this](const Pointer& pointer) { drag_over(pointer); };
    treQOR.on_drop = [this](const Pointer&) { drop(); };
    treQOR.on_after_label_edit = [this](const std::u16string& text, bool& cancel) { rename_worksheet(text, cancel); };
    treQOR.on_before_delete = [this](TreeNode& node, bool& cancel) { ask_to_delete(node, cancel); };
    ID_mnuPopup.on_command = [this](std::u16string_view id) { run_command(id); };
    set_check_width();
}

void ctlTree::LoadExcel() {
    attempt([&] { ShowHiddenWorkbooks = is_on(option::chkT3ShowHiddenWorkbooks); });
    attempt([&] { ShowHiddenWorksheets = is_on(option::chkT4ShowHiddenWorksheets); });
    forget_nodes();
    treQOR.clear();
    TreeNode& root = treQOR.add(nullptr, Relationship::child, u"ROOT", u"Excel Workbook Windows", unchecked);
    for (const Variant& workbook : items(gExcel, names::Workbooks)) load_workbook(workbook, root);
    set_check_width();
    root.set_expanded(true);
}

void ctlTree::load_workbook(const Variant& workbook, TreeNode& root) {
    std::int32_t file_format = 0;
    attempt([&] { file_format = to_long(workbook.get(names::FileFormat)); });
    if (numbers::file_format::is_add_in(file_format)) return;
    for (const Variant& window : items(workbook, names::Windows)) load_window(window, workbook, root);
}

void ctlTree::load_window(const Variant& window, const Variant& workbook, TreeNode& root) {
    bool visible = true;
    attempt([&] { visible = to_boolean(window.get(names::Visible)); });
    if (!visible && !ShowHiddenWorkbooks) return;

    TreeNode* node = nullptr;
    attempt([&] {
        const std::u16string caption = to_text(window.get(names::Caption));
        node = &treQOR.add(&root, Relationship::child, caption, caption, unchecked);
    });
    if (!node) return;  // a second window of the same caption, and no place for its sheets

    attempt([&] { node->set_tag(workbook.get(names::Name)); });
    if (!visible) node->set_italic(true);
    if (is_true(workbook, names::ReadOnly)) node->set_back_color(yellow);
    for (const Variant& worksheet : items(workbook, names::Worksheets)) load_worksheet(worksheet, *node);
}

void ctlTree::load_worksheet(const Variant& worksheet, TreeNode& window_node) {
    std::int32_t visible = numbers::visibility::visible;
    attempt([&] { visible = to_long(worksheet.get(names::Visible)); });
    if (visible != numbers::visibility::visible && !ShowHiddenWorksheets) return;

    TreeNode* node = nullptr;
    attempt([&] {
        const std::u16string name = to_text(worksheet.get(names::Name));
        node = &treQOR.add(&window_node, Relationship::child, window_node.text() + u'*' + name, name, unchecked);
    });
    if (!node) return;

    if (visible != numbers::visibility::visible) node->set_italic(true);
    if (is_true(worksheet, names::ProtectContents)) node->set_back_color(red);
    if (is_true(worksheet, names::ProtectDrawingObjects)) node->set_fore_color(green);
    if (is_true(worksheet, names::ProtectScenarios)) node->set_bold(true);
}

std::int32_t ctlTree::CountWorkbooks(std::u16string_view WorkbookName) const {
    std::int32_t count = 0;
    for (std::size_t index = 1; index <= treQOR.count(); ++index) {
        const auto* tag = treQOR.node(index).tag().get_if<std::u16string>();
        if (tag && *tag == WorkbookName) ++count;
    }
    return count;
}

std::int32_t ctlTree::CountCheckBoxes(std::int32_t Level) const {
    return static_cast<std::int32_t>(checked_nodes(Level).size());
}

std::vector<TreeNode*> ctlTree::checked_nodes(std::int32_t level) const {
    std::vector<TreeNode*> nodes;
    for (std::size_t index = 1; index <= treQOR.count(); ++index) {
        TreeNode& node = treQOR.node(index);
        if (node.level() == level && node.image() == checked) nodes.push_back(&node);
    }
    return nodes;
}

// Before any of them goes.
void ctlTree::forget_nodes() {
    HoverNode = DragSource = DropTarget = nullptr;
}

}  // namespace qor
