#pragma once

#include <span>

#include "reports/report_fields.hpp"
#include "tree/tree_form.hpp"

namespace qor {

// What makes the dialog of a report its own.
struct ReportKind {
    std::u16string_view form;
    ReportFields (*fields)();  // in their starting order
    void (*write)(ctlTree& tree, std::span<const std::u16string> headings);
};

// The dialog of a report: the list of its fields on the left, the tree of workbooks and worksheets on the right.
// It knows fields and their order; what writes the report knows the host. Nothing of the user's choice is kept.
class ReportForm : public TreeForm {
  public:
    explicit ReportForm(const ReportKind& kind);

    TreeView treCellInfo{*this, u"treCellInfo"};
    ctlTree ctlTreeView{*this, u"ctlTreeView"};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};

    std::u16string_view layout() const noexcept final { return u"report"; }

  protected:
    void on_load() final;
    void on_unload() final;

  private:
    void fill_list();
    void pointer_down(const Pointer& pointer);
    void pointer_move(const Pointer& pointer);
    void drag_over(const Pointer& pointer);
    void drop();
    void work() final;

    const ReportKind& kind_;
    ReportFields fields_;
    const TreeNode* dragged_ = nullptr;
};

}  // namespace qor
