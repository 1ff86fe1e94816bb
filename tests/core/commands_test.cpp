#include <doctest/doctest.h>

#include "automation/member_names.hpp"
#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"
#include "tests/fakes/fake_object.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/memory_settings.hpp"
#include "workbooks/empty_worksheets.hpp"

using namespace qor;

namespace {

using Log = std::vector<std::u16string>;
using Values = std::span<Variant>;

std::u16string joined(Values values) {
    std::u16string line;
    for (const Variant& value : values) line += u' ' + to_text(value);
    return line;
}

struct Host {
    fakes::FakeScreen screen;
    fakes::MemorySettings settings;
    fakes::HostLog host_log;
    Log done;
    Object com = (set_environment({screen, settings}), make_object<CCom>());
    fakes::FakeObject* application = nullptr;
    Object host = make(u"Application", [this](fakes::FakeObject& fake) {
        application = &fake;
        fake.holds(names::ActiveWorkbook, make(u"Workbook", [](auto&) {}));
    });

    ~Host() { gExcel = Object(); }

    Object make(const std::u16string& type, const std::function<void(fakes::FakeObject&)>& fill) {
        return fakes::make_fake(host_log, type, fill);
    }
    fakes::FakeObject::Answer writes(const std::u16string& line, Variant answer = {}) {
        return [this, line, answer](Access, Values arguments) -> Variant {
            done.push_back(line + joined(arguments));
            return answer;
        };
    }
    void set_option(const std::u16string& name, const std::u16string& value) {
        settings.values[{u"Options", name}] = value;
    }
    template <class... Arguments>
    void call(std::u16string_view member, Arguments&&... arguments) {
        com.call(MemberName(member), host, std::forward<Arguments>(arguments)...);
    }
};

// Workbooks with a file and without, changed and not, and an add-in.
struct Books : Host {
    std::vector<Object> books{
        book(u"Plan.xls", u"C:\\Books", false, -4143),
        book(u"Tax.xls", u"C:\\Books", true, -4143),
        book(u"Book3", u"", false, -4143),
        book(u"Tools.xla", u"C:\\Books", false, 18),
        book(u"Old.xla", u"", false, 26),
    };
    Variant file_name = false;

