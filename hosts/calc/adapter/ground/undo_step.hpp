#pragma once

#include <com/sun/star/document/XUndoManager.hpp>
#include <string>
#include <vector>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/uno/running_command.hpp"

namespace qor::calc {

// While it lives, all changes that go through the adapter are one step of undo under one title, in each workbook that
// is changed. A workbook without a change gets no step. A step begun within another one belongs to that one. No event
// of the host begins another command meanwhile.
class UndoStep {
  public:
    explicit UndoStep(std::u16string title);
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;
    ~UndoStep();

    // Called before the first change of a document, and harmless before further ones.
    static void note_change(const Document& document);
    // Called for a change that the office does not record and that makes what it has recorded wrong: at the end of the
    // step the document's undo list is emptied.
    static void note_unrecorded_change(const Document& document);

  private:
    RunningCommand command_;
    std::u16string title_;
    bool outermost_;
    struct Entered {
        Document document;
        Ref<css::document::XUndoManager> manager;
        bool is_wrong = false;
    };
    std::vector<Entered> entered_;
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
