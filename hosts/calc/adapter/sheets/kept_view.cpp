#include "hosts/calc/adapter/sheets/kept_view.hpp"

#include <com/sun/star/sheet/XSelectedSheetsSupplier.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {

KeptView::KeptView(Book book) : book_(std::move(book)) {
    const Ref controller{book_.model()->getCurrentController()};
    selection_ = Ref<css::view::XSelectionSupplier>(controller)->getSelection();
    sheets_ = {book_.active_sheet().index()};
    for (const sal_Int32 sheet : Ref<css::sheet::XSelectedSheetsSupplier>(controller)->getSelectedSheets()) {
        if (sheet != sheets_.front()) sheets_.push_back(sheet);
    }
}

// Where it fails, the workbook or its window is gone.
KeptView::~KeptView() {
    attempt([&] {
        guarded([&] {
            const Ref controller{book_.model()->getCurrentController()};
            select_sheets(book_, {sheets_.front()}, true);
            Ref<css::view::XSelectionSupplier>(controller)->select(selection_);
            if (sheets_.size() > 1) select_sheets(book_, sheets_, true);
        });
    });
}

}  // namespace qor::calc
