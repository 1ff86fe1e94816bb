#include "hosts/calc/adapter/ground/undo_action.hpp"

#include <com/sun/star/document/UndoFailedException.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>

#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {

void UndoAction::undo() {
    run([this] { take_back(); });
}

void UndoAction::redo() {
    run([this] { do_again(); });
}

void UndoAction::run(const std::function<void()>& change) {
    const auto error = attempt([&] {
        guarded([&] {
            // A change that is recorded now would destroy the step that is being undone.
            const NoUndo unrecorded(document_);
            change();
        });
    });
    if (error != 0) throw css::document::UndoFailedException({}, *this, {});
}

void add_undo_action(const Document& document, UndoAction* action) {
    const css::uno::Reference<css::document::XUndoAction> kept(action);
    Ref {
        Ref<css::document::XUndoManagerSupplier>(document)->getUndoManager()
        } -> addUndoAction(kept);
}

}  // namespace qor::calc
