#include "hosts/calc/adapter/ground/undo_step.hpp"

#include <algorithm>

#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/text.hpp"

namespace qor::calc {
namespace {

UndoStep* open_step = nullptr;  // the office's main thread is the only one that changes documents

}  // namespace

UndoStep::UndoStep(std::u16string title) : title_(std::move(title)), outermost_(open_step == nullptr) {
    if (outermost_) open_step = this;
}

UndoStep::~UndoStep() {
    if (!outermost_) return;
    open_step = nullptr;
    for (Change& change : changes_) {
        change.context.reset();
        if (change.is_wrong) attempt([&] { guarded([&] { undo_manager(change.document)->clear(); }); });
    }
}

void UndoStep::note_change(const Document& document) {
    if (!open_step) return;
    auto& changes = open_step->changes_;
    if (std::ranges::find(changes, document, &Change::document) != changes.end()) return;
    changes.push_back({document, UndoContext(document, to_uno(open_step->title_))});
}

void UndoStep::note_unrecorded_change(const Document& document) {
    note_change(document);
    if (open_step) std::ranges::find(open_step->changes_, document, &Change::document)->is_wrong = true;
}

}  // namespace qor::calc
