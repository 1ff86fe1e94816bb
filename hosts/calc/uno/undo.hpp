#pragma once

#include <com/sun/star/document/XUndoManager.hpp>

#include "hosts/calc/uno/document.hpp"

namespace qor::calc {

// The list of what can be undone in the document.
Ref<css::document::XUndoManager> undo_manager(const Document& document);

// While it lives, what is done to the document gathers in one step of undo under the title.
class UndoContext {
  public:
    UndoContext(const Document& document, const rtl::OUString& title);
    UndoContext(UndoContext&& other) noexcept : manager_(std::exchange(other.manager_, {})) {}
    UndoContext& operator=(UndoContext&&) = delete;
    ~UndoContext();

  private:
    Ref<css::document::XUndoManager> manager_;
};

// While it lives, nothing that is done to the document comes into its undo list: for what a user only sees.
class NoUndo {
  public:
    explicit NoUndo(const Document& document);
    NoUndo(const NoUndo&) = delete;
    NoUndo& operator=(const NoUndo&) = delete;
    ~NoUndo();

  private:
    Ref<css::document::XUndoManager> manager_;
};

}  // namespace qor::calc
