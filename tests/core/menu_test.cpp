#include "core/MMenu.hpp"

#include <doctest/doctest.h>

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
using fakes::FakeControl;

namespace {

using Log = std::vector<std::u16string>;

class ClipboardOfFaces final : public FaceClipboard {
  public:
    explicit ClipboardOfFaces(fakes::FakeBars& bars) : bars_(bars) {}
    std::vector<std::u16string> loaded;
    void put(std::u16string_view name) override {
        loaded.emplace_back(name);
        bars_.clipboard = name;
    }

  private:
    fakes::FakeBars& bars_;
};

struct Menu {
    fakes::FakeBars bars;
    fakes::FakeScreen screen;
    fakes::MemorySettings settings;
    ClipboardOfFaces faces{bars};
    test::TemporaryFolder folder;
    std::u16string path = from_utf8(folder.path.string()) + u"\\Bookmarks.dat";
    Log drawing;
    Object com = (set_environment({screen, settings, faces}), make_object<CCom>());
    Object host = fakes::make_fake(bars.log, u"Application", [this](fakes::FakeObject& application) {
        application.answers(names::CommandBars, [this](Access, std::span<Variant> index) -> Variant {
            return fakes::command_bars_of(bars, index);
        });
        application.answers(names::ScreenUpdating, [this](Access, std::span<Variant> value) -> Variant {
            drawing.emplace_back(*value[0].get_if<bool>() ? u"draws" : u"holds");
            return {};
        });
        application.answers(names::ThisWorkbook, [this](Access, std::span<Variant>) -> Variant {
            return fakes::make_fake(bars.log, u"Workbook", [this](fakes::FakeObject& book) {
                book.holds(names::Path, from_utf8(folder.path.string()));
            });
        });
    });

    Menu() {
        fakes::FakeBar& main = bars.bars.emplace_back();
        main.name = u"Worksheet Menu Bar";
        main.controls.emplace_back().properties[u"Caption"] = u"&File";
        FakeControl& help = main.controls.emplace_back();
        help.type = 10;
        help.id = 30010;
        help.properties[u"Caption"] = u"&Help";
        bars.bars.emplace_back().name = u"Standard";
        save_empty_data_file(path);
    }
    ~Menu() { gExcel = Object(); }

    // With all tools, whether their members are there yet or not.
    void create() {
        gExcel = host;
        create_menu([](std::u16string_view) { return true; });
        gExcel = Object();
    }
    void remove(bool only_save) { com.call(MemberName(u"QMenuDelete"), host, only_save); }
    std::list<FakeControl>& main() { return bars.bars.front().controls; }
    FakeControl& top() { return *std::next(main().begin()); }
    FakeControl& entry(std::size_t popup, std::size_t place) {
        return *std::next(std::next(top().controls.begin(), std::ptrdiff_t(popup))->controls.begin(),
                          std::ptrdiff_t(place));
    }
    fakes::FakeBar& bar(const std::u16string& manager) {
        fakes::FakeBar* found = bars.find(u"QOR Plus - " + manager + u" Manager");
        REQUIRE(found);
        return *found;
    }
};

Log texts(const std::list<FakeControl>& controls, const std::u16string& property) {
    Log all;
    for (const FakeControl& control : controls) all.push_back(control.text(property));
    return all;
}

Log with_group(const std::list<FakeControl>& controls) {
    Log all;
    for (const FakeControl& control : controls) {
        if (control.properties.contains(u"BeginGroup")) all.push_back(control.text(u"OnAction"));
    }
    return all;
}

Log faces_of(const std::list<FakeControl>& controls) {
    Log all;
    for (const FakeControl& control : controls) all.push_back(control.face);
    return all;
}

void check_tags(const std::list<FakeControl>& controls) {
    for (const FakeControl& control : controls) {
        CHECK(control.text(u"Tag") == u"QOR Plus");
        CHECK(control.text(u"Temporary") == u"False");
        check_tags(control.controls);
    }
}

constexpr auto missing_file = [](const std::u16string& path) {
    return u"message Sorry, but the filename " + path + u" is missing.  Please contact technical support.";
};

}  // namespace

TEST_CASE_FIXTURE(Menu, "the popup stands before the host's Help menu, or at the end where there is none") {
    create();
    CHECK(texts(main(), u"Caption") == Log{u"&File", u"&QOR Plus", u"&Help"});
    CHECK(top().type == 10);
    CHECK(texts(top().controls, u"Caption") == Log{u"&Reports", u"&Workbooks", u"Wor&ksheets", u"&Options...",
                                                   u"&Contents and Index", u"L&umenrock on the Web",
                                                   u"&About QOR Plus"});
    CHECK(with_group(top().controls) == Log{u"", u"UTOpt", u"QOpenHelp", u"QAbout"});
    CHECK(drawing == Log{u"holds", u"draws"});
    main().pop_back();
    create();
    CHECK(texts(main(), u"Caption") == Log{u"&File", u"&QOR Plus"});
}

