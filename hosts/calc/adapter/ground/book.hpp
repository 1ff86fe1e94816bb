#pragma once

#include <com/sun/star/drawing/XDrawPage.hpp>
#include <com/sun/star/drawing/XDrawPages.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangesAccess.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <string>
#include <vector>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/uno/running_command.hpp"

namespace qor::calc {

struct Sheet;
using DrawPage = Ref<css::drawing::XDrawPage>;

// An open workbook.
struct Book {
    HostPointer host;
    Document document;

    Ref<css::frame::XModel> model() const { return Ref<css::frame::XModel>(document); }
    // As Excel names it: the file's name with its extension, or the title of a workbook that was never saved.
    std::u16string name() const;
    // The path of its file in the system's notation; empty when it was never saved.
    std::u16string file_path() const;
    std::vector<Sheet> sheets() const;
    // Raises 9 when there is none of that name. Names are compared without regard to case.
    Sheet sheet(std::u16string_view name) const;
    Sheet active_sheet() const;
    // Raises 1004 when it is closed.
    void require_alive() const;
    // Its windows in the order of their opening.
    std::vector<Ref<css::frame::XController>> controllers() const;
};

// One worksheet of a workbook.
struct Sheet {
    // While it lives, the calls into the office only read: what was seen of the sheet before them holds after them.
    class OnlyReads {
      public:
        explicit OnlyReads(const Sheet& sheet) : sheet_(sheet), seen_(sheet.is_seen()) {}
        OnlyReads(const OnlyReads&) = delete;
        OnlyReads& operator=(const OnlyReads&) = delete;
        ~OnlyReads() {
            if (seen_) sheet_.ways_->seen.at_call = host_calls;
        }

      private:
        const Sheet& sheet_;
        bool seen_;
    };

    Sheet(Book of, Ref<css::sheet::XSpreadsheet> which);

    Book book;
    Ref<css::sheet::XSpreadsheet> sheet;

    std::u16string name() const;
    std::int32_t index() const;  // from 0, at this moment
    // What is drawn on it.
    DrawPage page() const;
    // Raises 1004 when the sheet or its workbook is gone.
    void require_alive() const;

    // By columns and rows from 0, both ends within.
    Ref<css::table::XCellRange> cells(std::int32_t left, std::int32_t top, std::int32_t right,
                                      std::int32_t bottom) const;

  private:
    // That it was there, and its place, at that number of calls into the office.
    struct Seen {
        std::uint64_t at_call = 0;
        css::table::CellRangeAddress place;
    };
    // What is asked for again and again.
    struct Ways {
        Ref<css::sheet::XCellRangeAddressable> place;
        Ref<css::sheet::XCellRangesAccess> cells;
        Ref<css::drawing::XDrawPages> pages;
        // The office goes on answering for a sheet that was deleted, out of the one that took its place; only the page
        // that is found there is another one.
        DrawPage page;
        Seen seen;
    };

    // While a command runs, nothing changes but by calls into the office.
    bool is_seen() const { return RunningCommand::any() && ways_->seen.at_call == host_calls; }
    css::table::CellRangeAddress place() const;

    std::shared_ptr<Ways> ways_;
};

// The open workbook of that name; raises 9 when there is none.
Book book_named(const HostPointer& host, std::u16string_view name);
// The workbook that the user works in; raises 1004 when there is none.
Book active_book(const HostPointer& host);

}  // namespace qor::calc
