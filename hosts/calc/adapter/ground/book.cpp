#include "hosts/calc/adapter/ground/book.hpp"

#include <com/sun/star/container/XEnumeration.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/frame/XModel2.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>

#include "hosts/calc/adapter/ground/file_paths.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/file_address.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

DrawPage page_at(const Ref<css::drawing::XDrawPages>& pages, std::int32_t index) {
    return value_of<DrawPage>(pages->getByIndex(index));
}

}  // namespace

std::u16string Book::file_path() const {
    const rtl::OUString address = model()->getURL();
    return address.isEmpty() ? std::u16string() : path_of_address(view_of(address));
}

std::u16string Book::name() const {
    const std::u16string path = file_path();
    if (!path.empty()) return file_name_of(path);
    return from_uno(Ref<css::frame::XTitle>(document)->getTitle());
}

std::vector<Sheet> Book::sheets() const {
    const Ref<css::container::XIndexAccess> all(Ref{document->getSheets()});
    std::vector<Sheet> result;
    const sal_Int32 count = all->getCount();
    result.reserve(static_cast<std::size_t>(count));
    for (sal_Int32 i = 0; i < count; ++i) {
        result.emplace_back(*this, Ref<css::sheet::XSpreadsheet>(all->getByIndex(i)));
    }
    return result;
}

Sheet Book::sheet(std::u16string_view name) const {
    const Ref sheets{document->getSheets()};
    for (const rtl::OUString& candidate : sheets->getElementNames()) {
        if (equal_ignoring_case(view_of(candidate), name)) {
            return {*this, Ref<css::sheet::XSpreadsheet>(sheets->getByName(candidate))};
        }
    }
    throw Error(ErrorNumber::subscript_out_of_range);
}

Sheet Book::active_sheet() const {
    const Ref<css::sheet::XSpreadsheetView> view(Ref{model()->getCurrentController()});
    return {*this, view->getActiveSheet()};
}

// A document that is gone refuses whatever it is asked.
void Book::require_alive() const {
    model()->getURL();
}

std::vector<Ref<css::frame::XController>> Book::controllers() const {
    std::vector<Ref<css::frame::XController>> result;
    const Ref elements{Ref<css::frame::XModel2>(document)->getControllers()};
    while (elements->hasMoreElements()) result.emplace_back(elements->nextElement());
    return result;
}

Sheet::Sheet(Book of, Ref<css::sheet::XSpreadsheet> which) : book(std::move(of)), sheet(std::move(which)) {
    Ways ways{Ref<css::sheet::XCellRangeAddressable>(sheet),
              Ref<css::sheet::XCellRangesAccess>(Ref{book.document->getSheets()}),
              Ref{Ref<css::drawing::XDrawPagesSupplier>(book.document)->getDrawPages()},
              {},
              {}};
    ways.page = page_at(ways.pages, ways.place->getRangeAddress().Sheet);
    ways_ = std::make_shared<Ways>(std::move(ways));
}

std::u16string Sheet::name() const {
    return from_uno(Ref<css::container::XNamed>(sheet)->getName());
}

css::table::CellRangeAddress Sheet::place() const {
    return is_seen() ? ways_->seen.place : ways_->place->getRangeAddress();
}

std::int32_t Sheet::index() const {
    return place().Sheet;
}

DrawPage Sheet::page() const {
    return page_at(ways_->pages, index());
}

void Sheet::require_alive() const {
    if (is_seen()) return;
    const css::table::CellRangeAddress now = ways_->place->getRangeAddress();
    if (!(page_at(ways_->pages, now.Sheet) == ways_->page)) throw Error(ErrorNumber::host_refused);
    ways_->seen = {host_calls, now};
}

Ref<css::table::XCellRange> Sheet::cells(std::int32_t left, std::int32_t top, std::int32_t right,
                                         std::int32_t bottom) const {
    const OnlyReads reads(*this);
    const css::table::CellRangeAddress now = place();
    // Where cells are deleted, the object that stands for the sheet loses rows or columns.
    const bool within = now.StartColumn == 0 && now.StartRow == 0 && now.EndColumn >= right && now.EndRow >= bottom;
    if (!within) return ways_->cells->getCellRangeByPosition(left, top, right, bottom, now.Sheet);
    if (left != right || top != bottom) return sheet->getCellRangeByPosition(left, top, right, bottom);
    return Ref<css::table::XCellRange>(Ref{sheet->getCellByPosition(left, top)});
}

Book book_named(const HostPointer& host, std::u16string_view name) {
    for (const Document& document : host->documents()) {
        Book book{host, document};
        if (equal_ignoring_case(book.name(), name)) return book;
    }
    throw Error(ErrorNumber::subscript_out_of_range);
}

Book active_book(const HostPointer& host) {
    Book book{host, host->active_document()};
    if (!book.document) throw Error(ErrorNumber::host_refused);
    return book;
}

}  // namespace qor::calc
