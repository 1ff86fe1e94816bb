#include <doctest/doctest.h>

#include <filesystem>

#include "automation/member_names.hpp"
#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "platform/text.hpp"
#include "tests/fakes/fake_object.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/memory_settings.hpp"
#include "tests/platform/temporary_folder.hpp"

using namespace qor;

namespace {

using Log = std::vector<std::u16string>;
using Texts = std::span<Variant>;

std::u16string text_of(const Variant& value) {
    if (const auto* number = value.get_if<std::int32_t>()) return from_utf8(std::to_string(*number));
    if (const auto* truth = value.get_if<bool>()) return *truth ? u"True" : u"False";
    const auto* text = value.get_if<std::u16string>();
    return text ? *text : u"?";
}

std::u16string joined(Texts values) {
    std::u16string line;
    for (const Variant& value : values) line += u' ' + text_of(value);
    return line;
}

// A host that writes down what is done to it.
struct Host {
    fakes::FakeScreen screen;
    fakes::MemorySettings settings;
    fakes::HostLog host_log;
    Log done;
    Object com = (set_environment({screen, settings}), make_object<CCom>());
    fakes::FakeObject* application = nullptr;
    Object host = fakes::make_fake(host_log, u"Application", [this](fakes::FakeObject& fake) {
        application = &fake;
        fake.holds(names::ActiveWorkbook, Object());
    });

    ~Host() { gExcel = Object(); }

    void set_option(const std::u16string& name, const std::u16string& value) {
        settings.values[{u"Options", name}] = value;
    }
    Object make(const std::u16string& type, const std::function<void(fakes::FakeObject&)>& fill) {
        return fakes::make_fake(host_log, type, fill);
    }
    // A member that writes down its arguments behind the line given.
    fakes::FakeObject::Answer writes(const std::u16string& line) {
        return [this, line](Access, Texts arguments) -> Variant {
            done.push_back(line + joined(arguments));
            return {};
        };
    }
    template <class... Arguments>
    void call(std::u16string_view member, Arguments&&... arguments) {
        com.call(MemberName(member), host, std::forward<Arguments>(arguments)...);
    }
};

std::u16string source_of(const std::function<void()>& statement) {
    try {
        statement();
    } catch (const Error& error) {
        return error.source();
    }
    return u"nothing was raised";
}

}  // namespace

TEST_CASE_FIXTURE(Host, "the toggles ask for a workbook and do no more") {
    for (const auto* name :
         {u"TBWinSel", u"TBWinSetPagBre", u"TBWinSetRowColHea", u"TBWinSetHorScrBar", u"TBWinSetFor", u"TBWinSetOutSym",
          u"TBWinSetVerScrBar", u"TBWinSetGri", u"TBWinSetZerVal", u"TBWinSetSheTab", u"TBWinSetIntZoo"}) {
        screen.log.clear();
        application->holds(names::ActiveWorkbook, Object());
        call(name);
        CHECK(screen.log == Log{u"message Sorry, but you must have an active workbook to perform this operation."});
        application->holds(names::ActiveWorkbook, make(u"Workbook", [](auto&) {}));
        host_log.calls = 0;
        call(name);
        CHECK(screen.log.size() == 1);
        CHECK(host_log.calls == 1);
        CHECK_FALSE(gExcel);
    }
    host_log.failing_call = host_log.calls + 1;
    CHECK(source_of([&] { call(u"TBWinSel"); }) == u"TBWinSel\r");
}

TEST_CASE_FIXTURE(Host, "windows are arranged in the first style that is chosen, if one is") {
    application->answers(names::Windows, [this](Access, Texts) -> Variant {
        return make(u"Windows", [this](auto& windows) { windows.answers(names::Arrange, writes(u"all")); });
    });
    application->holds(names::ActiveWorkbook, make(u"Workbook", [this](auto& book) {
                           book.answers(names::Windows, [this](Access, Texts) -> Variant {
                               return make(u"Windows",
                                           [this](auto& windows) { windows.answers(names::Arrange, writes(u"own")); });
                           });
                       }));
    set_option(u"rdoT1AutoAdjWin3", u"True");
    call(u"QAutoUpdateWindowPositions");
    CHECK(done.empty());
    set_option(u"chkT1AutoAdjWin", u"-1");
    call(u"QAutoUpdateWindowPositions");
    set_option(u"rdoT1AutoAdjWin2", u"-1");
    call(u"QAutoUpdateWindowPositions");
    set_option(u"rdoT1AutoAdjWin1", u"True");
    call(u"QAutoUpdateWindowPositions");
    set_option(u"rdoT1AutoAdjWin0", u"True");
    set_option(u"chkT1AutoAdjWinWorkbookOnly", u"-1");
    call(u"QAutoUpdateWindowPositions");
    CHECK(done == Log{u"all 7 False", u"all -4166 False", u"all -4128 False", u"own 1 True"});
    for (const auto* style : {u"rdoT1AutoAdjWin0", u"rdoT1AutoAdjWin1", u"rdoT1AutoAdjWin2", u"rdoT1AutoAdjWin3"})
        set_option(style, u"False");
    call(u"QAutoUpdateWindowPositions");
    CHECK(done.size() == 4);
    set_option(u"rdoT1AutoAdjWin1", u"sideways");
    CHECK(attempt([&] { call(u"QAutoUpdateWindowPositions"); }) == 13);
}

