#include "hosts/calc/uno/undo.hpp"

#include <com/sun/star/document/XUndoManagerSupplier.hpp>

#include "hosts/calc/uno/surely.hpp"

namespace qor::calc {

Ref<css::document::XUndoManager> undo_manager(const Document& document) {
    return Ref<css::document::XUndoManagerSupplier>(document)->getUndoManager();
}

UndoContext::UndoContext(const Document& document, const rtl::OUString& title) : manager_(undo_manager(document)) {
    manager_->enterUndoContext(title);
}

// A step that stays open would swallow all that comes.
UndoContext::~UndoContext() {
    if (manager_) surely([&] { manager_->leaveUndoContext(); });
}

NoUndo::NoUndo(const Document& document) : manager_(undo_manager(document)) {
    manager_->lock();
}

NoUndo::~NoUndo() {
    surely([&] { manager_->unlock(); });
}

}  // namespace qor::calc
