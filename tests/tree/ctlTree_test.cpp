#include "tree/ctlTree.hpp"

#include <doctest/doctest.h>

#include <algorithm>

#include "tests/fakes/fake_host.hpp"
#include "tests/fakes/form_with.hpp"
#include "tests/support/failing_object.hpp"

using namespace qor;
using fakes::FakeObject;

namespace {

using Rows = std::vector<std::u16string>;

struct Sheet {
    std::u16string name;
    std::int32_t visible = -1;
    bool contents = false;
    bool objects = false;
    bool scenarios = false;
};
struct Window {
    std::u16string caption;
    bool visible = true;
};
struct Book {
    std::u16string name;
    std::vector<Window> windows;
    std::vector<Sheet> sheets;
    std::int32_t file_format = -4143;
    bool read_only = false;
};

struct Host : fakes::FakeHost {
    fakes::FormWith<ctlTree> form{screen, u"frmTree", u"ctlTreeView"};
    const TreeView& tree = form.control.treQOR;

    Object sheet(const Sheet& it) {
        return make(u"Worksheet", [&](FakeObject& fake) {
            fake.holds(names::Name, it.name).holds(names::Visible, it.visible);
            fake.holds(names::ProtectContents, it.contents).holds(names::ProtectDrawingObjects, it.objects);
            fake.holds(names::ProtectScenarios, it.scenarios);
        });
    }
    Object window(const Window& it) {
        return make(u"Window", [&](FakeObject& fake) {
            fake.holds(names::Caption, it.caption).holds(names::Visible, it.visible);
        });
    }
    Object book(const Book& it) {
        std::vector<Object> windows;
        std::vector<Object> sheets;
        for (const Window& each : it.windows) windows.push_back(window(each));
        for (const Sheet& each : it.sheets) sheets.push_back(sheet(each));
        return make(u"Workbook", [&](FakeObject& fake) {
            fake.holds(names::Name, it.name).holds(names::FileFormat, it.file_format);
            fake.holds(names::ReadOnly, it.read_only);
            fake.holds(names::Windows, collection(u"Windows", windows));
            fake.holds(names::Worksheets, collection(u"Worksheets", sheets));
        });
    }
    void open(const std::vector<Book>& books) {
        std::vector<Object> objects;
        objects.reserve(books.size());
        for (const Book& each : books) objects.push_back(book(each));
        application.holds(names::Workbooks, collection(u"Workbooks", objects));
        begin_command();
    }
    // The tree that is filled from what is open: every node's key, a marked one with its marks.
    Rows load() {
        fakes::FormWith<ctlTree> filled(screen, u"frmTree", u"ctlTreeView");
        filled.control.LoadExcel();
        Rows rows;
        for (std::size_t index = 1; index <= filled.control.treQOR.count(); ++index) {
            const TreeNode& node = filled.control.treQOR.node(index);
            std::u16string row = node.key();
            if (node.italic()) row += u" italic";
            if (node.bold()) row += u" bold";
            if (node.back_color() == 65535) row += u" yellow";
            if (node.back_color() == 255) row += u" red";
            if (node.fore_color() == 65280) row += u" green";
            rows.push_back(row);
        }
        return rows;
    }
};

const Book small{u"book.xls", {{u"book.xls"}}, {{u"One"}, {u"Two"}}};

}  // namespace

TEST_CASE_FIXTURE(Host, "the tree holds the root, the windows in the host's order and under each its sheets") {
    open({{u"b.xls", {{u"b.xls:1"}, {u"b.xls:2"}}, {{u"One"}, {u"Two"}}}, {u"a.xls", {{u"a.xls"}}, {{u"Notes"}}}});
    form.control.LoadExcel();
    REQUIRE(tree.count() == 9);
    CHECK(tree.node(1).key() == u"ROOT");
    CHECK(tree.node(1).text() == u"Excel Workbook Windows");
    CHECK(tree.node(1).level() == 1);
    CHECK(tree.node(1).expanded());
    CHECK(tree.node(1).tag().is_empty());
    CHECK(tree.node(2).key() == u"b.xls:1");
    CHECK(tree.node(2).text() == u"b.xls:1");
    CHECK(*tree.node(2).tag().get_if<std::u16string>() == u"b.xls");
    CHECK(tree.node(2).level() == 2);
    CHECK_FALSE(tree.node(2).expanded());
    CHECK(tree.node(3).key() == u"b.xls:1*One");
    CHECK(tree.node(3).text() == u"One");
    CHECK(tree.node(3).level() == 3);
    CHECK(tree.node(3).parent() == &tree.node(2));
    CHECK(tree.node(3).tag().is_empty());
    CHECK(tree.node(7).key() == u"b.xls:2*Two");
    CHECK(tree.node(9).key() == u"a.xls*Notes");
    for (std::size_t index = 1; index <= 9; ++index) CHECK(tree.node(index).image() == 1);
    CHECK(form.control.CountWorkbooks(u"b.xls") == 2);
}

