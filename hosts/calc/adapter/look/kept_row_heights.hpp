#pragma once

#include "hosts/calc/adapter/ground/host.hpp"

namespace qor::calc {

// While it lives, changes of looks leave the heights of rows alone. The office would measure every row again, though
// formats of numbers and alignments change no height, and that takes longer than all the rest.
class KeptRowHeights {
  public:
    explicit KeptRowHeights(const Document& document);
    KeptRowHeights(const KeptRowHeights&) = delete;
    KeptRowHeights& operator=(const KeptRowHeights&) = delete;
    ~KeptRowHeights();

  private:
    bool release() const;

    Document document_;
};

}  // namespace qor::calc
