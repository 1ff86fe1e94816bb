#include "hosts/calc/adapter/cells/blank_cells.hpp"

#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSheetOperation.hpp>

#include "hosts/calc/adapter/ground/undo_action.hpp"

namespace qor::calc {
namespace {

class EmptyAgain final : public UndoAction {
  public:
    EmptyAgain(Document document, Places places) : UndoAction(std::move(document), std::move(places)) {}

  private:
    void take_back() override {
        namespace flag = css::sheet::CellFlags;
        Ref<css::sheet::XSheetOperation>(ranges_in(document(), places()))
            ->clearContents(flag::VALUE | flag::DATETIME | flag::STRING | flag::FORMULA);
    }
    // The office writes the cells again itself.
    void do_again() override {}
};

}  // namespace

void empty_blanks_on_undo(const Document& document, const Cells& cells) {
    const Ref blanks{Ref<css::sheet::XCellRangesQuery>(cells)->queryEmptyCells()};
    const UndoAction::Places places = blanks->getRangeAddresses();
    if (places.getLength() > 0) add_undo_action(document, new EmptyAgain(document, places));
}

}  // namespace qor::calc
