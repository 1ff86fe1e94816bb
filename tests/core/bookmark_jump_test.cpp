#include "core/bookmark_jump.hpp"

#include <doctest/doctest.h>

#include "platform/text.hpp"
#include "stores/data_file.hpp"
#include "tests/fakes/command_host.hpp"
#include "tests/fakes/fake_command_bars.hpp"
#include "tests/support/raised.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;

namespace {

constexpr const char16_t* gone =
    u"message Sorry, but the file associated with this bookmark no longer exists.  Please modify the bookmark.";

// A host with the list of bookmarks on its second bar and with two open workbooks.
struct Bookmarks : fakes::CommandHost {
    fakes::FakeBars bars{host_log};
    test::TemporaryFolder folder;
    std::u16string folder_path = from_utf8(folder.path.string());
    bool has_sheet = true;

    Bookmarks() {
        application.answers(names::CommandBars,
                            [this](Access, Values index) -> Variant { return fakes::command_bars_of(bars, index); });
        application.holds(names::Workbooks, workbooks());
        bars.bars.emplace_back().name = u"Standard";
        fakes::FakeControl& list = bars.bars.emplace_back().controls.emplace_back();
        list.type = 3;
        list.properties[u"Tag"] = u"QOR Plus";
        choose(u"Rent");
        bars.bars.emplace_back().name = u"Formatting";
        com.put(MemberName(u"QThisWrkBkPath"), folder_path);
        bookmark(u"C:\\Books\\Budget.xls ", u"Costs ", u" B5:D7");
    }

    fakes::FakeControl& list() { return std::next(bars.bars.begin())->controls.front(); }
    void choose(const std::u16string& text) { list().properties[u"Text"] = text; }

    // What is kept under "Rent".
    void bookmark(const std::u16string& path, const std::u16string& sheet, const std::u16string& range) const {
        PropertyBag bag;
        bag.write(u"NumberOfItems", 1, 0);
        bag.write(u"1Bookmark", u"Rent");
        bag.write(u"1Workbook", u"Budget.xls");
        bag.write(u"1WorkbookFullPath", path);
        bag.write(u"1Worksheet", sheet);
        bag.write(u"1Range", range);
        save_data_file(folder_path + u"\\Bookmarks.dat", bag);
    }

  private:
    Object sheet(const std::u16string& book, const std::u16string& name) {
        return make(u"Worksheet", [&](FakeObject& fake) {
            const std::u16string place = book + u' ' + name;
            fake.answers(names::Activate, writes(place));
            fake.answers(names::Range, [this, place](Access, Values address) -> Variant {
                return make(u"Range",
                            [&](FakeObject& range) { range.answers(names::Select, writes(place + joined(address))); });
            });
        });
    }
    Object book(const std::u16string& full_name) {
        return make(u"Workbook", [&](FakeObject& fake) {
            fake.holds(names::FullName, full_name);
            fake.answers(names::Worksheets, [this, full_name](Access, Values name) -> Variant {
                if (!has_sheet) throw Error(ErrorNumber::subscript_out_of_range);
                return sheet(full_name, to_text(name[0]));
            });
        });
    }
    Object workbooks() {
        return make(u"Workbooks", [&](FakeObject& all) {
            all.contains({book(u"C:\\Books\\Other.xls"), book(u"C:\\Books\\Budget.xls")});
            all.answers(names::Open, writes(u"open"));
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Bookmarks, "a bookmark in an open workbook is selected") {
    call(u"UTBoo");
    CHECK(done == Lines{u"C:\\Books\\Budget.xls Costs", u"C:\\Books\\Budget.xls Costs B5:D7"});
    CHECK(screen.log.empty());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Bookmarks, "a bookmark in a workbook that is not open opens it, and that is all") {
    const std::u16string path = folder_path + u"/Closed.xls";
    test::put(folder.path / "Closed.xls", "a workbook");
    bookmark(path, u"Costs", u"B5");
    call(u"UTBoo");
    CHECK(done == Lines{u"open " + path});
    CHECK(screen.log.empty());
}

TEST_CASE_FIXTURE(Bookmarks, "a bookmark whose file is gone is told of, unless that is not wanted") {
    bookmark(folder_path + u"/Gone.xls", u"Costs", u"B5");
    call(u"UTBoo");
    CHECK(screen.log == Lines{gone});
    call(u"UTBoo", 0);
    CHECK(screen.log == Lines{gone, gone});
    call(u"UTBoo", 1);
    CHECK(screen.log.size() == 2);
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(Bookmarks, "a sheet that is no longer there is passed over") {
    has_sheet = false;
    call(u"UTBoo");
    CHECK(done.empty());
    CHECK(screen.log.empty());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Bookmarks, "what stands in the list where there are no bookmarks leads nowhere") {
    choose(u"(Bookmarks)");
    call(u"UTBoo");
    CHECK(done.empty());
    CHECK(screen.log.empty());
}

TEST_CASE_FIXTURE(Bookmarks, "a name that the file does not hold has no file either; names are told apart by case") {
    choose(u"rent");
    call(u"UTBoo");
    CHECK(screen.log == Lines{gone});
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(Bookmarks, "a list that is not to be seen is none") {
    list().properties[u"Visible"] = false;
    const Error error = test::error_from([&] { call(u"UTBoo"); });
    CHECK(error.number() == 91);
    CHECK(error.source() == u"UTBoo\r");
    CHECK(done.empty());
}