TEST_CASE_FIXTURE(Host, "add-ins never appear") {
    settings.set_options({{u"chkT3ShowHiddenWorkbooks", u"-1"}, {u"chkT4ShowHiddenWorksheets", u"-1"}});
    open({{u"qor.xla", {{u"qor.xla", false}}, {{u"One"}}, 18}, {u"new.xla", {{u"new.xla"}}, {{u"One"}}, 26}});
    CHECK(load() == Rows{u"ROOT"});
}

TEST_CASE_FIXTURE(Host, "a hidden window and its sheets show, in italics, only when the option is on") {
    open({{u"book.xls", {{u"book.xls", false}}, {{u"One"}}}});
    CHECK(load() == Rows{u"ROOT"});
    settings.set_options({{u"chkT3ShowHiddenWorkbooks", u"True"}});
    CHECK(load() == Rows{u"ROOT", u"book.xls italic", u"book.xls*One"});
}

TEST_CASE_FIXTURE(Host, "hidden and very hidden sheets show, in italics, only when the option is on") {
    open({{u"book.xls", {{u"book.xls"}}, {{u"One"}, {u"Hidden", 0}, {u"Very", 2}}}});
    CHECK(load() == Rows{u"ROOT", u"book.xls", u"book.xls*One"});
    settings.set_options({{u"chkT4ShowHiddenWorksheets", u"-1"}});
    CHECK(load() == Rows{u"ROOT", u"book.xls", u"book.xls*One", u"book.xls*Hidden italic", u"book.xls*Very italic"});
}

TEST_CASE_FIXTURE(Host, "marks tell of read-only workbooks and of each kind of protection") {
    open({{.name = u"book.xls",
           .windows = {{u"book.xls"}},
           .sheets = {{.name = u"All", .contents = true, .objects = true, .scenarios = true},
                      {.name = u"Contents", .contents = true},
                      {.name = u"Objects", .objects = true},
                      {.name = u"Scenarios", .scenarios = true}},
           .read_only = true}});
    CHECK(load() == Rows{u"ROOT", u"book.xls yellow", u"book.xls*All bold red green", u"book.xls*Contents red",
                         u"book.xls*Objects green", u"book.xls*Scenarios bold"});
}

TEST_CASE_FIXTURE(Host, "a second window of the same caption stays away, quietly, and its sheets with it") {
    open({{u"a/book.xls", {{u"book.xls"}}, {{u"One"}}}, {u"b/book.xls", {{u"book.xls"}}, {{u"Two"}}}});
    CHECK(load() == Rows{u"ROOT", u"book.xls", u"book.xls*One"});
}

TEST_CASE_FIXTURE(Host, "loading again starts anew, with nothing checked") {
    open({small});
    form.control.LoadExcel();
    form.control.treQOR.node(3).set_image(2);
    form.control.LoadExcel();
    CHECK(form.control.treQOR.count() == 4);
    CHECK(form.control.CountCheckBoxes(3) == 0);
}

TEST_CASE_FIXTURE(Host, "without a host there is only the root") {
    CHECK(load() == Rows{u"ROOT"});
}

TEST_CASE_FIXTURE(Host, "an option that is no truth value leaves the option as it was") {
    settings.set_options({{u"chkT4ShowHiddenWorksheets", u"perhaps"}});
    open({{u"book.xls", {{u"book.xls"}}, {{u"Hidden", 0}}}});
    CHECK(load() == Rows{u"ROOT", u"book.xls"});
}

TEST_CASE_FIXTURE(Host, "what the host refuses costs only what hangs on it") {
    open({small, {u"other.xls", {{u"other.xls"}}, {{u"Notes"}}}});
    const Rows all{u"ROOT", u"book.xls", u"book.xls*One", u"book.xls*Two", u"other.xls", u"other.xls*Notes"};
    REQUIRE(load() == all);
    std::size_t losses = 0;
    Rows rows;
    support::fail_each_access([&] { return host; },
                              [&](const Object& failing) {
                                  gExcel = failing;
                                  rows = load();
                              },
                              [&](std::int32_t error) {
                                  CHECK(error == 0);
                                  CHECK(rows.front() == u"ROOT");
                                  for (const auto& row : rows) CHECK(std::ranges::find(all, row) != all.end());
                                  if (rows.size() < all.size()) ++losses;
                              });
    // The collection of the workbooks and its elements; for each window its book's windows and their elements, its
    // caption, and the book's sheets and their elements; for each sheet its name.
    CHECK(losses == 2 + 2 * 5 + 3);
}

TEST_CASE_FIXTURE(Host, "a mark that the host does not tell is not set") {
    host_log.refuses = [](auto, std::u16string_view member, Access) {
        return member.starts_with(u"Protect") || member == u"ReadOnly" || member == u"FileFormat";
    };
    open({{.name = u"book.xls",
           .windows = {{u"book.xls"}},
           .sheets = {{.name = u"One", .contents = true, .objects = true, .scenarios = true}},
           .read_only = true}});
    CHECK(load() == Rows{u"ROOT", u"book.xls", u"book.xls*One"});
}
