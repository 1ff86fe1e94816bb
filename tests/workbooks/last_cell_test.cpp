#include "workbooks/last_cell.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/command_host.hpp"

using namespace qor;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;

namespace {

struct LastCells : fakes::CommandHost {
    std::int32_t last_row = 50;
    std::int32_t last_column = 4;
    std::int32_t used_row = 10;  // 0: nothing is found
    std::int32_t used_column = 4;

    LastCells() {
        application.holds(names::ActiveWorkbook, make(u"Workbook", [this](FakeObject& book) {
                              book.answers(names::Worksheets, [this](Access, Values) -> Variant {
                                  return collection(u"Worksheets", {sheet(), sheet()});
                              });
                          }));
    }
    Object cell(std::int32_t row, std::int32_t column) {
        return make(u"Range", [&](FakeObject& range) {
            range.holds(names::Row, row);
            range.holds(names::Column, column);
        });
    }
    Object sheet() {
        return make(u"Worksheet", [this](FakeObject& sheet) {
            sheet.answers(names::Cells, [this](Access, Values at) -> Variant {
                if (!at.empty()) return cell(*at[0].get_if<std::int32_t>(), *at[1].get_if<std::int32_t>());
                return make(u"Range", [this](FakeObject& cells) {
                    cells.answers(names::SpecialCells, [this](Access, Values type) -> Variant {
                        CHECK(*type[0].get_if<std::int32_t>() == 11);
                        return cell(last_row, last_column);
                    });
                    cells.answers(names::Find, [this](Access, Values what) -> Variant {
                        CHECK(to_text(what[0]) == u"*");
                        CHECK(to_text(what[3]) == u"2");
                        if (used_row == 0) return Object();
                        return cell(used_row, used_column);
                    });
                });
            });
            sheet.answers(names::Range, [this](Access, Values corners) -> Variant {
                if (corners.size() == 1) return make(u"Range");
                std::u16string line;
                for (const Variant& corner : corners)
                    line += u' ' + to_text(corner.get(names::Row)) + u'/' + to_text(corner.get(names::Column));
                return make(u"Range", [&](FakeObject& range) {
                    for (const MemberName* whole : {&names::EntireRow, &names::EntireColumn}) {
                        range.holds(*whole, make(u"Range", [&](FakeObject& all) {
                            all.answers(names::Delete, writes(std::u16string(whole->text()) + line));
                        }));
                    }
                });
            });
            sheet.answers(names::UsedRange, writes(u"UsedRange"));
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(LastCells, "rows behind the last content are deleted in every worksheet, by default") {
    call(u"QResLasCelEacWor");
    CHECK(done == Lines{u"EntireRow 11/1 50/1", u"UsedRange", u"EntireRow 11/1 50/1", u"UsedRange"});
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(LastCells, "columns behind the last content are deleted, and all of an empty worksheet's") {
    used_row = 50;
    used_column = 2;
    call(u"QResLasCelEacWor");
    CHECK(done[0] == u"EntireColumn 1/3 1/4");
    CHECK(done[1] == u"UsedRange");
    done.clear();
    used_row = 0;
    call(u"QResLasCelEacWor");
    CHECK(done[0] == u"EntireRow 1/1 50/1");
    CHECK(done[1] == u"EntireColumn 1/1 1/4");
}

TEST_CASE_FIXTURE(LastCells, "nothing is deleted where the option is off or the host does not tell") {
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Find"; };
    call(u"QResLasCelEacWor");
    CHECK(done == Lines{u"UsedRange", u"UsedRange"});
    done.clear();
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"SpecialCells"; };
    call(u"QResLasCelEacWor");
    CHECK(done == Lines{u"UsedRange", u"UsedRange"});
    done.clear();
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Delete"; };
    used_column = 2;
    CHECK(attempt([&] { call(u"QResLasCelEacWor"); }) == 0);
    CHECK(done == Lines{u"UsedRange", u"UsedRange"});
    done.clear();
    host_log.refuses = {};
    settings.set_option(u"chkT4ResetLastCellUponSave", u"0");
    call(u"QResLasCelEacWor");
    CHECK(done.empty());
}
