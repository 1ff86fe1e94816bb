#pragma once

#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// Columns are as wide as so many digits of the workbook's standard font, and a margin of five pixels.
class DigitWidth {
  public:
    explicit DigitWidth(const Book& book);

    // Between hundredths of a millimetre and characters, these to two decimals.
    double characters_in(std::int32_t width) const;
    std::int32_t width_of(double characters) const;

  private:
    double digit_;   // in hundredths of a millimetre
    double pixels_;  // of a digit on a screen
};

}  // namespace qor::calc
