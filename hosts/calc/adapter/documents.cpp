#include "hosts/calc/adapter/documents.hpp"

#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/task/XInteractionAbort.hpp>
#include <com/sun/star/task/XInteractionHandler.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <cppuhelper/implbase1.hxx>
#include <filesystem>

#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

namespace fs = std::filesystem;
using Values = std::vector<css::beans::PropertyValue>;

// Answers every question that comes up while a file is read with "do not go on", so that no dialog is shown.
class RefuseQuestions final : public cppu::WeakImplHelper1<css::task::XInteractionHandler> {
  public:
    void SAL_CALL handle(const css::uno::Reference<css::task::XInteractionRequest>& request) override {
        for (const auto& answer : request->getContinuations()) {
            const css::uno::Reference<css::task::XInteractionAbort> abort(answer, css::uno::UNO_QUERY);
            if (abort.is()) return abort->select();
        }
    }
};

PropertyValues sequence(const Values& values) {
    return {values.data(), static_cast<sal_Int32>(values.size())};
}

css::beans::PropertyValue refuse_questions() {
    return named_value("InteractionHandler",
                       css::uno::Reference<css::task::XInteractionHandler>(new RefuseQuestions()));
}

std::u16string full_path(const std::u16string& path) {
    std::error_code ignored;
    const fs::path absolute = fs::absolute(to_utf8(path), ignored);
    return from_utf8(absolute.lexically_normal().string());
}

void add_filter(Values& values, const FileFormat& format) {
    values.push_back(named_value("FilterName", rtl::OUString::createFromAscii(format.filter)));
    if (*format.options) values.push_back(named_value("FilterOptions", rtl::OUString::createFromAscii(format.options)));
}

[[noreturn]] void refuse(std::u16string_view path, std::u16string_view reason) {
    throw Error(ErrorNumber::host_refused, {}, u"'" + std::u16string(path) + u"' " + std::u16string(reason));
}

Book load(const HostPointer& host, const std::u16string& address, const Values& values) {
    const Document document(Ref{host->desktop()->loadComponentFromURL(to_uno(address), "_blank", 0, sequence(values))});
    Book book{host, document};
    if (document) host->activate(document);
    return book;
}

}  // namespace

Book add_book(const HostPointer& host) {
    Book book = load(host, u"private:factory/scalc", {});
    if (!book.document) throw Error(ErrorNumber::host_refused);
    return book;
}

Book open_book(const HostPointer& host, const std::u16string& path, bool read_only) {
    const std::u16string full = full_path(path);
    for (const Document& document : host->documents()) {
        Book open{host, document};
        if (open.file_path() != full) continue;
        host->activate(document);
        return open;
    }
    std::error_code ignored;
    if (!fs::is_regular_file(to_utf8(full), ignored)) refuse(full, u"could not be found.");
    Values values{refuse_questions()};
    if (read_only) values.push_back(named_value("ReadOnly", true));
    // Text files look like any other text, so their kind has to be said.
    if (const FileFormat* format = format_of_path(full); format && *format->options) add_filter(values, *format);
    Book book;
    const std::int32_t failed =
        attempt([&] { book = guarded([&] { return load(host, address_of_path(full), values); }); });
    if (failed != 0 || !book.document) refuse(full, u"cannot be read: it is no workbook, damaged or in use.");
    return book;
}

void save_book(const Book& book) {
    const std::u16string path = book.file_path();
    const std::int32_t failed = attempt([&] { guarded([&] { Ref<css::frame::XStorable>(book.document)->store(); }); });
    if (failed != 0) refuse(path.empty() ? book.name() : path, u"cannot be saved.");
}

void save_book_as(const Book& book, const std::u16string& path, std::optional<std::int32_t> format_number) {
    std::u16string full = full_path(path);
    const FileFormat* format = format_number ? format_of_number(*format_number) : format_of_path(full);
    if (!format && format_number) refuse(full, u"cannot be saved: there is no such file format.");
    if (!format) format = format_of_number(51);
    if (!format_of_path(full)) full.append(u".").append(format->extension);
    Values values{refuse_questions()};
    add_filter(values, *format);
    const std::int32_t failed = attempt([&] {
        guarded([&] {
            Ref<css::frame::XStorable>(book.document)->storeAsURL(to_uno(address_of_path(full)), sequence(values));
        });
    });
    if (failed != 0) refuse(full, u"cannot be saved.");
}

void close_book(const Book& book) {
    Ref<css::util::XCloseable>(book.document)->close(true);
}

}  // namespace qor::calc
