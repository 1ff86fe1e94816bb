#include "workbooks/empty_worksheets.hpp"

#include <doctest/doctest.h>

#include <algorithm>

#include "tests/fakes/command_host.hpp"

using namespace qor;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;

namespace {

// A workbook whose worksheets are blocks of values and formulas from A1.
struct Sheets : fakes::CommandHost {
    struct Sheet {
        std::u16string name;
        std::vector<Variant> values;  // of one row
        std::vector<Variant> formulas;
        std::int32_t shapes = 0;
    };
    std::vector<Sheet> sheets;
    bool alerts = true;

    Sheets() {
        settings.set_option(u"chkT3AutoDeleteEmptyWorksheets", u"-1");
        application.answers(names::DisplayAlerts, [this](Access, Values value) -> Variant {
            alerts = to_boolean(value[0]);
            return {};
        });
        application.answers(names::WorksheetFunction, [this](Access, Values) -> Variant {
            return make(u"WorksheetFunction", [](FakeObject& functions) {
                functions.answers(names::CountA,
                                  [](Access, Values cells) -> Variant { return cells[0].get(names::Count); });
            });
        });
        application.answers(names::Workbooks, [this](Access, Values name) -> Variant {
            if (to_text(name[0]) != u"Plan.xls") throw Error(ErrorNumber::subscript_out_of_range);
            return make(u"Workbook", [this](FakeObject& book) {
                book.answers(names::Worksheets, [this](Access, Values) -> Variant {
                    return make(u"Worksheets", [this](FakeObject& all) {
                        all.answers(names::Count, [this](Access, Values) -> Variant {
                            return static_cast<std::int32_t>(sheets.size());
                        });
                        all.answers(names::Item, [this](Access, Values index) -> Variant {
                            return worksheet(sheets.at(static_cast<std::size_t>(to_long(index[0])) - 1).name);
                        });
                    });
                });
            });
        });
    }
    Sheet& find(const std::u16string& name) { return *std::ranges::find(sheets, name, &Sheet::name); }

    Object worksheet(const std::u16string& name) {
        return make(u"Worksheet", [&](FakeObject& sheet) {
            sheet.answers(names::Cells, [this, name](Access, Values) -> Variant {
                return make(u"Range", [&](FakeObject& cells) {
                    const auto& values = find(name).values;
                    const auto empty = std::ranges::count_if(values, &Variant::is_empty);
                    cells.holds(names::Count, static_cast<double>(std::ssize(values) - empty));
                });
            });
            sheet.answers(names::Shapes, [this, name](Access, Values) -> Variant {
                return make(u"Shapes", [&](FakeObject& shapes) { shapes.holds(names::Count, find(name).shapes); });
            });
            sheet.answers(names::UsedRange, [this, name](Access, Values) -> Variant { return used(name); });
            sheet.answers(names::Delete, [this, name](Access, Values) -> Variant {
                CHECK_FALSE(alerts);
                std::erase_if(sheets, [&](const Sheet& other) { return other.name == name; });
                return {};
            });
        });
    }
    static Variant row_of(const std::vector<Variant>& cells) {
        Array row = Array::table(1, cells.size());
        for (std::size_t column = 0; column < cells.size(); ++column) row.at(0, column) = cells[column];
        return row;
    }
    Object used(const std::u16string& name) {
        return make(u"Range", [&](FakeObject& range) {
            range.holds(names::Value, row_of(find(name).values));
            range.holds(names::Formula, row_of(find(name).formulas));
            range.answers(names::Cells, [this, name](Access, Values at) -> Variant {
                return run(name, to_long(at[1]), to_long(at[1]));
            });
            range.answers(names::Worksheet, [this, name](Access, Values) -> Variant {
                return make(u"Worksheet", [&](FakeObject& sheet) {
                    sheet.answers(names::Range, [this, name](Access, Values corners) -> Variant {
                        return run(name, to_long(corners[0].get(names::Column)),
                                   to_long(corners[1].get(names::Column)));
                    });
                });
            });
        });
    }
    Object run(const std::u16string& name, std::int32_t first, std::int32_t last) {
        return make(u"Range", [&](FakeObject& range) {
            range.holds(names::Column, first);
            range.answers(names::ClearContents, [this, name, first, last](Access, Values) -> Variant {
                done.push_back(name + u" clear " + to_text(first) + u'-' + to_text(last));
                if (refuses_runs && last > first) throw Error(ErrorNumber::host_refused);
                for (std::int32_t column = first; column <= last; ++column) {
                    find(name).values[static_cast<std::size_t>(column) - 1] = Empty{};
                    find(name).formulas[static_cast<std::size_t>(column) - 1] = u"";
                }
                return {};
            });
        });
    }
    Lines left() const {
        Lines all;
        for (const Sheet& sheet : sheets) all.push_back(sheet.name);
        return all;
    }
    void tidy() { call(u"QOptionDeleteEmptyWorksheets", u"Plan.xls"); }

