#pragma once

#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <filesystem>
#include <string>

#include "hosts/calc/office/private_office.hpp"

namespace qor::cli {

// One headless Calc with the add-in for all tests of this program.
calc::PrivateOffice& office();

// A spreadsheet in it, closed at the end.
class CalcDocument {
  public:
    CalcDocument();  // a new one
    explicit CalcDocument(const std::filesystem::path& file, const calc::PrivateOffice& owner = office());
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
    void calculate() const;

    // Stores a copy; the filter follows from the file's extension: ods, xlsx or xls.
    void store(const std::filesystem::path& file) const;

  private:
    com::sun::star::uno::Reference<com::sun::star::sheet::XSpreadsheetDocument> document_;
};

}  // namespace qor::cli
