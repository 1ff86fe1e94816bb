#pragma once

#include <doctest/doctest.h>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <ostream>

#include "automation/member_names.hpp"
#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/host_user.hpp"
#include "tests/support/temporary_folder.hpp"

namespace qor {

// Of the same kind and the same value; arrays by their elements.
bool operator==(const Variant& left, const Variant& right);
// How doctest shows a value that is not as expected.
std::ostream& operator<<(std::ostream& out, const Variant& value);

}  // namespace qor

namespace qor::calc::tests {

// The office that the test cases run in.
com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& office_context();

// Answers as it was told, each answer once, and keeps what it was asked. Where it was told nothing, a message takes its
// default and the rest is cancelled.
class ToldUser final : public HostUser {
  public:
    std::vector<MessageAnswer> answers;
    std::vector<std::u16string> files;
    std::vector<std::u16string> ranges;
    bool shows_pages = true;

    std::vector<MessageBox> messages;
    std::vector<FileDialog> file_questions;
    std::vector<RangeQuestion> range_questions;
    std::vector<std::u16string> pages;

    MessageAnswer message_box(const MessageBox& message) override;
    std::optional<std::u16string> file_to_save(FileDialog& dialog) override;
    std::optional<std::u16string> range(const RangeQuestion& question) override;
    bool show_page(const std::u16string& address) override;
};

// An Application; its workbooks are closed without saving at the end.
class Calc {
  public:
    Calc();
    ~Calc();

    const std::shared_ptr<ToldUser> user = std::make_shared<ToldUser>();
    const Object application;

    // A new workbook with one sheet.
    Object add_book() const;
    // The first sheet of a new workbook.
    Object add_sheet() const;
    Object open(const std::filesystem::path& path) const;
    // Saves the book under this name in a folder of the test's own, closes it and opens it again.
    Object reopened(const Object& book, const char* file_name) const;

    const std::filesystem::path& folder() const { return folder_.path; }

  private:
    test::TemporaryFolder folder_;
};

std::string utf8(const Variant& text);

// The number of the error that the statement raises, 0 if it raises none.
template <class Statement>
std::int32_t error_of(Statement&& statement) {
    return attempt(std::forward<Statement>(statement));
}

}  // namespace qor::calc::tests
