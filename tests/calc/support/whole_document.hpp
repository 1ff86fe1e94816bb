#pragma once

#include <string>

#include "hosts/calc/adapter/ground/host.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

// The newest workbook's whole contents and looks, as the text that Calc stores them in.
std::string whole_document();

// What its undo list holds, and undone or redone once. Clearing also sees that no step is open.
std::vector<std::string> undo_titles();
void undo();
void redo();
void clear_undo();

// Holds the newest workbook against what it is now, and does not draw it meanwhile.
class UnchangedDocument {
  public:
    UnchangedDocument();
    ~UnchangedDocument();
    UnchangedDocument(const UnchangedDocument&) = delete;
    UnchangedDocument& operator=(const UnchangedDocument&) = delete;

    // Looks every tenth time, since that takes long: what something has left behind is still there then.
    void check();
    void check_now() const;

  private:
    std::string before_ = whole_document();
    int asked_ = 0;
    Document document_;
};

}  // namespace qor::calc::tests
