#pragma once

#include <map>
#include <optional>
#include <string>

#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/book.hpp"

namespace qor::calc {

// What a sheet's TransitionFormEntry does: in formulas that are entered while it is set, names become what they stand
// for. Those of a fixed range and of a constant do; all else keeps its name, for it means another thing in each cell.
class TransitionEntry {
  public:
    explicit TransitionEntry(const Sheet& sheet) : sheet_(sheet) {}

    // The formula to be entered in place of this one; none for what is no formula, or stays as it is.
    std::optional<std::u16string> replaced(const Variant& value);

  private:
    using Meanings = std::map<std::u16string, std::u16string, std::less<>>;  // by names in capitals

    void find_meanings();

    const Sheet& sheet_;
    std::optional<Meanings> meanings_;  // empty where the sheet has no such entry; none until the first formula comes
};

}  // namespace qor::calc
