#include <doctest/doctest.h>

#include <array>
#include <functional>
#include <thread>

#include "hosts/excel/com/ole.hpp"
#include "hosts/excel/screen/system_screen.hpp"
#include "platform/windows/system_text.hpp"
#include "tests/fakes/fake_host.hpp"
// After the system's headers.
#include <shlobj.h>

using namespace qor;

namespace {

// A host with a window, whose application tells of it.
class Host : public fakes::FakeHost {
  public:
    Host() {
        REQUIRE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
        REQUIRE(window_);
        application.holds(MemberName(u"Hwnd"), static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window_)));
        begin_command();
    }
    ~Host() {
        gExcel = Object();
        DestroyWindow(window_);
        CoUninitialize();
    }
    HWND window() const { return window_; }

  private:
    HWND window_ = CreateWindowW(L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 99, 99, nullptr, nullptr,
                                 nullptr, nullptr);
};

std::wstring text_of(HWND window) {
    std::array<wchar_t, 200> text{};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

BOOL CALLBACK take_dialog(HWND window, LPARAM found) {
    std::array<wchar_t, 20> kind{};
    GetClassNameW(window, kind.data(), static_cast<int>(kind.size()));
    if (std::wstring(kind.data()) != L"#32770" || !IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// The user: waits for a dialog of the thread that made it, sees over which window it stands and what it is called, does
// something, and presses one of its buttons.
class User {
  public:
    explicit User(
        int button, std::function<void(HWND)> work = [](HWND) {})
        : hand_([this, button, work = std::move(work), thread = GetCurrentThreadId()] {
              HWND dialog = nullptr;
              for (int wait = 0; wait < 1000 && !dialog; ++wait) {
                  EnumThreadWindows(thread, take_dialog, reinterpret_cast<LPARAM>(&dialog));
                  if (!dialog) Sleep(10);
              }
              if (!dialog) return;
              owner = GetWindow(dialog, GW_OWNER);
              title = text_of(dialog);
              work(dialog);
              PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
          }) {}
    void done() { hand_.join(); }

    HWND owner = nullptr;
    std::wstring title;

  private:
    std::thread hand_;
};

}  // namespace

TEST_CASE("a message stands over the host's window and answers by the button that was pressed") {
    const Host host;
    excel::SystemScreen screen;
    struct Case {
        MessageButtons buttons;
        int pressed;
        MessageAnswer answer;
    };
    const std::array<Case, 10> cases{{
        {MessageButtons::ok, IDOK, MessageAnswer::ok},
        {MessageButtons::ok_cancel, IDOK, MessageAnswer::ok},
        {MessageButtons::ok_cancel, IDCANCEL, MessageAnswer::cancel},
        {MessageButtons::abort_retry_ignore, IDABORT, MessageAnswer::abort},
        {MessageButtons::abort_retry_ignore, IDRETRY, MessageAnswer::retry},
        {MessageButtons::abort_retry_ignore, IDIGNORE, MessageAnswer::ignore},
        {MessageButtons::yes_no_cancel, IDCANCEL, MessageAnswer::cancel},
        {MessageButtons::yes_no, IDYES, MessageAnswer::yes},
        {MessageButtons::yes_no, IDNO, MessageAnswer::no},
        {MessageButtons::retry_cancel, IDRETRY, MessageAnswer::retry},
    }};
    for (const Case& row : cases) {
        CAPTURE(row.pressed);
        User user(row.pressed);
        const MessageAnswer answer =
            screen.message_box({.title = u"QOR Plus", .text = u"Replace it?", .buttons = row.buttons});
        user.done();
        CHECK(answer == row.answer);
        CHECK(user.owner == host.window());
        CHECK(user.title == L"QOR Plus");
    }
}

TEST_CASE("a message has the default button that was asked for, and its text") {
    const Host host;
    excel::SystemScreen screen;
    LONG chosen = 0;
    bool has_text = false;
    User user(IDCANCEL, [&](HWND dialog) {
        chosen = GetWindowLongW(GetDlgItem(dialog, IDNO), GWL_STYLE) & BS_TYPEMASK;
        for (HWND part = GetWindow(dialog, GW_CHILD); part; part = GetWindow(part, GW_HWNDNEXT)) {
            has_text = has_text || text_of(part) == L"Überschreiben – 上書き?";
        }
    });
    screen.message_box({.title = u"QOR Plus",
                        .text = u"Überschreiben – 上書き?",
                        .icon = MessageIcon::question,
                        .buttons = MessageButtons::yes_no_cancel,
                        .default_button = 1});
    user.done();
    CHECK(chosen == BS_DEFPUSHBUTTON);
    CHECK(has_text);
}

TEST_CASE("a colour is picked or not") {
    const Host host;
    excel::SystemScreen screen;
    User picks(IDOK);
    CHECK(screen.pick_color(nullptr) == 0);
    picks.done();
    CHECK(picks.owner == host.window());
    User cancels(IDCANCEL);
    CHECK_FALSE(screen.pick_color(nullptr));
    cancels.done();
}

TEST_CASE("a file to save is the proposed one in its folder, with the chosen kind, or none") {
    const Host host;
    excel::SystemScreen screen;
    FileDialog dialog{.purpose = FileDialog::Purpose::save,
                      .title = u"Save it",
                      .kinds = {{u"Workbooks", u"*.xlsx"}, {u"Texts", u"*.txt"}},
                      .chosen_kind = 1,
                      .folder = u"C:\\windows",
                      .file_name = u"überall.txt"};
    User picks(IDOK);
    CHECK(screen.pick_file(nullptr, dialog) == u"C:\\windows\\überall.txt");
    picks.done();
    CHECK(picks.title == L"Save it");
    CHECK(picks.owner == host.window());
    CHECK(dialog.chosen_kind == 1);
    User cancels(IDCANCEL);
    CHECK_FALSE(screen.pick_file(nullptr, dialog));
    cancels.done();
}

TEST_CASE("a file to open is one that is there") {
    const Host host;
    excel::SystemScreen screen;
    FileDialog dialog{
        .title = u"Open it", .kinds = {{u"Settings", u"*.ini"}}, .folder = u"C:\\windows", .file_name = u"win.ini"};
    User picks(IDOK);
    CHECK(screen.pick_file(nullptr, dialog) == u"C:\\windows\\win.ini");
    picks.done();
    CHECK(picks.title == L"Open it");
}

TEST_CASE("a folder is picked or not") {
    const Host host;
    excel::SystemScreen screen;
    User picks(IDOK, [](HWND dialog) {
        SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(L"C:\\windows"));
    });
    CHECK(screen.pick_folder(nullptr, u"Where to?") == u"C:\\windows");
    picks.done();
    CHECK(picks.owner == host.window());
    User cancels(IDCANCEL);
    CHECK_FALSE(screen.pick_folder(nullptr, u"Where to?"));
    cancels.done();
}
