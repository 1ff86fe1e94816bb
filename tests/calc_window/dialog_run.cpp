#include "tests/calc_window/dialog_run.hpp"

#include <cmath>
#include <cstdlib>

#include "core/CCom.hpp"
#include "hosts/calc/companion/loaded_screen.hpp"
#include "tests/calc/support/office_loop.hpp"
#include "tests/window/hand.hpp"

namespace qor::calc::tests {
namespace {

using namespace std::chrono_literals;
using qor::tests::User;
using qor::tests::window_of;

LoadedScreen& windows() {
    static LoadedScreen screen(office_context());  // once: the toolkit cannot be started again
    return screen;
}

// Twips from the left edge, at the level's indentation.
wxPoint in_row(User& user, int row, int level, int twips) {
    wxPoint place;
    user.on_screen([&] {
        const auto& tree = window_of<wxWindow>("ctlTreeView");
        const double height = std::ceil(tree.GetCharHeight() * 1.25);
        const double scale = height / 255;
        place = {static_cast<int>((285 * level + twips) * scale), static_cast<int>((row + 0.5) * height)};
    });
    return place;
}

}  // namespace

DialogRun::DialogRun() : in_place({windows(), settings}), com(make_object<CCom>()) {
    calc.application.get(names::ActiveSheet).get(names::Range, u"A1").put(names::Value, 12.0);
    let_office_work(500ms);
}

void DialogRun::open(std::u16string_view tool, const std::string& title,
                     const std::function<void(User&)>& script) const {
    qor::tests::play([&] { com.call(MemberName(tool), calc.application); }, close_dialogs,
                     [&](User& user) {
                         if (!user.sees_dialog(title)) throw std::runtime_error("the dialog did not open");
                         script(user);
                     });
}

bool DialogRun::close_dialogs() {
    return windows().close_dialogs();
}

MessageAnswer DialogRun::message_box(const MessageBox& message) {
    return windows().message_box(message);
}

wxPoint DialogRun::box(User& user, int row, int level) {
    return in_row(user, row, level, 82);
}

wxPoint DialogRun::text(User& user, int row, int level) {
    return in_row(user, row, level, 330);
}

void DialogRun::keep_picture(const std::string& name) {
    const char* folder = std::getenv("QORPLUS_PICTURES");
    if (folder) qor::tests::hand::take_picture(0, 0, 1280, 800, std::string(folder) + '/' + name + ".png");
}

}  // namespace qor::calc::tests
