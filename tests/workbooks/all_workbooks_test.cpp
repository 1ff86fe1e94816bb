#include "workbooks/all_workbooks.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/command_host.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;
using test::error_from;

namespace {

// Workbooks with a file and without, changed and not, and an add-in.
struct Books : fakes::CommandHost {
    std::vector<Object> books{
        book(u"Plan.xls", u"C:\\Books", false, -4143),
        book(u"Tax.xls", u"C:\\Books", true, -4143),
        book(u"Book3", u"", false, -4143),
        book(u"Tools.xla", u"C:\\Books", false, 18),
        book(u"Old.xla", u"", false, 26),
    };
    Variant file_name = false;

    Books() {
        application.holds(names::Workbooks, collection(u"Workbooks", books));
        application.answers(names::GetSaveAsFilename, [this](Access, Values arguments) -> Variant {
            done.push_back(u"ask" + joined(arguments));
            return file_name;
        });
    }
    Object book(const std::u16string& name, const std::u16string& path, bool saved, std::int32_t format) {
        return make(u"Workbook", [&](FakeObject& fake) {
            fake.holds(names::Name, name);
            fake.holds(names::Path, path);
            fake.holds(names::Saved, saved);
            fake.holds(names::FileFormat, format);
            fake.answers(names::Save, writes(name + u" save"));
            fake.answers(names::SaveAs, writes(name + u" as"));
            fake.answers(names::Close, writes(name + u" close"));
            fake.answers(names::Worksheets, [this, name](Access, Values) -> Variant {
                const auto sheet = [&](const std::u16string& number) {
                    return make(u"Worksheet", [&](FakeObject& worksheet) {
                        worksheet.answers(names::PrintOut, writes(name + u" print " + number));
                    });
                };
                return collection(u"Worksheets", {sheet(u"1"), sheet(u"2")});
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Books, "all workbooks are closed, but add-ins, and the host asks") {
    call(u"UTCloAll");
    CHECK(done == Lines{u"Plan.xls close", u"Tax.xls close", u"Book3 close"});
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Books, "workbooks with a file are saved at closing where the user wants no question") {
    settings.set_option(u"chkT3AutoSaveB4Close", u"-1");
    call(u"UTCloAll");
    CHECK(done == Lines{u"Plan.xls close True", u"Tax.xls close True", u"Book3 close"});
}

TEST_CASE_FIXTURE(Books, "all workbooks that have changed are saved, a new one under the name that is given") {
    for (const auto* member : {u"UTSavAll", u"UTSavWorEve"}) {
        done.clear();
        file_name = false;
        call(member);
        CHECK(done == Lines{u"Plan.xls save", u"ask Book3 Microsoft Excel Workbook (*.xls), *.xls"});
        done.clear();
        file_name = u"C:\\Books\\New.xls";
        call(member);
        CHECK(done == Lines{u"Plan.xls save", u"ask Book3 Microsoft Excel Workbook (*.xls), *.xls",
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
        application.holds(names::ActiveWorkbook, Object());
        call(member);
        CHECK(screen.log == Lines{u"message Sorry, but you must have an active workbook to perform this operation."});
        CHECK(done.empty());
        CHECK_FALSE(gExcel);
        host_log.refuses = [](auto, std::u16string_view name, auto) { return name == u"ActiveWorkbook"; };
        const Error error = error_from([&] { call(member); });
        CHECK(error.number() == 1004);
        CHECK(error.source() == std::u16string(member) + u'\r');
        host_log.refuses = {};
    }
}
