#include <doctest/doctest.h>

#include <fstream>

#include "automation/member_names.hpp"
#include "core/CCom.hpp"
#include "ground/MMain.hpp"
#include "platform/text.hpp"
#include "stores/data_file.hpp"
#include "tests/fakes/fake_command_bars.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/memory_settings.hpp"
#include "tests/platform/temporary_folder.hpp"

using namespace qor;

namespace {

using Log = std::vector<std::u16string>;

constexpr const char16_t* gone =
    u"message Sorry, but the file associated with this bookmark no longer exists.  Please modify the bookmark.";

// A host with the list of bookmarks on its second bar and with two open workbooks.
struct Host {
    fakes::FakeBars bars;
    fakes::FakeScreen screen;
    fakes::MemorySettings settings;
    test::TemporaryFolder folder;
    std::u16string folder_path = from_utf8(folder.path.string());
    Log done;
    bool has_sheet = true;
    Object com = (set_environment({screen, settings}), make_object<CCom>());
    Object host = fakes::make_fake(bars.log, u"Application", [this](fakes::FakeObject& application) {
        application.answers(names::CommandBars, [this](Access, std::span<Variant> index) -> Variant {
            return fakes::command_bars_of(bars, index);
        });
        application.answers(names::Workbooks, [this](Access, std::span<Variant>) -> Variant { return workbooks(); });
    });

    Host() {
        bars.bars.emplace_back().name = u"Standard";
        fakes::FakeControl& list = bars.bars.emplace_back().controls.emplace_back();
        list.type = 3;
        list.properties[u"Tag"] = u"QOR Plus";
        choose(u"Rent");
        bars.bars.emplace_back().name = u"Formatting";
        com.put(MemberName(u"QThisWrkBkPath"), folder_path);
        bookmark(u"C:\\Books\\Budget.xls ", u"Costs ", u" B5:D7");
    }
    ~Host() { gExcel = Object(); }

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

    template <class... Arguments>
    void jump(Arguments... arguments) {
        com.call(MemberName(u"UTBoo"), host, arguments...);
    }

  private:
    Object make(const std::u16string& type, const std::function<void(fakes::FakeObject&)>& fill) {
        return fakes::make_fake(bars.log, type, fill);
    }
    fakes::FakeObject::Answer writes(const std::u16string& line) {
        return [this, line](Access, std::span<Variant>) -> Variant {
            done.push_back(line);
            return {};
        };
    }
    Object sheet(const std::u16string& book, const std::u16string& name) {
        return make(u"Worksheet", [&](auto& fake) {
            const std::u16string place = book + u' ' + name;
            fake.answers(names::Activate, writes(place));
            fake.answers(names::Range, [this, place](Access, std::span<Variant> address) -> Variant {
                return make(u"Range", [&](auto& range) {
                    range.answers(names::Select, writes(place + u' ' + to_text(address[0])));
                });
            });
        });
    }
    Object book(const std::u16string& full_name) {
        return make(u"Workbook", [&](auto& fake) {
            fake.holds(names::FullName, full_name);
            fake.answers(names::Worksheets, [this, full_name](Access, std::span<Variant> name) -> Variant {
                if (!has_sheet) throw Error(ErrorNumber::subscript_out_of_range);
                return sheet(full_name, to_text(name[0]));
            });
        });
    }
    Object workbooks() {
        return make(u"Workbooks", [&](auto& all) {
            all.contains({book(u"C:\\Books\\Other.xls"), book(u"C:\\Books\\Budget.xls")});
            all.answers(names::Open, [this](Access, std::span<Variant> path) -> Variant {
                done.push_back(u"open " + to_text(path[0]));
                return {};
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Host, "a bookmark in an open workbook is selected") {
    jump();
    CHECK(done == Log{u"C:\\Books\\Budget.xls Costs", u"C:\\Books\\Budget.xls Costs B5:D7"});
    CHECK(screen.log.empty());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Host, "a bookmark in a workbook that is not open opens it, and that is all") {
    const std::u16string path = folder_path + u"/Closed.xls";
    std::ofstream(to_utf8(path)) << "a workbook";
    bookmark(path, u"Costs", u"B5");
    jump();
    CHECK(done == Log{u"open " + path});
    CHECK(screen.log.empty());
}

TEST_CASE_FIXTURE(Host, "a bookmark whose file is gone is told of, unless that is not wanted") {
    bookmark(folder_path + u"/Gone.xls", u"Costs", u"B5");
    jump();
    CHECK(screen.log == Log{gone});
    jump(0);
    CHECK(screen.log == Log{gone, gone});
    jump(1);
    CHECK(screen.log.size() == 2);
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(Host, "a sheet that is no longer there is passed over") {
    has_sheet = false;
    jump();
    CHECK(done.empty());
    CHECK(screen.log.empty());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Host, "what stands in the list where there are no bookmarks leads nowhere") {
    choose(u"(Bookmarks)");
    jump();
    CHECK(done.empty());
    CHECK(screen.log.empty());
}

TEST_CASE_FIXTURE(Host, "a name that the file does not hold has no file either; names are told apart by case") {
    choose(u"rent");
    jump();
    CHECK(screen.log == Log{gone});
    CHECK(done.empty());
}

TEST_CASE_FIXTURE(Host, "a list that is not to be seen is none") {
    list().properties[u"Visible"] = false;
    std::int32_t number = 0;
    std::u16string source;
    try {
        jump();
    } catch (const Error& error) {
        number = error.number();
        source = error.source();
    }
    CHECK(number == 91);
    CHECK(source == u"UTBoo\r");
    CHECK(done.empty());
}
