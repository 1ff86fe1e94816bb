#include "stores/CBookmark.hpp"

#include <doctest/doctest.h>

#include "automation/member_names.hpp"
#include "platform/text.hpp"
#include "stores/data_file.hpp"
#include "tests/fakes/fake_object.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/form_with.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using namespace qor::test;

namespace {

struct Fixture {
    fakes::FakeScreen screen;
    fakes::FormWith<ListBox> form{
        screen, u"frmList", u"lstMain",
        std::vector<ListBox::Column>{
            {u"Bookmark Name"}, {u"WorkbookName"}, {u"WorkbookFullPath "}, {u"WorksheetName"}, {u"Range"}}};
    ListBox& list = form.control;
    TemporaryFolder folder;
    std::u16string path = from_utf8(folder.path.string()) + u"\\Bookmarks.dat";
    CBookmark bookmarks;

    Fixture() { bookmarks.DataFile = path; }

    void add_two() {
        list.add_row({u"Rent", u"Budget.xls", u"C:\\Books\\Budget.xls", u"Costs", u"B5:D7"});
        list.add_row({u"Tax", u"Budget.xls", u"C:\\Books\\Budget.xls", u"Tax 2026", u"A1"});
    }
};

// A drop-down of the host that keeps what is added.
struct Combo {
    fakes::HostLog log;
    std::vector<std::u16string> entries{u"old"};
    Object object;

    Combo() {
        object = fakes::make_fake(log, u"CommandBarComboBox", [this](fakes::FakeObject& combo) {
            combo.answers(names::Clear, [this](Access, fakes::Values) -> Variant {
                entries.clear();
                return {};
            });
            combo.answers(names::AddItem, [this](Access, fakes::Values arguments) -> Variant {
                entries.push_back(*arguments[0].get_if<std::u16string>());
                return {};
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Fixture, "the list goes to the file and comes back") {
    add_two();
    bookmarks.SaveList(path, list);
    const PropertyBag bag = load_data_file(path);
    CHECK(bag.read(u"NumberOfItems", 0) == 2);
    CHECK((bag.read(u"1Bookmark") == u"Rent"));
    CHECK((bag.read(u"1WorkbookFullPath") == u"C:\\Books\\Budget.xls"));
    CHECK((bag.read(u"2Worksheet") == u"Tax 2026"));
    CHECK((bag.read(u"2Range") == u"A1"));
    CHECK(bag.size() == 11);

    list.clear();
    bookmarks.LoadList(path, list);
    REQUIRE(list.count() == 2);
    CHECK((list.text(0, 4) == u"B5:D7"));
    CHECK((list.text(1, 0) == u"Tax"));
}

TEST_CASE_FIXTURE(Fixture, "an empty list is the empty form") {
    bookmarks.SaveList(path, list);
    CHECK(content_of(folder.path / "Bookmarks.dat") == "There are no items\r\n");
    bookmarks.LoadList(path, list);
    CHECK(list.count() == 0);
    Combo combo;
    bookmarks.LoadExcelCombo(path, combo.object);
    CHECK(combo.entries.empty());
}

TEST_CASE_FIXTURE(Fixture, "a bookmark without a name is dropped") {
    list.add_row({u"", u"Budget.xls"});
    add_two();
    bookmarks.SaveList(path, list);
    list.clear();
    bookmarks.LoadList(path, list);
    CHECK(list.count() == 2);
    Combo combo;
    bookmarks.LoadExcelCombo(path, combo.object);
    CHECK((combo.entries == std::vector<std::u16string>{u"Rent", u"Tax"}));
}

TEST_CASE_FIXTURE(Fixture, "a bookmark is found by its very name, the first of two") {
    add_two();
    list.add_row({u"Rent", u"Other.xls", u"", u"", u"C3"});
    bookmarks.SaveList(path, list);
    std::array<Variant, CBookmark::fields> info;
    bookmarks.BookmarkInfo(u"Rent", info);
    CHECK((*info[1].get_if<std::u16string>() == u"Budget.xls"));
    CHECK((*info[4].get_if<std::u16string>() == u"B5:D7"));

    std::array<Variant, CBookmark::fields> untouched;
    bookmarks.BookmarkInfo(u"rent", untouched);
    CHECK(untouched[0].is_empty());
}

TEST_CASE_FIXTURE(Fixture, "a count that the file does not hold is no reason to wait") {
    PropertyBag bag;
    bag.write(u"NumberOfItems", 2'000'000'000, 0);
    bag.write(u"1Bookmark", u"Rent");
    save_data_file(path, bag);
    bookmarks.LoadList(path, list);
    CHECK(list.count() == 1);
}

TEST_CASE_FIXTURE(Fixture, "ten thousand bookmarks come back") {
    for (int i = 0; i < 10'000; ++i) list.add_row({from_utf8("Name " + std::to_string(i)), u"Book.xls"});
    bookmarks.SaveList(path, list);
    list.clear();
    bookmarks.LoadList(path, list);
    REQUIRE(list.count() == 10'000);
    CHECK((list.text(9'999, 0) == u"Name 9999"));
}

TEST_CASE_FIXTURE(Fixture, "a drop-down that refuses is left") {
    add_two();
    bookmarks.SaveList(path, list);
    Combo combo;
    combo.log.refuses = [&](auto, auto, auto) { return combo.log.calls == 2; };  // the first entry
    bookmarks.LoadExcelCombo(path, combo.object);
    CHECK((combo.entries == std::vector<std::u16string>{u"Tax"}));
    bookmarks.LoadExcelCombo(path, Object());
}
