#include "apps/qorplus/calc_command.hpp"

#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "apps/qorplus/office_library.hpp"
#include "apps/qorplus/usage_error.hpp"
#include "ground/product.hpp"
#include "hosts/calc/office/process/office_error.hpp"
#include "hosts/calc/office/process/office_location.hpp"
#include "hosts/calc/office/process/start_variable.hpp"
#include "platform/user_folders.hpp"

namespace qor::cli {
namespace {

namespace fs = std::filesystem;

bool is_set(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value;
}

// LibreOffice takes its bundled extensions from one folder: its own, and ours beside them.
fs::path link_extensions(const fs::path& folder, const fs::path& bundled) {
    fs::remove_all(folder);
    fs::create_directories(folder);
    for (const fs::path& source : {bundled, library_folder() / "extensions"}) {
        std::error_code ignored;
        for (const auto& extension : fs::directory_iterator(source, ignored))
            fs::create_directory_symlink(extension.path(), folder / extension.path().filename());
    }
    return folder;
}

}  // namespace

void become_calc(const std::vector<std::string>& files) {
    if (!is_set("DISPLAY") && !is_set("WAYLAND_DISPLAY"))
        throw calc::OfficeError("there is no display to show Calc on; start it from a desktop, or use \"qorplus run\"");
    for (const std::string& file : files) {
        if (!fs::exists(file)) throw UsageError("there is no file " + file);
    }
    const fs::path program = calc::office_program_folder();
    const fs::path own = settings_folder(product::name);
    const fs::path extensions = link_extensions(own / "extensions", program / "../share/extensions");
    std::vector<std::string> arguments{program / "soffice",
                                       "--calc",
                                       "--norestore",
                                       "--nologo",
                                       "-env:UserInstallation=" + calc::address_in_variable(own / "libreoffice"),
                                       "-env:BUNDLED_EXTENSIONS=" + calc::address_in_variable(extensions)};
    for (const std::string& file : files) arguments.push_back(fs::absolute(file));
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    ::execv(pointers.front(), pointers.data());
    throw calc::OfficeError(fmt::format("{} cannot be started: {}", arguments.front(), std::strerror(errno)));
}

}  // namespace qor::cli