namespace {

struct Captions : Host {
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
        application->answers(names::ScreenUpdating, [this](Access, Texts value) -> Variant {
            done.push_back(u"drawing " + text_of(value[0]));
            return {};
        });
        application->answers(names::ActiveWorkbook, [this](Access, Texts) -> Variant { return workbook(active); });
        application->answers(names::ActiveWindow, [this](Access, Texts) -> Variant {
            return make(u"Window", [](auto& window) { window.holds(names::Index, 1); });
        });
        application->answers(names::ActiveSheet, [this](Access, Texts) -> Variant {
            return make(u"Worksheet", [](auto& sheet) { sheet.holds(names::Index, 2); });
        });
        application->answers(names::Workbooks, [this](Access, Texts name) -> Variant {
            if (name.empty()) {
                std::vector<Object> all;
                for (std::size_t place = 0; place < books.size(); ++place) all.push_back(workbook(place));
                return fakes::make_collection(host_log, u"Workbooks", all);
            }
            const auto place = std::ranges::find(books, text_of(name[0]), &Book::name);
            return workbook(static_cast<std::size_t>(place - books.begin()));
        });
        application->answers(names::Worksheets, [this](Access, Texts index) -> Variant {
            return make(u"Worksheet", [&](auto& sheet) {
                sheet.answers(names::Activate, writes(books[active].name + u" sheet" + joined(index)));
            });
        });
        application->answers(names::Cells, [this](Access, Texts) -> Variant {
            return make(u"Range", [this](auto& cell) {
                cell.holds(names::Parent,
                           make(u"Worksheet", [this](auto& sheet) { sheet.holds(names::Parent, workbook(active)); }));
            });
        });
    }

    Object workbook(std::size_t place) {
        return make(u"Workbook", [&](auto& book) {
            const Book& is = books[place];
            book.holds(names::Name, is.name);
            book.holds(names::Path, is.path);
            book.holds(names::FullName, is.path + u'\\' + is.name);
            book.holds(names::ReadOnly, is.read_only);
            book.answers(names::Activate, [this, place](Access, Texts) -> Variant {
                active = place;
                return {};
            });
            book.answers(names::Windows, [this, place](Access, Texts index) -> Variant {
                if (!index.empty()) return window(place);
                return make(u"Windows", [&](auto& windows) {
                    windows.holds(names::Count, books[place].windows);
                    windows.answers(names::Item, [this, place](Access, Texts) -> Variant { return window(place); });
                });
            });
        });
    }
    Object window(std::size_t place) {
        return make(u"Window", [&](auto& window) {
            window.answers(names::Activate, writes(books[place].name + u" window"));
            window.answers(names::Caption, [this, place](Access, Texts value) -> Variant {
                books[place].caption = text_of(value[0]);
                return {};
            });
        });
    }
    Log captions() const {
        Log all;
        for (const Book& book : books) all.push_back(book.caption);
        return all;
    }
};

}  // namespace

TEST_CASE_FIXTURE(Captions, "windows get the workbooks' names as captions") {
    call(u"QUpdateWindowCaption");
    CHECK(captions() == Log{u"Plan.xls", u"Book2", u"Tax.xls [Read-Only]"});
    CHECK(active == 1);
    CHECK(done == Log{u"drawing False", u"Book2 window", u"Book2 sheet 2", u"drawing True"});
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Captions, "windows get the full paths as captions, but those of new workbooks") {
    set_option(u"chkT1AddFullFilePath", u"-1");
    call(u"QUpdateWindowCaption");
    CHECK(captions() == Log{u"C:\\Books\\Plan.xls", u"Book2", u"C:\\Books\\Tax.xls [Read-Only]"});
}