    bool refuses_runs = false;
};

}  // namespace

TEST_CASE_FIXTURE(Sheets, "empty worksheets of an opened workbook are deleted, those with something are kept") {
    sheets = {{u"empty", {Empty{}}, {u""}},    {u"blank", {u" ", Empty{}, u"  "}, {u" ", u"", u"  "}},
              {u"nothing", {u""}, {u"=\"\""}}, {u"drawing", {Empty{}}, {u""}, 1},
              {u"number", {1.0}, {u"1"}},      {u"error", {ErrorValue{2007}}, {u"=1/0"}},
              {u"last", {Empty{}}, {u""}}};
    tidy();
    CHECK(left() == Lines{u"nothing", u"drawing", u"number", u"error"});
    CHECK(done == Lines{u"blank clear 1-1", u"blank clear 3-3"});
    CHECK(alerts);
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Sheets, "the last worksheet stays, though it is empty") {
    sheets = {{u"first", {Empty{}}, {u""}}, {u"second", {u" "}, {u" "}}};
    tidy();
    CHECK(left() == Lines{u"first"});
}

TEST_CASE_FIXTURE(Sheets, "cells of blanks are cleared in worksheets that stay, neighbours at once") {
    sheets = {{u"kept", {u" ", u"  ", 1.0, u" x ", u"   "}, {u" ", u"  ", u"1", u" x ", u"   "}},
              {u"other", {1.0}, {u"1"}}};
    tidy();
    CHECK(done == Lines{u"kept clear 1-2", u"kept clear 5-5"});
    CHECK(left() == Lines{u"kept", u"other"});
}

TEST_CASE_FIXTURE(Sheets, "neighbours that are refused at once are cleared one by one") {
    refuses_runs = true;
    sheets = {{u"kept", {u" ", u"  ", 1.0}, {u" ", u"  ", u"1"}}, {u"other", {1.0}, {u"1"}}};
    tidy();
    CHECK(done == Lines{u"kept clear 1-2", u"kept clear 1-1", u"kept clear 2-2"});
    CHECK(find(u"kept").values[1].is_empty());
}

TEST_CASE_FIXTURE(Sheets, "a worksheet that the host does not delete is passed over") {
    sheets = {{u"a", {Empty{}}, {u""}}, {u"b", {1.0}, {u"1"}}};
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Delete"; };
    tidy();
    CHECK(left() == Lines{u"a", u"b"});
    CHECK(alerts);
}

TEST_CASE_FIXTURE(Sheets, "nothing is deleted while the option is off, and an unknown workbook is told") {
    sheets = {{u"a", {Empty{}}, {u""}}, {u"b", {Empty{}}, {u""}}};
    settings.set_option(u"chkT3AutoDeleteEmptyWorksheets", u"0");
    tidy();
    settings.values.clear();
    tidy();
    CHECK(left() == Lines{u"a", u"b"});
    settings.set_option(u"chkT3AutoDeleteEmptyWorksheets", u"True");
    CHECK(attempt([&] { call(u"QOptionDeleteEmptyWorksheets"); }) == 9);
    CHECK(alerts);
}
