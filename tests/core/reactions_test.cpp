#include "core/reactions.hpp"

#include <doctest/doctest.h>

#include <filesystem>

#include "platform/text.hpp"
#include "tests/fakes/command_host.hpp"
#include "tests/support/raised.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using fakes::CommandHost;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;
using test::error_from;

namespace {

struct ScrollAreas : fakes::CommandHost {
    std::vector<std::pair<std::u16string, std::u16string>> sheets{{u"Inputs", u"$A$1:$B$9"}, {u"Sums", u""}};
    std::vector<std::pair<std::u16string, std::u16string>> properties{{u"Owner", u"Ann"}};

    ScrollAreas() {
        settings.set_option(u"chkT4SetScrollArea", u"-1");
        application.answers(names::Workbooks, [this](Access, Values name) -> Variant {
            if (to_text(name[0]) != u"Plan.xls") throw Error(ErrorNumber::subscript_out_of_range);
            return make(u"Workbook", [this](FakeObject& book) {
                book.answers(names::Worksheets, [this](Access, Values) -> Variant {
                    return collection(u"Worksheets", pairs(sheets, names::ScrollArea));
                });
                book.answers(names::CustomDocumentProperties, [this](Access, Values) -> Variant {
                    return make(u"DocumentProperties", [this](FakeObject& all) {
                        all.contains(pairs(properties, names::Value));
                        all.answers(names::Add, [this](Access, Values arguments) -> Variant {
                            done.push_back(u"add" + joined(arguments));
                            properties.emplace_back(to_text(arguments[0]), to_text(arguments[3]));
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
            objects.push_back(make(u"Entry", [&](FakeObject& object) {
                object.holds(names::Name, entry.first);
                object.answers(property, [&entry](Access access, Values value) -> Variant {
                    if (access == Access::put) entry.second = to_text(value[0]);
                    return entry.second;
                });
            }));
        }
        return objects;
    }
};

struct Comments : fakes::CommandHost {
    Comments() {
        application.answers(names::Worksheets, [this](Access, Values sheet) -> Variant {
            return make(u"Worksheet", [&](FakeObject& worksheet) {
                worksheet.answers(names::Range, [this, name = to_text(sheet[0])](Access, Values cell) -> Variant {
                    const std::u16string place = name + u'!' + to_text(cell[0]);
                    return make(u"Range", [&](FakeObject& range) {
                        if (place.ends_with(u"Z9")) {
                            range.holds(names::Comment, Object());
                            return;
                        }
                        range.holds(names::Comment, make(u"Comment", [&](FakeObject& comment) {
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

struct Backups : fakes::CommandHost {
    test::TemporaryFolder folder;
    std::u16string path = from_utf8(folder.path.string());
    std::u16string book_path = u"C:\\Books";

    Backups() {
        settings.set_option(u"chkT2AlwaysCreateBackupUponSave", u"-1");
        settings.set_option(u"txtT2AlwaysCreateBackupUponSave", path);
        application.answers(names::Workbooks, [this](Access, Values name) -> Variant {
            if (to_text(name[0]) != u"Plan.v2.xls") throw Error(ErrorNumber::subscript_out_of_range);
            return make(u"Workbook", [this](FakeObject& book) {
                book.holds(names::Path, book_path);
                book.answers(names::SaveCopyAs, writes(u"copy"));
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(CommandHost, "windows are arranged in the first style that is chosen, if one is") {
    application.answers(names::Windows, [this](Access, Values) -> Variant {
        return make(u"Windows", [this](FakeObject& windows) { windows.answers(names::Arrange, writes(u"all")); });
    });
    application.holds(names::ActiveWorkbook, make(u"Workbook", [this](FakeObject& book) {
                          book.answers(names::Windows, [this](Access, Values) -> Variant {
                              return make(u"Windows", [this](FakeObject& windows) {
                                  windows.answers(names::Arrange, writes(u"own"));
                              });
                          });
                      }));
    settings.set_option(u"rdoT1AutoAdjWin3", u"True");
    call(u"QAutoUpdateWindowPositions");
    CHECK(done.empty());
    settings.set_option(u"chkT1AutoAdjWin", u"-1");
    call(u"QAutoUpdateWindowPositions");
    settings.set_option(u"rdoT1AutoAdjWin2", u"-1");
    call(u"QAutoUpdateWindowPositions");
    settings.set_option(u"rdoT1AutoAdjWin1", u"True");
    call(u"QAutoUpdateWindowPositions");
    settings.set_option(u"rdoT1AutoAdjWin0", u"True");
    settings.set_option(u"chkT1AutoAdjWinWorkbookOnly", u"-1");
    call(u"QAutoUpdateWindowPositions");
    CHECK(done == Lines{u"all 7 False", u"all -4166 False", u"all -4128 False", u"own 1 True"});
    for (const auto* style : {u"rdoT1AutoAdjWin0", u"rdoT1AutoAdjWin1", u"rdoT1AutoAdjWin2", u"rdoT1AutoAdjWin3"})
        settings.set_option(style, u"False");
    call(u"QAutoUpdateWindowPositions");
    CHECK(done.size() == 4);
    settings.set_option(u"rdoT1AutoAdjWin1", u"sideways");
    CHECK(attempt([&] { call(u"QAutoUpdateWindowPositions"); }) == 13);
}

TEST_CASE_FIXTURE(ScrollAreas, "scroll areas are kept in properties named as the worksheets") {
    call(u"QScrollableArea", u"Plan.xls", u"SAVE");
    CHECK(done == Lines{u"add Inputs False 4 $A$1:$B$9 False", u"add Sums False 4  False"});
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
    settings.set_option(u"chkT4SetScrollArea", u"True");
    CHECK(error_from([&] { call(u"QScrollableArea", u"No.xls", u"OPEN"); }).source() == u"QScrollableArea\r");
}

TEST_CASE_FIXTURE(Comments, "a comment shows while its cell is selected") {
    call(u"QSheetSelectionChange", u"Inputs", u"B2");
    CHECK(done.empty());
    com.put(QDoSelectionChange, true);
    call(u"QSheetSelectionChange", u"Inputs", u"B2");
    CHECK(done == Lines{u"Inputs!B2 True"});
    com.put(QWorksheetName, u"Inputs");
    com.put(QTargetAddress, u" ");
    call(u"QSheetSelectionChange", u"Inputs", u"C3");
    CHECK(done.size() == 2);
    com.put(QTargetAddress, u"B2");
    call(u"QSheetSelectionChange", u"Inputs", u"B2");
    CHECK(done == Lines{u"Inputs!B2 True", u"Inputs!C3 True", u"Inputs!B2 True", u"Inputs!B2 False"});
    CHECK(*com.get(QTargetAddress).get_if<std::u16string>() == u"B2");
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Comments, "cells without a comment cost nothing, and each statement stands for itself") {
    com.put(QDoSelectionChange, true);
    com.put(QWorksheetName, u"Inputs");
    com.put(QTargetAddress, u"B2");
    CHECK(attempt([&] { call(u"QSheetSelectionChange", u"Inputs", u"Z9"); }) == 0);
    CHECK(done == Lines{u"Inputs!B2 False"});
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Backups, "a backup is a copy in the folder of backups") {
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    settings.set_option(u"txtT2AlwaysCreateBackupUponSave", path + u'\\');
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    settings.set_option(u"txtT2AlwaysCreateBackupUponSave", u" " + path + u"/ ");
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(done == Lines{u"copy " + path + u"\\Plan.v2.xlk", u"copy " + path + u"\\Plan.v2.xlk",
                        u"copy " + path + u"/Plan.v2.xlk"});
    CHECK(screen.log.empty());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Backups, "an old backup is replaced, after a question where the user wants one") {
    test::put(folder.path / "Plan.v2.xlk", "old");
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(screen.log.empty());
    settings.set_option(u"chkT2WarnBackupExists", u"-1");
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(screen.log == Lines{u"message Do you wish to replace existing backup?"});
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
    settings.set_option(u"txtT2AlwaysCreateBackupUponSave", path + u"/vanished");
    gExcel = Object();
    call(u"QAlwCreBacBefSav", u"Plan.v2.xls");
    CHECK(gExcel);
    settings.set_option(u"chkT2AlwaysCreateBackupUponSave", u"0");
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
    CHECK(error_from([&] { call(u"QAlwCreBacBefSav"); }).source() == u"QAlwCreBacBefSav\r");
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(CommandHost, "the default folder for saving becomes the current one") {
    const test::TemporaryFolder folder;
    const auto before = std::filesystem::current_path();
    const MemberName QSetSaveFolder(u"QSetSaveFolder");
    settings.set_option(u"txtT2DefaultSaveFolder", u" " + from_utf8(folder.path.string()) + u" ");
    com.call(QSetSaveFolder);
    CHECK(std::filesystem::current_path() == before);
    settings.set_option(u"chkT2DefaultSave", u"-1");
    com.call(QSetSaveFolder);
    CHECK(std::filesystem::current_path() == std::filesystem::canonical(folder.path));
    std::filesystem::current_path(before);
    settings.set_option(u"txtT2DefaultSaveFolder", u"  ");
    com.call(QSetSaveFolder);
    settings.set_option(u"chkT2DefaultSave", u"sometimes");
    CHECK(attempt([&] { com.call(QSetSaveFolder); }) == 0);
    CHECK(std::filesystem::current_path() == before);
}
