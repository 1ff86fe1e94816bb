#pragma once

#include <doctest/doctest.h>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <filesystem>
#include <ostream>

#include "automation/member_names.hpp"
#include "automation/variant.hpp"

namespace qor {

// Of the same kind and the same value; arrays by their elements.
bool operator==(const Variant& left, const Variant& right);
// How doctest shows a value that is not as expected.
std::ostream& operator<<(std::ostream& out, const Variant& value);

}  // namespace qor

namespace qor::calc::tests {

// The office that the test cases run in.
com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& office_context();

// An Application; its workbooks are closed without saving at the end.
class Calc {
  public:
    Calc();
    ~Calc();

    Object application;

    // A new workbook with one sheet.
    Object add_book() const;
    // The first sheet of a new workbook.
    Object add_sheet() const;
    Object open(const std::filesystem::path& path) const;
    // Saves the book under this name in a folder of the test's own, closes it and opens it again.
    Object reopened(const Object& book, const char* file_name) const;

    const std::filesystem::path& folder() const { return folder_; }

  private:
    std::filesystem::path folder_;
};

std::string utf8(const Variant& text);

// The number of the error that the statement raises, 0 if it raises none.
template <class Statement>
std::int32_t error_of(Statement&& statement) {
    return attempt(std::forward<Statement>(statement));
}

}  // namespace qor::calc::tests