    Books() {
        application->answers(names::Workbooks, [this](Access, Values) -> Variant {
            return fakes::make_collection(host_log, u"Workbooks", books);
        });
        application->answers(names::GetSaveAsFilename, [this](Access, Values arguments) -> Variant {
            done.push_back(u"ask" + joined(arguments));
            return file_name;
        });
    }
    Object book(const std::u16string& name, const std::u16string& path, bool saved, std::int32_t format) {
        return make(u"Workbook", [&](auto& fake) {
            fake.holds(names::Name, name);
            fake.holds(names::Path, path);
            fake.holds(names::Saved, saved);
            fake.holds(names::FileFormat, format);
            fake.answers(names::Save, writes(name + u" save"));
            fake.answers(names::SaveAs, writes(name + u" as"));
            fake.answers(names::Close, writes(name + u" close"));
            fake.answers(names::Worksheets, [this, name](Access, Values) -> Variant {
                const auto sheet = [&](const std::u16string& number) {
                    return make(u"Worksheet", [&](auto& worksheet) {
                        worksheet.answers(names::PrintOut, writes(name + u" print " + number));
                    });
                };
                return fakes::make_collection(host_log, u"Worksheets", {sheet(u"1"), sheet(u"2")});
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Books, "all workbooks are closed, but add-ins, and the host asks") {
    call(u"UTCloAll");
    CHECK(done == Log{u"Plan.xls close", u"Tax.xls close", u"Book3 close"});
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Books, "workbooks with a file are saved at closing where the user wants no question") {
    set_option(u"chkT3AutoSaveB4Close", u"-1");
    call(u"UTCloAll");
    CHECK(done == Log{u"Plan.xls close True", u"Tax.xls close True", u"Book3 close"});
}

TEST_CASE_FIXTURE(Books, "all workbooks that have changed are saved, a new one under the name that is given") {
    for (const auto* member : {u"UTSavAll", u"UTSavWorEve"}) {
        done.clear();
        file_name = false;
        call(member);
        CHECK(done == Log{u"Plan.xls save", u"ask Book3 Microsoft Excel Workbook (*.xls), *.xls"});
        done.clear();
        file_name = u"C:\\Books\\New.xls";
        call(member);
        CHECK(done == Log{u"Plan.xls save", u"ask Book3 Microsoft Excel Workbook (*.xls), *.xls",
                          u"Book3 as C:\\Books\\New.xls -4143"});
    }
}

TEST_CASE_FIXTURE(Books, "all worksheets are printed, those of add-ins too") {
    call(u"UTPriAll");
    REQUIRE(done.size() == 10);
    CHECK(done[0] == u"Plan.xls print 1");
    CHECK(done[1] == u"Plan.xls print 2");
    CHECK(done[9] == u"Old.xla print 2");
}

TEST_CASE_FIXTURE(Books, "the commands for all workbooks need an active one, and tell what the host raises") {
    for (const auto* member : {u"UTCloAll", u"UTSavAll", u"UTSavWorEve", u"UTPriAll", u"UTSetScrAre", u"UTCleScrAre"}) {
        screen.log.clear();
        application->holds(names::ActiveWorkbook, Object());
        call(member);
        CHECK(screen.log == Log{u"message Sorry, but you must have an active workbook to perform this operation."});
        CHECK(done.empty());
        CHECK_FALSE(gExcel);
        host_log.refuses = [](auto, std::u16string_view name, auto) { return name == u"ActiveWorkbook"; };
        try {
            call(member);
            FAIL("nothing was raised");
        } catch (const Error& error) {
            CHECK(error.number() == 1004);
            CHECK(error.source() == std::u16string(member) + u'\r');
        }
        host_log.refuses = {};
    }
}

namespace {

struct RecentFiles : Host {
    std::int32_t count = 3;
    std::int32_t most = 9;
    bool shown = true;

    RecentFiles() {
        application->answers(names::DisplayRecentFiles, [this](Access access, Values value) -> Variant {
            if (access == Access::put) shown = to_boolean(value[0]);
            return shown;
        });
        application->answers(names::RecentFiles, [this](Access, Values) -> Variant {
            return make(u"RecentFiles", [this](auto& files) {
                files.answers(names::Count, [this](Access, Values) -> Variant { return count; });
                files.answers(names::Maximum, [this](Access access, Values value) -> Variant {
                    if (access == Access::put) most = to_long(value[0]);
                    return most;
                });
                files.answers(names::Item, [this](Access, Values index) -> Variant {
                    CHECK(to_long(index[0]) == 1);
                    return make(u"RecentFile", [this](auto& file) {
                        file.answers(names::Delete, [this](Access, Values) -> Variant {
                            --count;
                            most = 0;
                            shown = false;
                            return {};
                        });
                    });
                });
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(RecentFiles,
                  "the list of recent files is emptied where the user wants that, or when it is asked for") {
    call(u"UTCleRecFil");
    call(u"UTCleRecFil", false);
    CHECK(count == 3);
    call(u"UTCleRecFil", true);
    CHECK(count == 0);
    CHECK(most == 9);
    CHECK(shown);
    count = 2;
    set_option(u"chkT1DeleteRecentFiles", u"-1");
    call(u"UTCleRecFil");
    CHECK(count == 0);
    CHECK_FALSE(gExcel);
}

namespace {

struct Group : Host {
    std::u16string active = u"B";
    std::vector<std::u16string> group{u"B", u"C"};

    Group() {
        application->answers(names::ScreenUpdating, writes(u"drawing"));
        application->answers(names::ActiveSheet, [this](Access, Values) -> Variant {
            return make(u"Worksheet", [](auto& sheet) { sheet.holds(names::Index, 2); });
        });
        application->answers(names::ActiveWindow, [this](Access, Values) -> Variant {
            return make(u"Window", [this](auto& window) {
                std::vector<Object> sheets;
                for (const auto& name : group)
                    sheets.push_back(make(u"Worksheet", [&](auto& sheet) { sheet.holds(names::Name, name); }));
                window.holds(names::SelectedSheets, fakes::make_collection(host_log, u"Sheets", sheets));
            });
        });
        application->answers(names::Selection, [this](Access, Values) -> Variant {
            return make(u"Range", [this](auto& selection) {
                selection.answers(names::Areas, [this](Access, Values index) -> Variant {
                    CHECK(to_long(index[0]) == 1);
                    return make(u"Range",
                                [this](auto& area) { area.holds(names::AddressLocal, u"$A$1 of " + active); });
                });
            });
        });
        application->answers(names::Worksheets, [this](Access, Values index) -> Variant {
            const std::u16string name = index[0].get_if<std::int32_t>() ? u"B" : to_text(index[0]);
            return make(u"Worksheet", [&](auto& sheet) {
                sheet.answers(names::Activate, [this, name](Access, Values) -> Variant {
                    active = name;
                    done.push_back(u"activate " + name);
                    return {};
                });
                sheet.answers(names::Select, writes(u"select " + name));
                sheet.answers(names::ScrollArea, writes(u"scroll " + name));
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Group, "each selected worksheet scrolls within its own selection, and the group comes back") {
    call(u"UTSetScrAre");
    CHECK(done == Log{u"drawing False", u"activate B", u"scroll B $A$1 of B", u"activate C", u"scroll C $A$1 of C",
                      u"activate B", u"select B False", u"select C False", u"drawing True"});
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Group, "the group comes back when the host refuses a scroll area") {
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"AddressLocal"; };
    CHECK(attempt([&] { call(u"UTSetScrAre"); }) == 1004);
    CHECK(done ==
          Log{u"drawing False", u"activate B", u"activate B", u"select B False", u"select C False", u"drawing True"});
}

TEST_CASE_FIXTURE(Group, "scroll areas are cleared without moving the user") {
    call(u"UTCleScrAre");
    CHECK(done == Log{u"scroll B ", u"scroll C "});
    CHECK(active == u"B");
}

namespace {

// A workbook whose worksheets are blocks of values and formulas from A1.
struct Sheets : Host {
    struct Sheet {
        std::u16string name;
        std::vector<Variant> values;  // of one row
        std::vector<Variant> formulas;
        std::int32_t shapes = 0;
    };
    std::vector<Sheet> sheets;
    bool alerts = true;

    Sheets() {
        set_option(u"chkT3AutoDeleteEmptyWorksheets", u"-1");
        application->answers(names::DisplayAlerts, [this](Access, Values value) -> Variant {
            alerts = to_boolean(value[0]);
            return {};
        });
        application->answers(names::WorksheetFunction, [this](Access, Values) -> Variant {
            return make(u"WorksheetFunction", [](auto& functions) {
                functions.answers(names::CountA,
                                  [](Access, Values cells) -> Variant { return cells[0].get(names::Count); });
            });
        });
        application->answers(names::Workbooks, [this](Access, Values name) -> Variant {
            if (to_text(name[0]) != u"Plan.xls") throw Error(ErrorNumber::subscript_out_of_range);
            return make(u"Workbook", [this](auto& book) {
                book.answers(names::Worksheets, [this](Access, Values) -> Variant {
                    return make(u"Worksheets", [this](auto& all) {
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
        return make(u"Worksheet", [&](auto& sheet) {
            sheet.answers(names::Cells, [this, name](Access, Values) -> Variant {
                return make(u"Range", [&](auto& cells) {
                    const auto& values = find(name).values;
                    const auto empty = std::ranges::count_if(values, &Variant::is_empty);
                    cells.holds(names::Count, static_cast<double>(std::ssize(values) - empty));
                });
            });
            sheet.answers(names::Shapes, [this, name](Access, Values) -> Variant {
                return make(u"Shapes", [&](auto& shapes) { shapes.holds(names::Count, find(name).shapes); });
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
        return make(u"Range", [&](auto& range) {
            range.holds(names::Value, row_of(find(name).values));
            range.holds(names::Formula, row_of(find(name).formulas));
            range.answers(names::Cells, [this, name](Access, Values at) -> Variant {
                return run(name, to_long(at[1]), to_long(at[1]));
            });
            range.answers(names::Worksheet, [this, name](Access, Values) -> Variant {
                return make(u"Worksheet", [&](auto& sheet) {
                    sheet.answers(names::Range, [this, name](Access, Values corners) -> Variant {
                        return run(name, to_long(corners[0].get(names::Column)),
                                   to_long(corners[1].get(names::Column)));
                    });
                });
            });
        });
    }
    Object run(const std::u16string& name, std::int32_t first, std::int32_t last) {
        return make(u"Range", [&](auto& range) {
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
    Log left() const {
        Log all;
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
    CHECK(left() == Log{u"nothing", u"drawing", u"number", u"error"});
    CHECK(done == Log{u"blank clear 1-1", u"blank clear 3-3"});
    CHECK(alerts);
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Sheets, "the last worksheet stays, though it is empty") {
    sheets = {{u"first", {Empty{}}, {u""}}, {u"second", {u" "}, {u" "}}};
    tidy();
    CHECK(left() == Log{u"first"});
}

TEST_CASE_FIXTURE(Sheets, "cells of blanks are cleared in worksheets that stay, neighbours at once") {
    sheets = {{u"kept", {u" ", u"  ", 1.0, u" x ", u"   "}, {u" ", u"  ", u"1", u" x ", u"   "}},
              {u"other", {1.0}, {u"1"}}};
    tidy();
    CHECK(done == Log{u"kept clear 1-2", u"kept clear 5-5"});
    CHECK(left() == Log{u"kept", u"other"});
}

TEST_CASE_FIXTURE(Sheets, "neighbours that are refused at once are cleared one by one") {
    refuses_runs = true;
    sheets = {{u"kept", {u" ", u"  ", 1.0}, {u" ", u"  ", u"1"}}, {u"other", {1.0}, {u"1"}}};
    tidy();
    CHECK(done == Log{u"kept clear 1-2", u"kept clear 1-1", u"kept clear 2-2"});
    CHECK(find(u"kept").values[1].is_empty());
}

TEST_CASE_FIXTURE(Sheets, "a worksheet that the host does not delete is passed over") {
    sheets = {{u"a", {Empty{}}, {u""}}, {u"b", {1.0}, {u"1"}}};
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Delete"; };
    tidy();
    CHECK(left() == Log{u"a", u"b"});
    CHECK(alerts);
}

TEST_CASE_FIXTURE(Sheets, "nothing is deleted while the option is off, and an unknown workbook is told") {
    sheets = {{u"a", {Empty{}}, {u""}}, {u"b", {Empty{}}, {u""}}};
    set_option(u"chkT3AutoDeleteEmptyWorksheets", u"0");
    tidy();
    settings.values.clear();
    tidy();
    CHECK(left() == Log{u"a", u"b"});
    set_option(u"chkT3AutoDeleteEmptyWorksheets", u"True");
    CHECK(attempt([&] { call(u"QOptionDeleteEmptyWorksheets"); }) == 9);
    CHECK(alerts);
}
