#pragma once

#include <string>
#include <vector>

namespace qor::calc::tests {

// A worksheet function by its name in Excel, with the number of arguments that Calc describes.
struct CorpusFunction {
    std::u16string name;
    std::size_t required;
    std::size_t described;
};

// The functions that Calc says stand in a workbook of Excel under a name that is not Calc's own, add-ins included.
std::vector<CorpusFunction> functions_shared_with_excel();

// Formulas that call the function with arguments of all kinds, spelled as Excel reads them back.
std::vector<std::u16string> corpus_formulas(const CorpusFunction& function);

}  // namespace qor::calc::tests