TEST_CASE_FIXTURE(Menu, "everything that is added carries the title and is not temporary; the toolbars are") {
    create();
    check_tags({top()});
    for (const auto* manager : {u"Report", u"Workbook", u"Worksheet"}) {
        check_tags(bar(manager).controls);
        CHECK(bar(manager).temporary);
    }
}

TEST_CASE_FIXTURE(Menu, "the reports, on menu and toolbar") {
    create();
    const std::list<FakeControl>& entries = top().controls.front().controls;
    const std::list<FakeControl>& buttons = bar(u"Report").controls;
    const Log captions{u"&Cell Color", u"Cell &Information", u"&Date Review", u"&Workbook Summary",
                       u"Worksheet &Summary"};
    const Log actions{u"UTCelCol", u"UTCelInf", u"UTDatRev", u"UTWokSum", u"UTWorSum"};
    for (const auto* controls : {&entries, &buttons}) {
        CHECK(texts(*controls, u"Caption") == captions);
        CHECK(texts(*controls, u"OnAction") == actions);
        CHECK(texts(*controls, u"ToolTipText") ==
              Log{u"Cell Color", u"Cell Information", u"Date Review", u"Workbook Summary", u"Worksheet Summary"});
        CHECK(faces_of(*controls) == Log{u"CELCOL", u"CELINF", u"DATREV", u"WOKSUM", u"WORSUM"});
        CHECK(with_group(*controls) == Log{u"UTWokSum"});
    }
}

TEST_CASE_FIXTURE(Menu, "each control is made in the order that hosts need") {
    create();
    const Log steps{u"BeginGroup", u"Caption", u"OnAction", u"PasteFace", u"Tag", u"ToolTipText"};
    CHECK(entry(0, 3).steps == steps);
    CHECK(std::next(bar(u"Report").controls.begin(), 3)->steps == steps);
    CHECK(std::next(top().controls.begin(), 3)->steps == Log{u"BeginGroup", u"Caption", u"OnAction", u"Tag"});
    // Each face is loaded once, for the entry, and pasted on both; 41 of the faces are for the menu, one of them twice.
    CHECK(faces.loaded.size() == 42);
    CHECK(std::ranges::count(faces.loaded, u"WEBURL") == 2);
}

TEST_CASE_FIXTURE(Menu, "the tools for workbooks") {
    create();
    const std::list<FakeControl>& entries = std::next(top().controls.begin(), 1)->controls;
    CHECK(texts(entries, u"OnAction") == Log{u"UTWokGro", u"UTPriGro", u"UTAltTem", u"UTAddWor", u"UTDelEmpWor",
                                             u"UTWinHidUnh", u"UTCloAll", u"UTSavAll", u"UTPriAll", u"UTCleRecFil",
                                             u"UTSpeCheAll", u"UTSorWor", u"UTNav"});
    CHECK(with_group(entries) == Log{u"UTAltTem", u"UTAddWor", u"UTCloAll", u"UTCleRecFil"});
    CHECK(texts(entries, u"Caption") == texts(bar(u"Workbook").controls, u"Caption"));
    CHECK(entry(1, 2).text(u"Caption") == u"&New File - Alternate Template");
    CHECK(entry(1, 2).text(u"ToolTipText") == u"New File - Alternate Template");
}

TEST_CASE_FIXTURE(Menu, "the tools for worksheets, with the names of macros as hosts have them") {
    create();
    const std::list<FakeControl>& entries = std::next(top().controls.begin(), 2)->controls;
    Log actions = texts(entries, u"OnAction");
    REQUIRE(actions.size() == 19);
    CHECK(actions[9] == u"UTCELWORPRO");
    CHECK(actions[11] == u"UTLINLOC");
    CHECK(actions[13] == u"UTraColRow");
    CHECK(with_group(entries) == Log{u"UTInsSinCol", u"UTCelSel", u"UTCleScrAre", u"UTWorHidUnh"});
    std::list<FakeControl>& buttons = bar(u"Worksheet").controls;
    REQUIRE(buttons.size() == 21);
    actions[11] = u"UTLinLoc";
    actions[13] = u"UTTraColRow";
    actions.emplace_back(u"UTBoo");
    actions.emplace_back(u"UTBooAED");
    CHECK(texts(buttons, u"OnAction") == actions);
    CHECK(entry(2, 1).text(u"Caption") == u"&Column or Row Shading");
    CHECK(std::next(buttons.begin(), 1)->text(u"Caption") == u"Column or Row Shading");
    CHECK(std::next(buttons.begin(), 4)->text(u"Caption") == u"Column or Row Insertion");
    CHECK(std::next(buttons.begin(), 6)->text(u"Caption") == u"Cell Selector");
}

