#include "workbooks/window_captions.hpp"

#include <doctest/doctest.h>

#include <algorithm>

#include "tests/fakes/command_host.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;
using test::error_from;

namespace {

struct Captions : fakes::CommandHost {
    struct Book {
        std::u16string name;
        std::u16string path;
        bool read_only = false;
        std::int32_t windows = 1;
        std::u16string caption = u"as it was";
    };
    std::vector<Book> books{{u"Plan.xls", u"C:\\Books"}, {u"Book2", u""}, {u"Tax.xls", u"C:\\Books", true}};
    std::size_t active = 1;

    Captions() {
        application.answers(names::ScreenUpdating, [this](Access, Values value) -> Variant {
            done.push_back(u"drawing " + to_text(value[0]));
            return {};
        });
        application.answers(names::ActiveWorkbook, [this](Access, Values) -> Variant { return workbook(active); });
        application.answers(names::ActiveWindow, [this](Access, Values) -> Variant {
            return make(u"Window", [](FakeObject& window) { window.holds(names::Index, 1); });
        });
        application.answers(names::ActiveSheet, [this](Access, Values) -> Variant {
            return make(u"Worksheet", [](FakeObject& sheet) { sheet.holds(names::Index, 2); });
        });
        application.answers(names::Workbooks, [this](Access, Values name) -> Variant {
            if (name.empty()) {
                std::vector<Object> all;
                for (std::size_t place = 0; place < books.size(); ++place) all.push_back(workbook(place));
                return collection(u"Workbooks", all);
            }
            const auto place = std::ranges::find(books, to_text(name[0]), &Book::name);
            return workbook(static_cast<std::size_t>(place - books.begin()));
        });
        application.answers(names::Worksheets, [this](Access, Values index) -> Variant {
            return make(u"Worksheet", [&](FakeObject& sheet) {
                sheet.answers(names::Activate, writes(books[active].name + u" sheet" + joined(index)));
            });
        });
        application.answers(names::Cells, [this](Access, Values) -> Variant {
            return make(u"Range", [this](FakeObject& cell) {
                cell.holds(names::Parent, make(u"Worksheet", [this](FakeObject& sheet) {
                               sheet.holds(names::Parent, workbook(active));
                           }));
            });
        });
    }

    Object workbook(std::size_t place) {
        return make(u"Workbook", [&](FakeObject& book) {
            const Book& is = books[place];
            book.holds(names::Name, is.name);
            book.holds(names::Path, is.path);
            book.holds(names::FullName, is.path + u'\\' + is.name);
            book.holds(names::ReadOnly, is.read_only);
            book.answers(names::Activate, [this, place](Access, Values) -> Variant {
                active = place;
                return {};
            });
            book.answers(names::Windows, [this, place](Access, Values index) -> Variant {
                if (!index.empty()) return window(place);
                return make(u"Windows", [&](FakeObject& windows) {
                    windows.holds(names::Count, books[place].windows);
                    windows.answers(names::Item, [this, place](Access, Values) -> Variant { return window(place); });
                });
            });
        });
    }
    Object window(std::size_t place) {
        return make(u"Window", [&](FakeObject& window) {
            window.answers(names::Activate, writes(books[place].name + u" window"));
            window.answers(names::Caption, [this, place](Access, Values value) -> Variant {
                books[place].caption = to_text(value[0]);
                return {};
            });
        });
    }
    Lines captions() const {
        Lines all;
        for (const Book& book : books) all.push_back(book.caption);
        return all;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Captions, "windows get the workbooks' names as captions") {
    call(u"QUpdateWindowCaption");
    CHECK(captions() == Lines{u"Plan.xls", u"Book2", u"Tax.xls [Read-Only]"});
    CHECK(active == 1);
    CHECK(done == Lines{u"drawing False", u"Book2 window", u"Book2 sheet 2", u"drawing True"});
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Captions, "windows get the full paths as captions, but those of new workbooks") {
    settings.set_option(u"chkT1AddFullFilePath", u"-1");
    call(u"QUpdateWindowCaption");
    CHECK(captions() == Lines{u"C:\\Books\\Plan.xls", u"Book2", u"C:\\Books\\Tax.xls [Read-Only]"});
}

TEST_CASE_FIXTURE(Captions, "a workbook with two windows keeps its captions") {
    books[0].windows = 2;
    call(u"QUpdateWindowCaption");
    CHECK(captions() == Lines{u"as it was", u"Book2", u"Tax.xls [Read-Only]"});
}

TEST_CASE_FIXTURE(Captions, "when the host refuses a caption, the user is back where he was and the host draws") {
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Caption"; };
    CHECK(error_from([&] { call(u"QUpdateWindowCaption"); }).source() == u"QUpdateWindowCaption\r");
    CHECK(active == 1);
    CHECK(done.back() == u"drawing True");
}
