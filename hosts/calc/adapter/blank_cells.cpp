#include "hosts/calc/adapter/blank_cells.hpp"

#include <com/sun/star/document/XUndoAction.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSheetOperation.hpp>
#include <cppuhelper/implbase1.hxx>
#include <memory>

#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {
namespace {

using UndoManager = Ref<css::document::XUndoManager>;

class EmptyAgain final : public cppu::WeakImplHelper1<css::document::XUndoAction> {
  public:
    EmptyAgain(Ref<css::sheet::XSheetOperation> cells, UndoManager manager)
        : cells_(std::move(cells)), manager_(std::move(manager)) {}

    rtl::OUString SAL_CALL getTitle() override { return {}; }
    void SAL_CALL undo() override {
        namespace flag = css::sheet::CellFlags;
        // A change that is recorded now would destroy the step that is being undone.
        manager_->lock();
        const std::shared_ptr<void> unlock(nullptr,
                                           [this](void*) { attempt([&] { guarded([&] { manager_->unlock(); }); }); });
        cells_->clearContents(flag::VALUE | flag::DATETIME | flag::STRING | flag::FORMULA);
    }
    // The office writes the cells again itself.
    void SAL_CALL redo() override {}

  private:
    Ref<css::sheet::XSheetOperation> cells_;
    UndoManager manager_;
};

}  // namespace

void empty_blanks_on_undo(const Document& document, const Cells& cells) {
    const Ref blanks{Ref<css::sheet::XCellRangesQuery>(cells)->queryEmptyCells()};
    if (blanks->getRangeAddresses().getLength() == 0) return;
    const UndoManager manager(Ref<css::document::XUndoManagerSupplier>(document)->getUndoManager());
    manager->addUndoAction(new EmptyAgain(Ref<css::sheet::XSheetOperation>(blanks), manager));
}

}  // namespace qor::calc
