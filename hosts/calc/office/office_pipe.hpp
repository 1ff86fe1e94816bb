#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>
#include <filesystem>
#include <string>

namespace qor::calc {

// What the LibreOffice that listens at the pipe of that name offers; empty while none does.
com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext> office_at_pipe(
    const std::filesystem::path& program, const std::string& pipe_name);

}  // namespace qor::calc
