#include "hosts/calc/uno/running_command.hpp"

#include <utility>

namespace qor::calc {
namespace {

std::function<void()>& end_listener() {
    static std::function<void()> listener;
    return listener;
}

}  // namespace

int RunningCommand::running_ = 0;

RunningCommand::~RunningCommand() {
    if (--running_ == 0 && end_listener()) end_listener()();
}

void RunningCommand::at_end(std::function<void()> listener) {
    end_listener() = std::move(listener);
}

}  // namespace qor::calc
