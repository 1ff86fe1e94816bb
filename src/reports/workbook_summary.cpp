#include "reports/workbook_summary.hpp"

#include <algorithm>
#include <array>

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"

namespace qor {
namespace {

// A text that can be an argument of a template.
template <std::size_t size>
struct PropertyName {
    // NOLINTNEXTLINE(google-explicit-constructor): a literal stands for it
    constexpr PropertyName(const char16_t (&literal)[size]) { std::copy_n(literal, size, text); }
    char16_t text[size]{};
};

template <PropertyName property>
Variant built_in(SummarizedBook& book) {
    return book.workbook().get(names::BuiltinDocumentProperties, property.text).get(names::Value);
}

template <PropertyName property>
Variant custom(SummarizedBook& book) {
    return book.workbook().get(names::CustomDocumentProperties, property.text).get(names::Value);
}

constexpr std::array columns{
    WorkbookSummaryColumn{u"WorkbookName", u"Workbook Name", [](SummarizedBook& book) -> Variant { return book.name; }},
    WorkbookSummaryColumn{u"Author", u"Author", built_in<u"Author">},
    WorkbookSummaryColumn{u"Category", u"Category", built_in<u"Category">},
    WorkbookSummaryColumn{u"Company", u"Company", built_in<u"Company">},
    WorkbookSummaryColumn{u"HyperlinkBase", u"Hyperlink Base", built_in<u"Hyperlink Base">},
    WorkbookSummaryColumn{u"Keywords", u"Keywords", built_in<u"Keywords">},
    // The heading and the text that it is known by are not the same, so nothing is ever read for it.
    WorkbookSummaryColumn{
        .key = u"LastAuthor", .heading = u"Last Author", .read = built_in<u"Last Author">, .literal = u"LastAuthor"},
    WorkbookSummaryColumn{u"Manager", u"Manager", built_in<u"Manager">},
    WorkbookSummaryColumn{u"Subject", u"Subject", built_in<u"Subject">},
    WorkbookSummaryColumn{u"Title", u"Title", built_in<u"Title">},
    WorkbookSummaryColumn{u"FileLocation", u"File Location",
                          [](SummarizedBook& book) { return book.workbook().get(names::FullName); }},
    WorkbookSummaryColumn{u"FileDateCreated", u"File Date Created", built_in<u"Creation Date">},
    WorkbookSummaryColumn{u"CustomCheckedBy", u"Custom - Checked By", custom<u"Checked by">},
    WorkbookSummaryColumn{u"CustomClient", u"Custom - Client", custom<u"Client">},
    WorkbookSummaryColumn{u"CustomDateCompleted", u"Custom - Date Completed", custom<u"Date completed">},
    WorkbookSummaryColumn{u"CustomDepartment", u"Custom - Department", custom<u"Department">},
    WorkbookSummaryColumn{u"CustomDestination", u"Custom - Destination", custom<u"Destination">},
    WorkbookSummaryColumn{u"CustomDisposition", u"Custom - Disposition", custom<u"Disposition">},
    WorkbookSummaryColumn{u"CustomDivision", u"Custom - Division", custom<u"Division">},
    WorkbookSummaryColumn{u"CustomDocumentNumber", u"Custom - Document Number", custom<u"Document number">},
    WorkbookSummaryColumn{u"CustomEditor", u"Custom - Editor", custom<u"Editor">},
    WorkbookSummaryColumn{u"CustomForwardTo", u"Custom - Forward To", custom<u"Forward to">},
    WorkbookSummaryColumn{u"CustomGroup", u"Custom - Group", custom<u"Group">},
    WorkbookSummaryColumn{u"CustomLanguage", u"Custom - Language", custom<u"Language">},
    WorkbookSummaryColumn{u"CustomMailstop", u"Custom - Mailstop", custom<u"Mailstop">},
    WorkbookSummaryColumn{u"CustomMatter", u"Custom - Matter", custom<u"Matter">},
    WorkbookSummaryColumn{u"CustomOffice", u"Custom - Office", custom<u"Office">},
    WorkbookSummaryColumn{u"CustomOwner", u"Custom - Owner", custom<u"Owner">},
    WorkbookSummaryColumn{u"CustomProject", u"Custom - Project", custom<u"Project">},
    WorkbookSummaryColumn{u"CustomPublisher", u"Custom - Publisher", custom<u"Publisher">},
    WorkbookSummaryColumn{u"CustomPurpose", u"Custom - Purpose", custom<u"Purpose">},
    WorkbookSummaryColumn{u"CustomReceivedFrom", u"Custom - Received From", custom<u"Received from">},
    WorkbookSummaryColumn{u"CustomRecordedBy", u"Custom - Recorded By", custom<u"Recorded by">},
    WorkbookSummaryColumn{u"CustomRecordedDate", u"Custom - Recorded Date", custom<u"Recorded date">},
    WorkbookSummaryColumn{u"CustomReference", u"Custom - Reference", custom<u"Reference">},
    WorkbookSummaryColumn{u"CustomSource", u"Custom - Source", custom<u"Source">},
    WorkbookSummaryColumn{u"CustomStatus", u"Custom - Status", custom<u"Status">},
    WorkbookSummaryColumn{u"CustomTelephoneNumber", u"Custom - Telephone Number", custom<u"Telephone number">},
    WorkbookSummaryColumn{u"CustomTypist", u"Custom - Typist", custom<u"Typist">},
};

}  // namespace

std::span<const WorkbookSummaryColumn> workbook_summary_columns() {
    return columns;
}

Object SummarizedBook::workbook() const {
    return gExcel.get(names::Workbooks, name);
}

}  // namespace qor
