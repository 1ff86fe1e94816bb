#include "tests/calc_user/users_calc.hpp"

#include <doctest/doctest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <thread>

#include "hosts/calc/office/office_pipe.hpp"
#include "hosts/calc/office/process/office_location.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"
#include "tests/window/display.hpp"
#include "tests/window/hand.hpp"

namespace qor::calc::tests {
namespace {

namespace fs = std::filesystem;
namespace hand = qor::tests::hand;
using namespace std::chrono_literals;

constexpr const char* own_folder = ".config/Ombrel/QOR Plus/2.6";

void let_follow(std::chrono::milliseconds time = 200ms) {
    std::this_thread::sleep_for(time);
}

std::string output_of(const std::string& command) {
    std::string text;
    FILE* pipe = ::popen(command.c_str(), "r");
    std::array<char, 256> part{};
    while (std::fgets(part.data(), part.size(), pipe)) text += part.data();
    ::pclose(pipe);
    return text;
}

std::vector<std::string> environment(const UsersHome& home) {
    const std::string path = home.path();
    return {"HOME=" + path,
            "XDG_CONFIG_HOME=" + path + "/.config",
            "XDG_DATA_HOME=" + path + "/.local/share",
            "PATH=" + home.programs().native() + ":" + std::getenv("PATH"),
            "LC_ALL=C.UTF-8",
            "SAL_USE_VCLPLUGIN=gtk3"};
}

std::vector<std::string> command(const fs::path& file) {
    qor::tests::use_virtual_display();
    return cli::qorplus({"calc", file});
}

}  // namespace

bool comes_to(const std::function<bool()>& condition, std::chrono::seconds patience) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(50ms);
    }
    return true;
}

UsersHome::UsersHome() {
    fs::copy_file(fs::path(QOR_EXAMPLES) / "model.xlsx", model());
    fs::create_directories(profile());
    std::ofstream(registry()) << R"(<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
<item oor:path="/org.openoffice.Setup/Office"><prop oor:name="ooSetupConnectionURL" oor:op="fuse"><value>pipe,name=)"
                              << pipe() << R"(;urp;</value></prop></item>
</oor:items>
)";
}

fs::path UsersHome::profile() const {
    return path() / own_folder / "libreoffice/user";
}

fs::path UsersHome::settings_file() const {
    return path() / own_folder / "settings.ini";
}

std::string UsersHome::settings() const {
    std::ostringstream text;
    text << std::ifstream(settings_file()).rdbuf();
    return text.str();
}

std::string UsersHome::setting(const std::string& key) const {
    std::istringstream lines(settings());
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(key + "=")) return line.substr(key.size() + 1);
    }
    return "none";
}

void UsersHome::note_opened_addresses(int exit_code) const {
    fs::create_directories(programs());
    const auto program = programs() / "xdg-open";
    std::ofstream(program) << "#!/bin/sh\necho \"$*\" > \"" << path().native() << "/opened\"\nexit " << exit_code
                           << '\n';
    fs::permissions(program, fs::perms::owner_all);
}

std::string UsersHome::opened_address() const {
    std::string address;
    std::ifstream opened(path() / "opened");
    std::getline(opened, address);
    return address;
}

fs::path UsersHome::data() const {
    return path() / ".local/share/Ombrel/QOR Plus/2.6";
}

UsersCalc::UsersCalc(const UsersHome& home) : run_(command(home.model()), "/", environment(home)), pipe_(home.pipe()) {
    REQUIRE(comes_to([&] { return context().is(); }, 60s));
    REQUIRE(comes_to([&] {
        const auto menu = menu_bar();
        return std::ranges::find(menu, u"~QOR Plus") != menu.end() && toolbar_with(u"Set Scroll Area");
    }));
    let_follow(2s);
}

UsersCalc::~UsersCalc() {
    for (const pid_t process : run_.processes()) ::kill(process, SIGKILL);  // the desktop's services, too
    CHECK(run_.leaves_nothing());
}

css::uno::Reference<css::uno::XComponentContext> UsersCalc::context() const {
    return office_at_pipe(office_program_folder(), pipe_).reference();
}

void UsersCalc::key(const std::string& name) const {
    hand::key(name);
    let_follow();
}

void UsersCalc::keys(const std::vector<std::string>& names) const {
    for (const std::string& name : names) key(name);
}

void UsersCalc::type(const std::string& text) const {
    hand::type(text);
    let_follow();
}

void UsersCalc::click(css::awt::Point place) const {
    hand::move(place.X, place.Y);
    let_follow();
    hand::press();
    hand::release();
    let_follow();
}

void UsersCalc::drag(css::awt::Point from, css::awt::Point to) const {
    hand::move(from.X, from.Y);
    hand::press();
    let_follow();
    constexpr int steps = 10;
    for (int step = 1; step <= steps; ++step) {
        hand::move(from.X + (to.X - from.X) * step / steps, from.Y + (to.Y - from.Y) * step / steps);
        let_follow(50ms);
    }
    hand::release();
    let_follow();
}

void UsersCalc::open_options() const {
    keys({"alt+q", "o"});
    REQUIRE(shows("QOR Plus: Options"));
    let_follow();
}

bool UsersCalc::sees_window(const std::string& title) const {
    return !output_of("xdotool search --onlyvisible --name '^" + title + "' 2>/dev/null").empty();
}
bool UsersCalc::shows(const std::string& title) const {
    return comes_to([&] { return sees_window(title); });
}
bool UsersCalc::loses(const std::string& title) const {
    return comes_to([&] { return !sees_window(title); });
}

std::optional<ToolbarWindow> UsersCalc::toolbar_with(std::u16string_view button) const {
    for (const auto& layout : ui().layouts()) {
        for (const auto& element : layout->getElements()) {
            const rtl::OUString url = get_property<rtl::OUString>(Ref(element), "ResourceURL");
            if (!view_of(url).starts_with(own_toolbar_prefix)) continue;
            ToolbarWindow window(layout, from_uno(url));
            if (window.middle_of(button)) return window;
        }
    }
    return {};
}

std::vector<std::u16string> UsersCalc::menu_bar() const {
    std::vector<std::u16string> captions;
    const auto content = Ref(ui().manager()->getSettings(to_uno(menu_bar_url), false));
    for (sal_Int32 place = 0; place < content->getCount(); ++place) {
        std::u16string caption;
        for (const auto& property : value_of<PropertyValues>(content->getByIndex(place))) {
            rtl::OUString text;
            if (!(property.Value >>= text)) continue;
            if (property.Name == "Label" && !text.isEmpty()) caption = from_uno(text);
            if (property.Name == "CommandURL" && caption.empty()) caption = from_uno(text);
        }
        captions.push_back(caption);
    }
    return captions;
}

void UsersCalc::close_window() const {
    click({1269, 9});  // it fills the display
}

bool UsersCalc::ends() const {
    return comes_to([&] { return run_.processes("soffice.bin").empty(); });
}

void UsersCalc::take_picture(const char* name) const {
    const char* folder = std::getenv("QORPLUS_PICTURES");
    if (folder) hand::take_picture(0, 0, 1280, 800, std::string(folder) + '/' + name + ".png");
}

}  // namespace qor::calc::tests
