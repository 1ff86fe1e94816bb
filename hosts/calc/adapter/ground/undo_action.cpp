#include "hosts/calc/adapter/ground/undo_action.hpp"

#include <com/sun/star/document/UndoFailedException.hpp>
#include <rtl/ref.hxx>

#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/undo.hpp"

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
    const rtl::Reference<UndoAction> kept(action);
    undo_manager(document)->addUndoAction(kept.get());
}

}  // namespace qor::calc
