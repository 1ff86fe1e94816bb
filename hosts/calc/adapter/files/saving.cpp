#include "hosts/calc/adapter/files/saving.hpp"

#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <filesystem>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/files/file_formats.hpp"
#include "hosts/calc/adapter/ground/file_paths.hpp"
#include "hosts/calc/adapter/ground/interaction.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/kept_modified_state.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "hosts/calc/uno/undo.hpp"
#include "platform/file_address.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t format_of_new_books = numbers::file_format::workbook;

// The kind of file that the workbook was loaded from or last saved as; null when the office can read it and Excel has
// no number for it.
const FileFormat* own_format(const Book& book) {
    rtl::OUString filter;
    rtl::OUString options;
    for (const auto& argument : book.model()->getArgs()) {
        if (argument.Name == "FilterName") argument.Value >>= filter;
        if (argument.Name == "FilterOptions") argument.Value >>= options;
    }
    return format_of_filter(view_of(filter), view_of(options));
}

PropertyValues description_of(const FileFormat& format) {
    const auto filter = named_value("FilterName", rtl::OUString::createFromAscii(format.filter));
    if (!*format.options) return sequence_of({refuse_questions(), filter});
    return sequence_of(
        {refuse_questions(), filter, named_value("FilterOptions", rtl::OUString::createFromAscii(format.options))});
}

// Files of some kinds get the first sheet, where Excel writes the active one: that one is put there meanwhile.
class ActiveSheetFirst {
  public:
    explicit ActiveSheetFirst(const Book& book)
        : sheets_(book.document->getSheets()), sheet_(book.active_sheet()), place_(sheet_.index()) {
        if (place_ == 0) return;
        unrecorded_.emplace(book.document);
        sheets_->moveByName(to_uno(sheet_.name()), 0);
    }
    ActiveSheetFirst(const ActiveSheetFirst&) = delete;
    ActiveSheetFirst& operator=(const ActiveSheetFirst&) = delete;
    ~ActiveSheetFirst() {
        if (place_ == 0) return;
        attempt([&] {
            guarded([&] {
                // The place is counted before the sheet is taken away from the first.
                sheets_->moveByName(to_uno(sheet_.name()), static_cast<sal_Int16>(place_ + 1));
            });
        });
    }

  private:
    Ref<css::sheet::XSpreadsheets> sheets_;
    std::optional<NoUndo> unrecorded_;
    Sheet sheet_;
    std::int32_t place_;
};

// Answers whether the file was written.
template <class Store>
bool stored(const Book& book, const FileFormat* format, Store store) {
    const Ref<css::util::XModifiable> changes(book.document);
    const bool was_changed = changes->isModified();
    const std::int32_t failed = attempt([&] {
        guarded([&] {
            std::optional<ActiveSheetFirst> order;
            if (format && format->first_sheet_only) order.emplace(book);
            store(Ref<css::frame::XStorable>(book.document));
        });
    });
    if (format && format->first_sheet_only) changes->setModified(failed != 0 && was_changed);
    return failed == 0;
}

void require_folder(const std::u16string& path) {
    std::error_code ignored;
    if (fs::is_directory(fs::path(to_utf8(path)).parent_path(), ignored)) return;
    refuse_file(path, u"cannot be saved: there is no such folder.");
}

void require_unused_name(const Book& book, const std::u16string& path) {
    for (const Document& document : book.host->documents()) {
        if (document == book.document) continue;
        if (!equal_ignoring_case(Book{book.host, document}.name(), file_name_of(path))) continue;
        refuse_file(path, u"cannot be saved: another workbook that is open has that name.");
    }
}

bool may_replace(const Book& book, const std::u16string& path) {
    std::error_code ignored;
    if (!book.host->display_alerts || !fs::exists(to_utf8(path), ignored)) return true;
    const MessageAnswer answer = book.host->user().message_box(
        {.title = book.host->name(),
         .text = u"A file named '" + path + u"' already exists in this location. Do you want to replace it?",
         .icon = MessageIcon::exclamation,
         .buttons = MessageButtons::yes_no_cancel,
         .default_button = 1});
    return answer == MessageAnswer::yes;
}

}  // namespace

std::int32_t file_format(const Book& book) {
    const FileFormat* format = own_format(book);
    return format ? format->number : format_of_new_books;
}

void save_book(const Book& book) {
    const std::u16string path = book.file_path();
    if (path.empty()) refuse_file(book.name(), u"cannot be saved: it has no file yet.");
    if (Ref<css::frame::XStorable>(book.document)->isReadonly()) {
        refuse_file(path, u"cannot be saved: the workbook is read-only.");
    }
    const auto store = [](const Ref<css::frame::XStorable>& storable) { storable->store(); };
    if (!stored(book, own_format(book), store)) refuse_file(path, u"cannot be saved.");
}

void save_book_as(const Book& book, const std::u16string& path, std::optional<std::int32_t> format_number) {
    std::u16string full = full_path(path);
    const FileFormat* format = format_number ? format_of_number(*format_number) : format_of_path(full);
    if (!format && format_number) refuse_file(full, u"cannot be saved: there is no such file format.");
    if (!format) format = format_of_number(file_format(book));
    if (!format_of_path(full)) full.append(u".").append(format->extension);
    require_folder(full);
    require_unused_name(book, full);
    if (!may_replace(book, full)) refuse_file(full, u"was not replaced.");
    const auto store = [&](const Ref<css::frame::XStorable>& storable) {
        storable->storeAsURL(to_uno(address_of_path(full)), description_of(*format));
    };
    if (!stored(book, format, store)) refuse_file(full, u"cannot be saved.");
}

void save_book_copy(const Book& book, const std::u16string& path) {
    const std::u16string full = full_path(path);
    require_folder(full);
    const FileFormat* format = own_format(book);
    if (!format) format = format_of_number(format_of_new_books);
    const auto store = [&](const Ref<css::frame::XStorable>& storable) {
        storable->storeToURL(to_uno(address_of_path(full)), description_of(*format));
    };
    const KeptModifiedState kept(book.document);
    if (!stored(book, format, store)) refuse_file(full, u"cannot be saved.");
}

bool save_or_ask_where(const Book& book) {
    if (!book.file_path().empty() && !Ref<css::frame::XStorable>(book.document)->isReadonly()) {
        save_book(book);
        return true;
    }
    FileDialog dialog{.purpose = FileDialog::Purpose::save,
                      .title = u"Save As",
                      .kinds = {{u"Excel Workbook (*.xlsx)", u"*.xlsx"}},
                      .folder = {},
                      .file_name = book.name()};
    const auto path = book.host->user().file_to_save(dialog);
    if (!path) return false;
    save_book_as(book, *path, {});
    return true;
}

bool ask_before_closing(const Book& book) {
    if (!book.host->display_alerts || !Ref<css::util::XModifiable>(book.document)->isModified()) return true;
    const MessageAnswer answer =
        book.host->user().message_box({.title = book.host->name(),
                                       .text = u"Do you want to save the changes you made to '" + book.name() + u"'?",
                                       .icon = MessageIcon::exclamation,
                                       .buttons = MessageButtons::yes_no_cancel});
    return answer == MessageAnswer::no || (answer == MessageAnswer::yes && save_or_ask_where(book));
}

}  // namespace qor::calc
