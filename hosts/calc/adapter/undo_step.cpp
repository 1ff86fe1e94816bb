#include "hosts/calc/adapter/undo_step.hpp"

#include <algorithm>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>

#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {
namespace {

UndoStep* open_step = nullptr;  // the office's main thread is the only one that changes documents

Ref<css::document::XUndoManager> undo_manager(const Document& document) {
    return Ref<css::document::XUndoManager>(Ref{Ref<css::document::XUndoManagerSupplier>(document)->getUndoManager()});
}

}  // namespace

UndoStep::UndoStep(std::u16string title) : title_(std::move(title)), outermost_(open_step == nullptr) {
    if (outermost_) open_step = this;
}

UndoStep::~UndoStep() {
    if (!outermost_) return;
    open_step = nullptr;
    for (const Document& document : entered_) {
        // Where it fails, the workbook was closed in between and its undo list went with it.
        attempt([&] { guarded([&] { undo_manager(document)->leaveUndoContext(); }); });
    }
}

void UndoStep::note_change(const Document& document) {
    if (!open_step || std::ranges::find(open_step->entered_, document) != open_step->entered_.end()) return;
    undo_manager(document)->enterUndoContext(to_uno(open_step->title_));
    open_step->entered_.push_back(document);
}

}  // namespace qor::calc
