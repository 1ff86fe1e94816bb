#include "hosts/calc/adapter/cells/clipboard.hpp"

#include <algorithm>
#include <array>
#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>
#include <com/sun/star/datatransfer/clipboard/SystemClipboard.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/cells/cell_writer.hpp"
#include "hosts/calc/adapter/ground/command.hpp"
#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/sheets/kept_view.hpp"
#include "hosts/calc/uno/sequence.hpp"

namespace qor::calc {
namespace {

using Transferable = Ref<css::datatransfer::XTransferable>;

struct Kind {
    std::int32_t excel;
    const char* flags;    // of the office's command
    bool replaces_cells;  // what the cells held goes
};
constexpr std::array kinds{Kind{numbers::paste::all, "A", true}, Kind{numbers::paste::formulas, "SVDF", true},
                           Kind{numbers::paste::values, "SVD", true}, Kind{numbers::paste::formats, "T", false},
                           Kind{numbers::paste::comments, "N", false}};

Ref<css::datatransfer::clipboard::XClipboard> system_clipboard(const HostPointer& host) {
    return Ref<css::datatransfer::clipboard::XClipboard>(
        Ref{css::datatransfer::clipboard::SystemClipboard::create(host->context().reference())});
}

// The place that a copy takes from the target's corner on.
RangeAreas place_for(const CopySize& size, const RangeAreas& target) {
    const Rectangle at = target.rectangle();
    return range_at(target.sheet, {at.left, at.top, at.left + size.columns - 1, at.top + size.rows - 1});
}

}  // namespace

CopySize copy_size(const RangeAreas& areas) {
    const Rectangle first = areas.rectangle();
    CopySize size{first.height(), first.width()};
    bool same_rows = true;
    bool same_columns = true;
    for (std::size_t i = 1; i < areas.areas.size(); ++i) {
        const Rectangle area = areas.rectangle(i);
        same_rows = same_rows && area.top == first.top && area.bottom == first.bottom;
        same_columns = same_columns && area.left == first.left && area.right == first.right;
        size.rows += area.height();
        size.columns += area.width();
    }
    if (areas.areas.size() == 1) return size;
    if (same_rows) return {first.height(), size.columns};
    if (same_columns) return {size.rows, first.width()};
    throw Error(ErrorNumber::host_refused, {}, u"That command cannot be used on multiple selections.");
}

Transferable copy_of(const RangeAreas& areas) {
    const Book& book = areas.sheet.book;
    const KeptView view(book);
    select_sheets(book, {areas.sheet.index()}, true);
    select(areas);
    const Ref controller{book.model()->getCurrentController()};
    return Ref<css::datatransfer::XTransferableSupplier>(controller)->getTransferable();
}

void insert_copy(const Transferable& copy, const RangeAreas& target) {
    const Book& book = target.sheet.book;
    const KeptView view(book);
    const Rectangle at = target.rectangle();
    select_sheets(book, {target.sheet.index()}, true);
    select(range_at(target.sheet, {at.left, at.top, at.left, at.top}));
    const Ref controller{book.model()->getCurrentController()};
    Ref<css::datatransfer::XTransferableSupplier>(controller)->insertTransferable(copy.reference());
}

void put_on_clipboard(const RangeAreas& areas) {
    const CopySize size = copy_size(areas);
    const HostPointer& host = areas.sheet.book.host;
    const Transferable copy = copy_of(areas);
    system_clipboard(host)->setContents(copy.reference(), {});
    host->copied = {Ref<css::uno::XInterface>(copy), size.rows, size.columns};
}

void paste_from_clipboard(const RangeAreas& target, std::int32_t what) {
    const auto* kind = std::ranges::find(kinds, what, &Kind::excel);
    const Book& book = target.sheet.book;
    const Ref contents{system_clipboard(book.host)->getContents()};
    if (kind == kinds.end() || !contents) throw Error(ErrorNumber::host_refused);
    const UndoStep step(u"Paste");
    const auto& copied = book.host->copied;
    const bool ours = copied.cells && copied.cells == Ref<css::uno::XInterface>(contents);
    const RangeAreas place = ours ? place_for({copied.rows, copied.columns}, target) : target;
    before_writing(place);
    // The office asks before it overwrites cells, though not blank ones.
    if (ours && kind->replaces_cells) clear_contents(place);
    const KeptView view(book);
    const Rectangle at = target.rectangle();
    select(range_at(target.sheet, {at.left, at.top, at.left, at.top}));
    run_command(book, ".uno:InsertContents",
                sequence_of({named_value("Flags", rtl::OUString::createFromAscii(kind->flags)),
                             named_value("FormulaCommand", sal_Int16{0}), named_value("SkipEmptyCells", false),
                             named_value("Transpose", false), named_value("AsLink", false),
                             named_value("MoveMode", sal_Int16{4})}));
}

}  // namespace qor::calc
