#include "hosts/calc/adapter/files/documents.hpp"

#include <com/sun/star/util/XCloseable.hpp>
#include <filesystem>

#include "hosts/calc/adapter/files/file_formats.hpp"
#include "hosts/calc/adapter/ground/file_paths.hpp"
#include "hosts/calc/adapter/ground/interaction.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/file_address.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

using Values = std::vector<css::beans::PropertyValue>;

// Empty when the office can make no workbook of it.
Book load(const HostPointer& host, const std::u16string& address, const Values& values) {
    const PropertyValues description(values.data(), static_cast<sal_Int32>(values.size()));
    const Document document(Ref{host->desktop()->loadComponentFromURL(to_uno(address), "_blank", 0, description)});
    Book book{host, document};
    if (document) host->activate(document);
    return book;
}

Book load_file(const HostPointer& host, const std::u16string& path, const css::beans::PropertyValue& manner) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(to_utf8(path), ignored)) {
        refuse_file(path,
                    u"could not be found. Check the spelling of the file name, and verify that the file location is "
                    u"correct.");
    }
    Values values{refuse_questions(), manner};
    // Text files look like any other text, so their kind has to be said.
    if (const FileFormat* format = format_of_path(path); format && *format->options) {
        values.push_back(named_value("FilterName", rtl::OUString::createFromAscii(format->filter)));
        values.push_back(named_value("FilterOptions", rtl::OUString::createFromAscii(format->options)));
    }
    Book book;
    const std::int32_t failed =
        attempt([&] { book = guarded([&] { return load(host, address_of_path(path), values); }); });
    if (failed != 0 || !book.document) refuse_file(path, u"cannot be read: it is no workbook, damaged or in use.");
    return book;
}

}  // namespace

Book add_book(const HostPointer& host) {
    Book book = load(host, u"private:factory/scalc", {});
    if (!book.document) throw Error(ErrorNumber::host_refused);
    return book;
}

Book add_book_after(const HostPointer& host, const std::u16string& path) {
    return load_file(host, full_path(path), named_value("AsTemplate", true));
}

Book open_book(const HostPointer& host, const std::u16string& path, bool read_only) {
    const std::u16string full = full_path(path);
    for (const Document& document : host->documents()) {
        Book open{host, document};
        if (open.file_path() == full) {
            host->activate(document);
            return open;
        }
        if (equal_ignoring_case(open.name(), file_name_of(full))) {
            refuse_file(full, u"cannot be opened: a workbook of that name is open already.");
        }
    }
    return load_file(host, full, named_value("ReadOnly", read_only));
}

void close_book(const Book& book) {
    Ref<css::util::XCloseable>(book.document)->close(true);
}

}  // namespace qor::calc
