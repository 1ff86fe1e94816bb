#pragma once

#include "ui/text_entry.hpp"

namespace qor {

class TextBox final : public TextEntry {
  public:
    using TextEntry::TextEntry;
};

}  // namespace qor