TEST_CASE_FIXTURE(Captions, "a workbook with two windows keeps its captions") {
    books[0].windows = 2;
    call(u"QUpdateWindowCaption");
    CHECK(captions() == Log{u"as it was", u"Book2", u"Tax.xls [Read-Only]"});
}

TEST_CASE_FIXTURE(Captions, "when the host refuses a caption, the user is back where he was and the host draws") {
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Caption"; };
    CHECK(source_of([&] { call(u"QUpdateWindowCaption"); }) == u"QUpdateWindowCaption\r");
    CHECK(active == 1);
    CHECK(done.back() == u"drawing True");
}

namespace {

struct ScrollAreas : Host {
    std::vector<std::pair<std::u16string, std::u16string>> sheets{{u"Inputs", u"$A$1:$B$9"}, {u"Sums", u""}};
    std::vector<std::pair<std::u16string, std::u16string>> properties{{u"Owner", u"Ann"}};

    ScrollAreas() {
        set_option(u"chkT4SetScrollArea", u"-1");
        application->answers(names::Workbooks, [this](Access, Texts name) -> Variant {
            if (text_of(name[0]) != u"Plan.xls") throw Error(ErrorNumber::subscript_out_of_range);
            return make(u"Workbook", [this](auto& book) {
                book.answers(names::Worksheets, [this](Access, Texts) -> Variant {
                    return fakes::make_collection(host_log, u"Worksheets", pairs(sheets, names::ScrollArea));
                });
                book.answers(names::CustomDocumentProperties, [this](Access, Texts) -> Variant {
                    return make(u"DocumentProperties", [this](auto& all) {
                        all.contains(pairs(properties, names::Value));
                        all.answers(names::Add, [this](Access, Texts arguments) -> Variant {
                            done.push_back(u"add" + joined(arguments));
                            properties.emplace_back(text_of(arguments[0]), text_of(arguments[3]));
                            return {};
                        });
                    });
                });
            });
        });
    }
    std::vector<Object> pairs(std::vector<std::pair<std::u16string, std::u16string>>& entries,
                              const MemberName& property) {
        std::vector<Object> objects;
        objects.reserve(entries.size());
        for (auto& entry : entries) {
            objects.push_back(make(u"Entry", [&](auto& object) {
                object.holds(names::Name, entry.first);
                object.answers(property, [&entry](Access access, Texts value) -> Variant {
                    if (access == Access::put) entry.second = text_of(value[0]);
                    return entry.second;
                });
            }));
        }
        return objects;
    }
};

}  // namespace

TEST_CASE_FIXTURE(ScrollAreas, "scroll areas are kept in properties named as the worksheets") {
    call(u"QScrollableArea", u"Plan.xls", u"SAVE");
    CHECK(done == Log{u"add Inputs False 4 $A$1:$B$9 False", u"add Sums False 4  False"});
    sheets[0].second = u"$C$3";
    call(u"QScrollableArea", u"Plan.xls", u"SAVE");
    CHECK(done.size() == 2);
    CHECK(properties[1] == std::pair<std::u16string, std::u16string>(u"Inputs", u"$C$3"));
    CHECK(properties[0].second == u"Ann");
}

TEST_CASE_FIXTURE(ScrollAreas, "any other action sets the areas from the properties; a renamed worksheet has none") {
    call(u"QScrollableArea", u"Plan.xls", u"SAVE");
    sheets = {{u"Renamed", u"old"}, {u"Inputs", u""}};
    call(u"QScrollableArea", u"Plan.xls", u"save");
    CHECK(sheets[0].second == u"old");
    CHECK(sheets[1].second == u"$A$1:$B$9");
    CHECK(properties.size() == 3);
}

TEST_CASE_FIXTURE(ScrollAreas, "scroll areas are left alone while the option is off, and an unknown workbook is told") {
    settings.values.clear();
    call(u"QScrollableArea", u"Plan.xls", u"SAVE");
    call(u"QScrollableArea", u"No.xls", u"OPEN");
    CHECK(done.empty());
    set_option(u"chkT4SetScrollArea", u"True");
    CHECK(source_of([&] { call(u"QScrollableArea", u"No.xls", u"OPEN"); }) == u"QScrollableArea\r");
}

