#pragma once

#include "ground/MMain.hpp"
#include "runtime/clock.hpp"
#include "tests/fakes/fake_grid.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/fake_settings.hpp"

namespace qor::fakes {

// A host with one workbook, model.xls, whose sheets are read, and a sheet that takes the report. Adding a workbook or
// a worksheet says in `added` what was added where. It is 15 March 2004, and the user is called Pat Doe.
struct ReportHost {
    HostLog log;
    FakeScreen screen;
    FakeSettings settings;
    Grid grid;
    std::vector<std::u16string> added;
    std::vector<Object> sheets;
    std::function<Date()> real_clock = wall_clock();

    ReportHost() {
        set_environment({screen, settings});
        wall_clock() = [] { return Date{38061.6}; };
    }
    ~ReportHost() {
        gExcel = {};
        wall_clock() = real_clock;
    }
    ReportHost(const ReportHost&) = delete;
    ReportHost& operator=(const ReportHost&) = delete;

    // A sheet of one row, or of one cell if both are no arrays.
    void add_sheet(const std::u16string& name, const Variant& values, const Variant& formulas,
                   std::int32_t visible = -1) {
        const Object used = make_fake(log, u"UsedRange", [&](FakeObject& fake) {
            fake.holds(names::Value, values).holds(names::Formula, formulas);
            fake.holds(names::Count, static_cast<std::int32_t>(values.array() ? values.array()->size() : 1));
        });
        const auto counted = [&](std::int32_t count) {
            return make_fake(log, u"Collection", [&](FakeObject& fake) { fake.holds(names::Count, count); });
        };
        sheets.push_back(make_fake(log, u"Sheet", [&](FakeObject& fake) {
            fake.holds(names::Name, name).holds(names::Visible, visible).holds(names::UsedRange, used);
            fake.holds(names::ProtectContents, true).holds(names::ProtectDrawingObjects, false);
            fake.holds(names::ProtectScenarios, true);
            fake.holds(names::Comments, counted(3)).holds(names::Hyperlinks, counted(5));
        }));
    }

    void start() {
        const Object worksheets = make_fake(log, u"Worksheets", [&](FakeObject& fake) {
            fake.contains(sheets);
            fake.holds(names::Count, static_cast<std::int32_t>(sheets.size()));
            fake.answers(names::Item, [this](Access, std::span<Variant> at) -> Variant {
                return sheets[static_cast<std::size_t>(*at[0].get_if<std::int32_t>()) - 1];
            });
            fake.answers(names::Add, [this](Access, std::span<Variant> at) -> Variant {
                added.push_back(u"beside " + *at[0].get(names::Name).get_if<std::u16string>());
                return {};
            });
        });
        const Object window = make_fake(log, u"Window", [&](FakeObject& fake) {
            fake.holds(names::Caption, u"model.xls").holds(names::Visible, true);
        });
        const Object workbook = make_fake(log, u"Workbook", [&](FakeObject& fake) {
            fake.holds(names::Name, u"model.xls").holds(names::FileFormat, -4143).holds(names::ReadOnly, false);
            fake.holds(names::Windows, make_collection(log, u"Windows", {window}));
            fake.answers(names::Worksheets, [this, worksheets](Access, std::span<Variant> at) -> Variant {
                if (at.empty()) return worksheets;
                for (const Object& sheet : sheets) {
                    if (*sheet.get(names::Name).get_if<std::u16string>() == *at[0].get_if<std::u16string>()) {
                        return sheet;
                    }
                }
                throw Error(ErrorNumber::subscript_out_of_range);
            });
        });
        const Object workbooks = make_fake(log, u"Workbooks", [&](FakeObject& fake) {
            fake.contains({workbook});
            fake.answers(names::Add, [this](Access, std::span<Variant>) -> Variant {
                added.emplace_back(u"workbook");
                return {};
            });
        });
        gExcel = make_fake(log, u"Application", [&](FakeObject& fake) {
            fake.answers(names::Workbooks, [=](Access, std::span<Variant> at) -> Variant {
                if (at.empty()) return workbooks;
                if (*at[0].get_if<std::u16string>() == u"model.xls") return workbook;
                throw Error(ErrorNumber::subscript_out_of_range);
            });
            fake.holds(names::ActiveWorkbook, workbook);
            fake.holds(names::ActiveSheet, make_grid_sheet(log, grid));
            fake.holds(names::UserName, u"Pat Doe");
        });
    }

    // What was put into a cell of the report, as text; nothing where nothing was put.
    Variant value(std::int32_t row, std::int32_t column, const std::u16string& property = u"Value") const {
        const auto place = grid.find({row, column, property});
        return place == grid.end() ? Variant(Missing{}) : place->second;
    }
};

}  // namespace qor::fakes
