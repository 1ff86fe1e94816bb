#include "tests/calc_window/pointer.hpp"

#include <doctest/doctest.h>

#include <cstdlib>
#include <string>

#include "tests/calc/support/office_loop.hpp"

namespace qor::calc::tests {
namespace {

using namespace std::chrono_literals;

void run(const std::string& command) {
    REQUIRE_MESSAGE(std::system(command.c_str()) == 0, command);
    let_office_work(100ms);
}

}  // namespace

void click_at(int x, int y) {
    const std::string place = std::to_string(x) + " " + std::to_string(y);
    run("xdotool mousemove " + place);
    run("xdotool click 1");
}

void press_key(const char* key) {
    run(std::string("xdotool key ") + key);
}

void take_picture(const char* name) {
    const char* folder = std::getenv("QORPLUS_PICTURES");
    if (!folder) return;
    let_office_work(500ms);
    run(std::string("import -window root ") + folder + "/" + name + ".png");
}

}  // namespace qor::calc::tests
