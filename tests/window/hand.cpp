#include "tests/window/hand.hpp"

#include <cstdlib>
#include <stdexcept>

namespace qor::tests::hand {
namespace {

void run(const std::string& command) {
    if (std::system(command.c_str()) != 0) throw std::runtime_error("this failed: " + command);
}

void xdotool(const std::string& command) {
    run("xdotool " + command);
}

}  // namespace

void move(int x, int y) {
    xdotool("mousemove " + std::to_string(x) + ' ' + std::to_string(y));
}

void press(int button) {
    xdotool("mousedown " + std::to_string(button));
}

void release(int button) {
    xdotool("mouseup " + std::to_string(button));
}

void key(const std::string& name) {
    xdotool("key " + name);
}

void hold_key(const std::string& name) {
    xdotool("keydown " + name);
}

void let_key_go(const std::string& name) {
    xdotool("keyup " + name);
}

void type(const std::string& text) {
    xdotool("type --delay 5 '" + text + "'");
}

void take_picture(int x, int y, int width, int height, const std::string& file) {
    run("import -window root -crop " + std::to_string(width) + 'x' + std::to_string(height) + '+' + std::to_string(x) +
        '+' + std::to_string(y) + " +repage '" + file + "'");
}

}  // namespace qor::tests::hand