namespace {

struct LastCells : Host {
    std::int32_t last_row = 50;
    std::int32_t last_column = 4;
    std::int32_t used_row = 10;  // 0: nothing is found
    std::int32_t used_column = 4;

    LastCells() {
        application->holds(names::ActiveWorkbook, make(u"Workbook", [this](auto& book) {
                               book.answers(names::Worksheets, [this](Access, Texts) -> Variant {
                                   return fakes::make_collection(host_log, u"Worksheets", {sheet(), sheet()});
                               });
                           }));
    }
    Object cell(std::int32_t row, std::int32_t column) {
        return make(u"Range", [&](auto& range) {
            range.holds(names::Row, row);
            range.holds(names::Column, column);
        });
    }
    Object sheet() {
        return make(u"Worksheet", [this](auto& sheet) {
            sheet.answers(names::Cells, [this](Access, Texts at) -> Variant {
                if (!at.empty()) return cell(*at[0].get_if<std::int32_t>(), *at[1].get_if<std::int32_t>());
                return make(u"Range", [this](auto& cells) {
                    cells.answers(names::SpecialCells, [this](Access, Texts type) -> Variant {
                        CHECK(*type[0].get_if<std::int32_t>() == 11);
                        return cell(last_row, last_column);
                    });
                    cells.answers(names::Find, [this](Access, Texts what) -> Variant {
                        CHECK(text_of(what[0]) == u"*");
                        CHECK(text_of(what[3]) == u"2");
                        if (used_row == 0) return Object();
                        return cell(used_row, used_column);
                    });
                });
            });
            sheet.answers(names::Range, [this](Access, Texts corners) -> Variant {
                if (corners.size() == 1) return make(u"Range", [](auto&) {});
                std::u16string line;
                for (const Variant& corner : corners)
                    line += u' ' + text_of(corner.get(names::Row)) + u'/' + text_of(corner.get(names::Column));
                return make(u"Range", [&](auto& range) {
                    for (const MemberName* whole : {&names::EntireRow, &names::EntireColumn}) {
                        range.holds(*whole, make(u"Range", [&](auto& all) {
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
    CHECK(done == Log{u"EntireRow 11/1 50/1", u"UsedRange", u"EntireRow 11/1 50/1", u"UsedRange"});
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
    CHECK(done == Log{u"UsedRange", u"UsedRange"});
    done.clear();
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"SpecialCells"; };
    call(u"QResLasCelEacWor");
    CHECK(done == Log{u"UsedRange", u"UsedRange"});
    done.clear();
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Delete"; };
    used_column = 2;
    CHECK(attempt([&] { call(u"QResLasCelEacWor"); }) == 0);
    CHECK(done == Log{u"UsedRange", u"UsedRange"});
    done.clear();
    host_log.refuses = {};
    set_option(u"chkT4ResetLastCellUponSave", u"0");
    call(u"QResLasCelEacWor");
    CHECK(done.empty());
}

namespace {

struct Comments : Host {
    Comments() {
        application->answers(names::Worksheets, [this](Access, Texts sheet) -> Variant {
            return make(u"Worksheet", [&](auto& worksheet) {
                worksheet.answers(names::Range, [this, name = text_of(sheet[0])](Access, Texts cell) -> Variant {
                    const std::u16string place = name + u'!' + text_of(cell[0]);
                    return make(u"Range", [&](auto& range) {
                        if (place.ends_with(u"Z9")) {
                            range.holds(names::Comment, Object());
                            return;
                        }
                        range.holds(names::Comment, make(u"Comment", [&](auto& comment) {
                                        comment.answers(names::Visible, writes(place));
                                    }));
                    });
                });
            });
        });
    }
};

const MemberName QDoSelectionChange(u"QDoSelectionChange"), QWorksheetName(u"QWorksheetName"),
    QTargetAddress(u"QTargetAddress");

}  // namespace

TEST_CASE_FIXTURE(Comments, "a comment shows while its cell is selected") {
    call(u"QSheetSelectionChange", u"Inputs", u"B2");
    CHECK(done.empty());
    com.put(QDoSelectionChange, true);
    call(u"QSheetSelectionChange", u"Inputs", u"B2");
    CHECK(done == Log{u"Inputs!B2 True"});
    com.put(QWorksheetName, u"Inputs");
    com.put(QTargetAddress, u" ");
    call(u"QSheetSelectionChange", u"Inputs", u"C3");
    CHECK(done.size() == 2);
    com.put(QTargetAddress, u"B2");
    call(u"QSheetSelectionChange", u"Inputs", u"B2");
    CHECK(done == Log{u"Inputs!B2 True", u"Inputs!C3 True", u"Inputs!B2 True", u"Inputs!B2 False"});
    CHECK(*com.get(QTargetAddress).get_if<std::u16string>() == u"B2");
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Comments, "cells without a comment cost nothing, and each statement stands for itself") {
    com.put(QDoSelectionChange, true);
    com.put(QWorksheetName, u"Inputs");
    com.put(QTargetAddress, u"B2");
    CHECK(attempt([&] { call(u"QSheetSelectionChange", u"Inputs", u"Z9"); }) == 0);
    CHECK(done == Log{u"Inputs!B2 False"});
    CHECK_FALSE(gExcel);
}

namespace {

struct Backups : Host {
    test::TemporaryFolder folder;
    std::u16string path = from_utf8(folder.path.string());
    std::u16string book_path = u"C:\\Books";

    Backups() {
        set_option(u"chkT2AlwaysCreateBackupUponSave", u"-1");
        set_option(u"txtT2AlwaysCreateBackupUponSave", path);
        application->answers(names::Workbooks, [this](Access, Texts name) -> Variant {
            if (text_of(name[0]) != u"Plan.v2.xls") throw Error(ErrorNumber::subscript_out_of_range);
            return make(u"Workbook", [this](auto& book) {
                book.holds(names::Path, book_path);
                book.answers(names::SaveCopyAs, writes(u"copy"));
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Backups, "a backup is a copy in the folder of backups") {
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    set_option(u"txtT2AlwaysCreateBackupUponSave", path + u'\\');
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    set_option(u"txtT2AlwaysCreateBackupUponSave", u" " + path + u"/ ");
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(done == Log{u"copy " + path + u"\\Plan.v2.xlk", u"copy " + path + u"\\Plan.v2.xlk",
                      u"copy " + path + u"/Plan.v2.xlk"});
    CHECK(screen.log.empty());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Backups, "an old backup is replaced, after a question where the user wants one") {
    test::put(folder.path / "Plan.v2.xlk", "old");
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(screen.log.empty());
    set_option(u"chkT2WarnBackupExists", u"-1");
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(screen.log == Log{u"message Do you wish to replace existing backup?"});
    CHECK(screen.told.title == u"QOR Plus");
    CHECK(screen.told.buttons == MessageButtons::yes_no);
    CHECK(done.size() == 1);
    screen.answer = MessageAnswer::yes;
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(done.size() == 2);
}

TEST_CASE_FIXTURE(Backups, "without the folder, or for a workbook without a file, nothing is said and nothing copied") {
    book_path.clear();
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(gExcel);
    set_option(u"txtT2AlwaysCreateBackupUponSave", path + u"/vanished");
    gExcel = Object();
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(gExcel);
    set_option(u"chkT2AlwaysCreateBackupUponSave", u"0");
    call(u"QAlwCreBacBefSav");
    CHECK_FALSE(gExcel);
    CHECK(done.empty());
    CHECK(screen.log.empty());
}

TEST_CASE_FIXTURE(Backups, "no backup is made unless the user wants one") {
    settings.values.erase({u"Options", u"chkT2AlwaysCreateBackupUponSave"});
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(Backups, "a backup of no workbook at all is an error") {
    CHECK(source_of([&] { call(u"QAlwCreBacBefSav"); }) == u"QAlwCreBacBefSav\r");
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(Host, "the default folder for saving becomes the current one") {
    const test::TemporaryFolder folder;
    const auto before = std::filesystem::current_path();
    const MemberName QSetSaveFolder(u"QSetSaveFolder");
    set_option(u"txtT2DefaultSaveFolder", u" " + from_utf8(folder.path.string()) + u" ");
    com.call(QSetSaveFolder);
    CHECK(std::filesystem::current_path() == before);
    set_option(u"chkT2DefaultSave", u"-1");
    com.call(QSetSaveFolder);
    CHECK(std::filesystem::current_path() == std::filesystem::canonical(folder.path));
    std::filesystem::current_path(before);
    set_option(u"txtT2DefaultSaveFolder", u"  ");
    com.call(QSetSaveFolder);
    set_option(u"chkT2DefaultSave", u"sometimes");
    CHECK(attempt([&] { com.call(QSetSaveFolder); }) == 0);
    CHECK(std::filesystem::current_path() == before);
}
