#include <gtk/gtk.h>

#include <atomic>
#include <fstream>

#include "tests/support/temporary_folder.hpp"
#include "tests/wx/fixture.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

// A dialog of the system's that a user opens over nothing.
struct SystemDialog : OnDisplay {
    WxScreen screen{{}};
    test::TemporaryFolder folder;
    std::filesystem::path book = folder.path / "Budget 2026.xlt";

    SystemDialog() { std::ofstream(book) << "a template"; }

    void play(const std::function<void()>& command, const std::string& title,
              const std::function<void(User&)>& script) {
        tests::play(
            command, [&] { screen.close_all(); },
            [&](User& user) {
                REQUIRE(user.sees_dialog(title));
                script(user);
                CHECK(user.sees([&] { return !screen.dialog_open(); }));
            });
    }
    // Into the box for a path, which comes with its first letter.
    static void enter_path(User& user, const std::filesystem::path& path) {
        user.type("/");
        user.type(path.native().substr(1));
        user.key("Return");
    }
};

// Of the toolkit's, the dialogs of the system among them.
int shown_windows() {
    int count = 0;
    GList* windows = gtk_window_list_toplevels();
    for (const GList* at = windows; at; at = at->next) count += gtk_widget_get_mapped(GTK_WIDGET(at->data)) ? 1 : 0;
    g_list_free(windows);
    return count;
}

}  // namespace

TEST_CASE_FIXTURE(SystemDialog, "a file is picked by its path, or not at all") {
    FileDialog dialog;
    dialog.title = u"Find Excel Template";
    dialog.kinds = {{u"All Files (*.*)", u"*.*"}, {u"Excel Templates (*.xlt) ", u" *.xlt"}};
    dialog.chosen_kind = 1;
    std::optional<std::u16string> picked = u"before";
    const auto pick = [&] { picked = screen.pick_file(nullptr, dialog); };
    SUBCASE("by its path") {
        play(pick, "Find Excel Template", [&](User& user) { enter_path(user, book); });
        REQUIRE(picked);
        CHECK(to_utf8(*picked) == book.native());
        CHECK(dialog.chosen_kind == 1);
    }
    SUBCASE("by Escape") {
        play(pick, "Find Excel Template", [&](User& user) { user.key("Escape"); });
        CHECK_FALSE(picked);
    }
    SUBCASE("by closing all dialogs") {
        play(pick, "Find Excel Template", [&](User& user) { user.on_screen([&] { screen.close_all(); }); });
        CHECK_FALSE(picked);
    }
}

TEST_CASE_FIXTURE(SystemDialog, "a name to save under is asked for in the folder that is wanted") {
    FileDialog dialog;
    dialog.purpose = FileDialog::Purpose::save;
    dialog.title = u"Export";
    dialog.folder = from_utf8(folder.path.native());
    dialog.file_name = u"range.txt";
    std::optional<std::u16string> picked;
    play([&] { picked = screen.pick_file(nullptr, dialog); }, "Export", [&](User& user) { user.key("Return"); });
    REQUIRE(picked);
    CHECK(to_utf8(*picked) == (folder.path / "range.txt").native());
}

TEST_CASE_FIXTURE(SystemDialog, "a file that is there is not written over without a question") {
    FileDialog dialog;
    dialog.purpose = FileDialog::Purpose::save;
    dialog.title = u"Export";
    dialog.folder = from_utf8(folder.path.native());
    dialog.file_name = from_utf8(book.filename().native());
    std::optional<std::u16string> picked;
    play([&] { picked = screen.pick_file(nullptr, dialog); }, "Export",
         [&](User& user) {
             user.key("Return");
             CHECK(user.sees([] { return shown_windows() == 2; }));
             user.key("Escape");
             CHECK(user.sees([] { return shown_windows() == 1; }));
             user.key("Escape");
         });
    CHECK_FALSE(picked);
}

TEST_CASE_FIXTURE(SystemDialog, "a folder is picked by its path, or not at all") {
    std::optional<std::u16string> picked = u"before";
    const auto pick = [&] { picked = screen.pick_folder(nullptr, u"Browse for folder"); };
    SUBCASE("by its path") {
        play(pick, "Browse for folder", [&](User& user) { enter_path(user, folder.path); });
        REQUIRE(picked);
        CHECK(to_utf8(*picked) == folder.path.native());
    }
    SUBCASE("by Escape") {
        play(pick, "Browse for folder", [&](User& user) { user.key("Escape"); });
        CHECK_FALSE(picked);
    }
}

TEST_CASE_FIXTURE(SystemDialog, "a colour is picked, or not at all") {
    std::optional<std::int32_t> picked = -1;
    const auto pick = [&] { picked = screen.pick_color(nullptr); };
    SUBCASE("by the keyboard") {
        play(pick, "Choose colour", [&](User& user) { user.key("alt+s"); });
        REQUIRE(picked);
        CHECK(*picked == 0);  // the black that it opens with
    }
    SUBCASE("by Escape") {
        play(pick, "Choose colour", [&](User& user) { user.key("Escape"); });
        CHECK_FALSE(picked);
    }
}

TEST_CASE_FIXTURE(SystemDialog, "a message's help is opened by its button and by F1, and the message stays") {
    std::atomic<int> opened = 0;
    MessageBox message{.title = u"Template", .text = u"Not enabled.", .icon = MessageIcon::information};
    std::optional<MessageAnswer> answer;
    const auto ask = [&] { answer = screen.message_box(message); };
    SUBCASE("by either") {
        message.open_help = [&] { ++opened; };
        play(ask, "Template", [&](User& user) {
            user.key("F1");
            CHECK(user.sees([&] { return opened == 1; }));
            REQUIRE(user.sees_dialog("Template"));
            user.key("alt+h");
            CHECK(user.sees([&] { return opened == 2; }));
            REQUIRE(user.sees_dialog("Template"));
            CHECK_FALSE(answer);
            user.key("Return");
        });
        CHECK(opened == 2);
    }
    SUBCASE("it has none") {
        play(ask, "Template", [&](User& user) {
            user.key("F1");
            user.key("Return");
        });
    }
    CHECK(answer == MessageAnswer::ok);
}
