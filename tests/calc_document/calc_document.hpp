#pragma once

#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCell.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <filesystem>
#include <string>

namespace qor::calc::tests {

using Context = com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>;

// A hidden spreadsheet in the Calc of that context, closed at the end. Formulas are in Calc's own notation.
class CalcDocument {
  public:
    explicit CalcDocument(const Context& context);  // a new one
    CalcDocument(const Context& context, const std::filesystem::path& file);
    CalcDocument(const CalcDocument&) = delete;
    CalcDocument& operator=(const CalcDocument&) = delete;
    ~CalcDocument();

    const com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheetDocument>& document() const {
        return document_;
    }
    com::sun::star::uno::Reference<com::sun::star::table::XCell> cell(const char* address) const;
    void enter(const char* address, const char* formula) const;
    std::string shown(const char* address) const;
    double value(const char* address) const;
    std::string formula(const char* address) const;
    void calculate() const;      // what has changed, and what depends on it
    void calculate_all() const;  // everything

    // Stores a copy; the filter follows from the file's extension: ods, xlsx or xls.
    void store(const std::filesystem::path& file) const;

  private:
    com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheetDocument> document_;
};

}  // namespace qor::calc::tests
