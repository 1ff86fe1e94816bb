#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace qor::calc {

// The names of the worksheet functions in capitals, where the two notations differ.
struct FunctionNames {
    std::unordered_map<std::u16string, std::u16string> excel_by_calc;
    std::unordered_map<std::u16string, std::u16string> calc_by_excel;
};

// Translates formulas between Excel's A1 notation, English with commas, and Calc's English notation as XCell's
// getFormula and setFormula use it. Text that is no formula comes through as well as it can: nothing is raised.
class FormulaTranslator {
  public:
    // Answers the address of an open workbook by its name; empty when none is open under it.
    using BookAddress = std::function<std::u16string(std::u16string_view book)>;

    explicit FormulaTranslator(FunctionNames names) : names_(std::move(names)) {}

    // `formula` with its equals sign, and with the braces around it if it is an array formula: they are taken off.
    std::u16string to_excel(std::u16string_view formula) const;
    // A reference to a book that has no path and is not open becomes #REF!.
    std::u16string to_calc(std::u16string_view formula, const BookAddress& address_of_book = {}) const;

  private:
    FunctionNames names_;
};

// Whether every bracket and quote of a formula in Excel's notation is closed. Calc would close them by itself.
bool is_closed(std::u16string_view formula);

}  // namespace qor::calc
