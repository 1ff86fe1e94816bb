#include "hosts/calc/adapter/ground/undo_step.hpp"

#include <algorithm>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>

#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {
namespace {

Ref<css::document::XUndoManager> undo_manager(const Document& document) {
    return Ref{Ref<css::document::XUndoManagerSupplier>(document)->getUndoManager()};
}

UndoStep* open_step = nullptr;  // the office's main thread is the only one that changes documents

// Where it fails, the workbook was closed in between and its undo list went with it.
bool leave(const Ref<css::document::XUndoManager>& manager) {
    return attempt([&] { guarded([&] { manager->leaveUndoContext(); }); }) == 0;
}

}  // namespace

UndoStep::UndoStep(std::u16string title) : title_(std::move(title)), outermost_(open_step == nullptr) {
    if (outermost_) open_step = this;
}

UndoStep::~UndoStep() {
    if (!outermost_) return;
    open_step = nullptr;
    for (const Entered& entered : entered_) {
        // A step that stays open would swallow all that comes, so one failure is not believed.
        if (!leave(entered.manager)) leave(entered.manager);
        if (entered.is_wrong) attempt([&] { guarded([&] { entered.manager->clear(); }); });
    }
}

void UndoStep::note_change(const Document& document) {
    if (!open_step) return;
    auto& entered = open_step->entered_;
    if (std::ranges::find(entered, document, &Entered::document) != entered.end()) return;
    const auto manager = undo_manager(document);
    manager->enterUndoContext(to_uno(open_step->title_));
    entered.push_back({document, manager});
}

void UndoStep::note_unrecorded_change(const Document& document) {
    note_change(document);
    if (open_step) std::ranges::find(open_step->entered_, document, &Entered::document)->is_wrong = true;
}

NoUndo::NoUndo(const Document& document) : manager_(undo_manager(document)) {
    manager_->lock();
}

NoUndo::~NoUndo() {
    attempt([&] { guarded([&] { manager_->unlock(); }); });
}

}  // namespace qor::calc