TEST_CASE_FIXTURE(Menu, "the bookmarks stand at the end of the worksheet toolbar, and on no menu") {
    create();
    const FakeControl& list = *std::next(bar(u"Worksheet").controls.begin(), 19);
    CHECK(list.type == 3);
    CHECK(list.steps ==
          Log{u"BeginGroup", u"DropDownWidth", u"OnAction", u"Width", u"Tag", u"Clear", u"AddItem", u"ListIndex"});
    CHECK(list.text(u"Width") == u"150");
    const FakeControl& edit = bar(u"Worksheet").controls.back();
    CHECK(edit.text(u"Caption") == u"Add, Edit, and Delete Bookmarks");
    CHECK(edit.text(u"ToolTipText") == u"Add, Edit, and Delete Bookmarks");
    CHECK(edit.face == u"BOOAED");
}

TEST_CASE_FIXTURE(Menu, "the makers on the web have a popup of their own") {
    create();
    const FakeControl& web = *std::next(top().controls.begin(), 5);
    CHECK(web.type == 10);
    CHECK(texts(web.controls, u"Caption") == Log{u"Send Author &Email", u"&Online &Support", u"&Home Page"});
    CHECK(texts(web.controls, u"OnAction") == Log{u"UTSendEmail", u"UTOnlineSupport", u"UTHomePage"});
    CHECK(faces_of(web.controls) == Log{u"SENDEMAIL", u"WEBURL", u"WEBURL"});
    CHECK(with_group(web.controls) == Log{u"UTHomePage"});
    CHECK(texts(web.controls, u"ToolTipText") == Log{u"", u"", u""});
}

TEST_CASE_FIXTURE(Menu, "the add-in shows the tools that it has") {
    com.call(MemberName(u"QMenuCreate"), host);
    CHECK(texts(top().controls, u"Caption").size() == 7);
    for (const fakes::FakeBar& bar : bars.bars) {
        if (!bar.name.starts_with(u"QOR Plus")) continue;
        for (const FakeControl& control : bar.controls)
            CHECK(CCom::members().find(MemberName(control.text(u"OnAction"))));
    }
    const Log reports = texts(bar(u"Report").controls, u"OnAction");
    CHECK(std::ranges::find(reports, u"UTWorSum") != reports.end());
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Menu, "a second menu takes the place of the first") {
    create();
    create();
    CHECK(texts(main(), u"Caption") == Log{u"&File", u"&QOR Plus", u"&Help"});
    CHECK(bars.bars.size() == 5);
    remove(false);
    CHECK(texts(main(), u"Caption") == Log{u"&File", u"&Help"});
    CHECK(bars.bars.size() == 2);
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Menu, "a button that the user has copied onto a bar of the host goes too") {
    create();
    fakes::FakeBar& standard = *bars.find(u"Standard");
    standard.controls.emplace_back().properties[u"Tag"] = u"QOR Plus";
    standard.controls.emplace_back().properties[u"Tag"] = u"another's";
    standard.controls.emplace_back().properties[u"Tag"] = u"QOR Plus";
    remove(true);
    CHECK(standard.controls.size() == 3);
    remove(false);
    CHECK(texts(standard.controls, u"Tag") == Log{u"another's"});
}

TEST_CASE_FIXTURE(Menu, "a control that the host does not let go hangs nothing up") {
    create();
    bars.log.refuses = [](std::u16string_view type, std::u16string_view member, auto) {
        return type == u"CommandBarControl" && member == u"Delete";
    };
    remove(false);
    CHECK(texts(main(), u"Caption") == Log{u"&File", u"&QOR Plus", u"&Help"});
}

TEST_CASE_FIXTURE(Menu, "on a fresh profile the toolbars float one below the other") {
    create();
    struct Row {
        const char16_t* manager;
        std::int32_t top;
        std::int32_t width;
    };
    for (const Row& row : {Row{u"Report", 139, 137}, Row{u"Workbook", 203, 316}, Row{u"Worksheet", 268, 391}}) {
        auto& place = bar(row.manager).properties;
        CHECK(to_long(place[u"Position"]) == 4);
        CHECK(to_long(place[u"Left"]) == 65);
        CHECK(to_long(place[u"Top"]) == row.top);
        CHECK(to_long(place[u"Height"]) == 49);
        CHECK(to_long(place[u"Width"]) == row.width);
        CHECK(to_boolean(place[u"Visible"]));
        CHECK_FALSE(place.contains(u"RowIndex"));
    }
}

