#pragma once

#include <com/sun/star/document/XUndoAction.hpp>
#include <com/sun/star/table/CellRangeAddress.hpp>
#include <com/sun/star/uno/Sequence.hxx>
#include <cppuhelper/implbase1.hxx>
#include <functional>

#include "hosts/calc/adapter/ground/host.hpp"

namespace qor::calc {

// Part of a step of undo that the office does not record by itself. It keeps cells by their places: the office's own
// ranges are lost with their sheet, which another undo may bring back.
class UndoAction : public cppu::WeakImplHelper1<css::document::XUndoAction> {
  public:
    using Places = css::uno::Sequence<css::table::CellRangeAddress>;

    rtl::OUString SAL_CALL getTitle() final { return {}; }
    void SAL_CALL undo() final;
    void SAL_CALL redo() final;

  protected:
    UndoAction(Document document, Places places) : document_(std::move(document)), places_(std::move(places)) {}

    const Document& document() const noexcept { return document_; }
    const Places& places() const noexcept { return places_; }

  private:
    // What they do is not recorded. They raise what the office raises.
    virtual void take_back() = 0;
    virtual void do_again() = 0;
    void run(const std::function<void()>& change);

    Document document_;
    Places places_;
};

// Puts the action into the undo step that is open. The list of undo owns it.
void add_undo_action(const Document& document, UndoAction* action);

}  // namespace qor::calc
