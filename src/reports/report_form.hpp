#pragma once

#include <span>

#include "reports/report_fields.hpp"
#include "tree/tree_form.hpp"

namespace qor {

// The dialog of a report: the list of its fields on the left, the tree of workbooks and worksheets on the right.
// It knows fields and their order; the tree's member knows the host. Nothing of the user's choice is kept.
class ReportForm : public TreeForm {
  public:
    TreeView treCellInfo{*this, u"treCellInfo"};
    ctlTree ctlTreeView{*this, u"ctlTreeView"};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};

    std::u16string_view layout() const noexcept final { return u"report"; }

  protected:
    explicit ReportForm(std::u16string_view name);

    virtual ReportFields all_fields() const = 0;
    virtual void write_report(std::span<const std::u16string> headings) = 0;

    void on_load() final;
    void on_unload() final;

  private:
    void fill_list();
    void pointer_down(const Pointer& pointer);
    void pointer_move(const Pointer& pointer);
    void drag_over(const Pointer& pointer);
    void drop();
    void work() final;

    ReportFields fields_;
    const TreeNode* dragged_ = nullptr;
};

}  // namespace qor
