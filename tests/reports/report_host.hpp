#pragma once

#include "tests/fakes/fake_grid.hpp"
#include "tests/fakes/fake_host.hpp"
#include "tests/runtime/country.hpp"

namespace qor::fakes {

// A host with one workbook, model.xls, whose sheets are read, and a sheet that takes the report. Adding a workbook or
// a worksheet says in `done` what was added where. It is 15 March 2004, and the user is called Pat Doe.
struct ReportHost : FakeHost {
    Grid grid;
    std::vector<Object> sheets;
    test::TimeStopped time{Date{38061.6}};

    // A sheet of one row, or of one cell if both are no arrays.
    void add_sheet(const std::u16string& name, const Variant& values, const Variant& formulas,
                   std::int32_t visible = -1) {
        const Object used = make(u"UsedRange", [&](FakeObject& fake) {
            fake.holds(names::Value, values).holds(names::Formula, formulas);
            fake.holds(names::Count, static_cast<std::int32_t>(values.array() ? values.array()->size() : 1));
        });
        const auto counted = [&](std::int32_t count) {
            return make(u"Collection", [&](FakeObject& fake) { fake.holds(names::Count, count); });
        };
        sheets.push_back(make(u"Sheet", [&](FakeObject& fake) {
            fake.holds(names::Name, name).holds(names::Visible, visible).holds(names::UsedRange, used);
            fake.holds(names::ProtectContents, true).holds(names::ProtectDrawingObjects, false);
            fake.holds(names::ProtectScenarios, true);
            fake.holds(names::Comments, counted(3)).holds(names::Hyperlinks, counted(5));
        }));
    }

    void start() {
        const Object worksheets = make(u"Worksheets", [&](FakeObject& fake) {
            fake.contains(sheets);
            fake.holds(names::Count, static_cast<std::int32_t>(sheets.size()));
            fake.answers(names::Item, [this](Access, Values at) -> Variant {
                return sheets[static_cast<std::size_t>(*at[0].get_if<std::int32_t>()) - 1];
            });
            fake.answers(names::Add, writes(u"beside"));
        });
        const Object window = make(
            u"Window", [&](FakeObject& fake) { fake.holds(names::Caption, u"model.xls").holds(names::Visible, true); });
        const Object workbook = make(u"Workbook", [&](FakeObject& fake) {
            fake.holds(names::Name, u"model.xls").holds(names::FileFormat, -4143).holds(names::ReadOnly, false);
            fake.holds(names::Windows, collection(u"Windows", {window}));
            fake.answers(names::Worksheets,
                         [worksheets, find = finds(u"Worksheets", sheets)](Access access, Values at) {
                             return at.empty() ? Variant(worksheets) : find(access, at);
                         });
        });
        const Object workbooks = make(u"Workbooks", [&](FakeObject& fake) {
            fake.contains({workbook});
            fake.answers(names::Add, writes(u"workbook"));
        });
        application.answers(names::Workbooks,
                            [workbooks, find = finds(u"Workbooks", {workbook})](Access access, Values at) {
                                return at.empty() ? Variant(workbooks) : find(access, at);
                            });
        application.holds(names::ActiveWorkbook, workbook);
        application.holds(names::ActiveSheet, make_grid_sheet(host_log, grid));
        application.holds(names::UserName, u"Pat Doe");
        begin_command();
    }

    // What was put into a cell of the report, as text; nothing where nothing was put.
    Variant value(std::int32_t row, std::int32_t column, const std::u16string& property = u"Value") const {
        const auto place = grid.find({row, column, property});
        return place == grid.end() ? Variant(Missing{}) : place->second;
    }
};

}  // namespace qor::fakes
