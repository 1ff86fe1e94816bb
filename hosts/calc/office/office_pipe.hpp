#pragma once

#include <filesystem>
#include <string>

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// What the LibreOffice that listens at the pipe of that name offers; empty while none does.
Context office_at_pipe(const std::filesystem::path& program, const std::string& pipe_name);

}  // namespace qor::calc