TEST_CASE_FIXTURE(Menu, "where a toolbar stands is kept, without touching anything else if so asked") {
    create();
    auto& place = bar(u"Report").properties;
    place[u"Position"] = 1;
    place[u"RowIndex"] = 3;
    place[u"Left"] = 12;
    place[u"Visible"] = false;
    remove(true);
    CHECK(bars.bars.size() == 5);
    const auto kept = [&](const std::u16string& name) { return settings.read(u"TBReport", name); };
    CHECK(kept(u"Position") == u"1");
    CHECK(kept(u"RowIndex") == u"3");
    CHECK(kept(u"Left") == u"12");
    CHECK(kept(u"Top") == u"139");
    CHECK(kept(u"Height") == u"49");
    CHECK(kept(u"Width") == u"137");
    CHECK(kept(u"Visible") == u"False");
    CHECK(settings.read(u"TBWorksheet", u"Top") == u"268");
    // A docked one comes back by its row; height, top and width are not set.
    create();
    auto& again = bar(u"Report").properties;
    CHECK(to_long(again[u"Position"]) == 1);
    CHECK(to_long(again[u"RowIndex"]) == 3);
    CHECK(to_long(again[u"Left"]) == 12);
    CHECK_FALSE(to_boolean(again[u"Visible"]));
    CHECK_FALSE(again.contains(u"Top"));
    CHECK_FALSE(again.contains(u"Height"));
    CHECK_FALSE(again.contains(u"Width"));
    // Without a row of its own it gets any.
    remove(false);
    settings.values.erase({u"TBReport", u"RowIndex"});
    create();
    CHECK(to_long(bar(u"Report").properties[u"RowIndex"]) == -1);
}

TEST_CASE_FIXTURE(Menu, "places that are no numbers leave the host's own") {
    settings.values[{u"TBReport", u"Position"}] = u"left";
    settings.values[{u"TBReport", u"Top"}] = u"high";
    settings.values[{u"TBReport", u"Visible"}] = u"perhaps";
    create();
    auto& place = bar(u"Report").properties;
    CHECK_FALSE(place.contains(u"Position"));
    CHECK_FALSE(place.contains(u"Top"));
    CHECK_FALSE(place.contains(u"Visible"));
    CHECK(to_long(place[u"Left"]) == 65);
}

TEST_CASE_FIXTURE(Menu, "the list shows the bookmarks, or that there are none") {
    create();
    const auto list = [&]() -> FakeControl& { return *std::next(bar(u"Worksheet").controls.begin(), 19); };
    CHECK(list().entries == Log{u"(Bookmarks)"});
    CHECK(list().text(u"ListIndex") == u"1");
    PropertyBag bag;
    bag.write(u"NumberOfItems", 2, 0);
    bag.write(u"1Bookmark", u"Rent");
    bag.write(u"2Bookmark", u"Tax");
    save_data_file(path, bag);
    create();
    CHECK(list().entries == Log{u"Rent", u"Tax"});
    CHECK(list().text(u"ListIndex") == u"1");
    CHECK(screen.log.empty());
}

TEST_CASE_FIXTURE(Menu, "without the file of bookmarks that is told, and all else is complete") {
    std::filesystem::remove(folder.path / "Bookmarks.dat");
    create();
    CHECK(screen.log == Log{missing_file(path)});
    CHECK(screen.told.title == u"QOR Plus");
    CHECK(screen.told.icon == MessageIcon::critical);
    const FakeControl& list = *std::next(bar(u"Worksheet").controls.begin(), 19);
    CHECK(list.entries.empty());
    CHECK_FALSE(list.properties.contains(u"ListIndex"));
    CHECK(bar(u"Worksheet").controls.size() == 21);
    CHECK(drawing.back() == u"draws");
}

TEST_CASE("whatever single call fails, the rest of the menu is tried and the host draws again") {
    std::size_t calls = 0;
    {
        Menu whole;
        whole.bars.log.calls = 0;
        whole.create();
        calls = whole.bars.log.calls;
    }
    REQUIRE(calls > 500);
    // The last one lets the host draw.
    for (std::size_t failing = 1; failing < calls; failing += 3) {
        CAPTURE(failing);
        Menu menu;
        menu.bars.log.failing_call = failing;
        menu.create();
        CHECK(menu.drawing.back() == u"draws");
        CHECK(menu.faces.loaded.size() == 42);
        menu.remove(false);
        CHECK(menu.bars.bars.size() == 2);
    }
}
