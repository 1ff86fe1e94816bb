#include "hosts/calc/adapter/files/built_in_properties.hpp"

#include <array>

#include "hosts/calc/adapter/files/user_properties.hpp"
#include "hosts/calc/adapter/ground/office_dates.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

using Properties = css::document::XDocumentProperties;

template <rtl::OUString (Properties::*get)()>
Variant read_text(const Book& book) {
    return from_uno((document_properties(book).operator->()->*get)());
}
template <void (Properties::*set)(const rtl::OUString&)>
void write_text(const Book& book, const Variant& value) {
    (document_properties(book).operator->()->*set)(to_uno(to_text(value)));
}

template <css::util::DateTime (Properties::*get)()>
Variant read_date(const Book& book) {
    const auto date = date_of((document_properties(book).operator->()->*get)());
    return date ? Variant(*date) : Variant();
}

Variant read_keywords(const Book& book) {
    std::u16string all;
    for (const rtl::OUString& keyword : document_properties(book)->getKeywords()) {
        if (!all.empty()) all += u", ";
        all += view_of(keyword);
    }
    return all;
}
void write_keywords(const Book& book, const Variant& value) {
    document_properties(book)->setKeywords(sequence_of({to_uno(to_text(value))}));
}

Variant read_revision(const Book& book) {
    return from_utf8(std::to_string(document_properties(book)->getEditingCycles()));
}
void write_revision(const Book& book, const Variant& value) {
    document_properties(book)->setEditingCycles(to_integer(value));
}

// A document that was never stored has no program that wrote it.
Variant read_program(const Book& book) {
    std::u16string program = from_uno(document_properties(book)->getGenerator());
    return program.empty() ? book.host->name() : program;
}

Variant read_editing_minutes(const Book& book) {
    constexpr std::int32_t seconds_a_minute = 60;
    return document_properties(book)->getEditingDuration() / seconds_a_minute;
}

Variant read_security(const Book&) {
    return std::int32_t{0};
}

// What only other programs' files have, the office keeps among the user's properties.
constexpr char16_t category[] = u"OOXMLCorePropertyCategory";
constexpr char16_t manager[] = u"Manager";
constexpr char16_t company[] = u"Company";
constexpr char16_t hyperlink_base[] = u"HyperlinkBase";

template <const auto& name>
Variant read_kept(const Book& book) {
    const Variant value = UserProperties(book).value(name);
    return value.is_empty() ? std::u16string() : to_text(value);
}
template <const auto& name>
void write_kept(const Book& book, const Variant& value) {
    UserProperties(book).set_value(name, to_text(value));
}

using enum PropertyKind;

constexpr std::array properties{
    BuiltInProperty{u"Title", text, read_text<&Properties::getTitle>, write_text<&Properties::setTitle>},
    BuiltInProperty{u"Subject", text, read_text<&Properties::getSubject>, write_text<&Properties::setSubject>},
    BuiltInProperty{u"Author", text, read_text<&Properties::getAuthor>, write_text<&Properties::setAuthor>},
    BuiltInProperty{u"Keywords", text, read_keywords, write_keywords},
    BuiltInProperty{u"Comments", text, read_text<&Properties::getDescription>, write_text<&Properties::setDescription>},
    BuiltInProperty{u"Template", text, read_text<&Properties::getTemplateName>,
                    write_text<&Properties::setTemplateName>},
    BuiltInProperty{u"Last Author", text, read_text<&Properties::getModifiedBy>,
                    write_text<&Properties::setModifiedBy>},
    BuiltInProperty{u"Revision Number", text, read_revision, write_revision},
    BuiltInProperty{u"Application Name", text, read_program, nullptr},
    BuiltInProperty{u"Last Print Date", date, read_date<&Properties::getPrintDate>, nullptr},
    BuiltInProperty{u"Creation Date", date, read_date<&Properties::getCreationDate>, nullptr},
    BuiltInProperty{u"Last Save Time", date, read_date<&Properties::getModificationDate>, nullptr},
    BuiltInProperty{u"Total Editing Time", whole_number, read_editing_minutes, nullptr},
    BuiltInProperty{u"Number of Pages", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Number of Words", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Number of Characters", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Security", whole_number, read_security, nullptr},
    BuiltInProperty{u"Category", text, read_kept<category>, write_kept<category>},
    BuiltInProperty{u"Format", text, nullptr, nullptr},
    BuiltInProperty{u"Manager", text, read_kept<manager>, write_kept<manager>},
    BuiltInProperty{u"Company", text, read_kept<company>, write_kept<company>},
    BuiltInProperty{u"Number of Bytes", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Number of Lines", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Number of Paragraphs", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Number of Slides", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Number of Notes", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Number of Hidden Slides", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Number of Multimedia Clips", whole_number, nullptr, nullptr},
    BuiltInProperty{u"Hyperlink Base", text, read_kept<hyperlink_base>, write_kept<hyperlink_base>},
    BuiltInProperty{u"Number of Characters (with spaces)", whole_number, nullptr, nullptr},
};

}  // namespace

std::span<const BuiltInProperty> built_in_properties() {
    return properties;
}

}  // namespace qor::calc
