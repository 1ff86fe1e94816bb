#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hosts/calc/uno/running_command.hpp"
#include "hosts/calc/uno/undo.hpp"

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
    struct Change {
        Document document;
        std::optional<UndoContext> context;
        bool is_wrong = false;
    };
    std::vector<Change> changes_;
};

}  // namespace qor::calc
