#include "apps/qorplus/office_library.hpp"

#include <dlfcn.h>
#include <fmt/format.h>

#include "apps/qorplus/usage_error.hpp"
#include "hosts/calc/office/process/office_error.hpp"
#include "hosts/calc/office/process/office_location.hpp"

namespace qor::cli {
namespace {

void* load(const std::filesystem::path& library) {
    void* handle = ::dlopen(library.c_str(), RTLD_NOW | RTLD_GLOBAL);
    if (!handle) throw calc::OfficeError(fmt::format("LibreOffice cannot be used: {}", ::dlerror()));
    return handle;
}

}  // namespace

std::filesystem::path library_folder() {
    const std::filesystem::path program_folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    for (const char* place : {"../lib/qorplus", "../../lib/qorplus"}) {
        std::filesystem::path folder = (program_folder / place).lexically_normal();
        if (std::filesystem::is_directory(folder)) return folder;
    }
    throw UsageError("this program is not whole: there is no lib/qorplus beside " + program_folder.string());
}

std::unique_ptr<OfficeCommands> load_office_commands() {
    const OfficePlaces places{.program = calc::office_program_folder(),
                              .component_list = library_folder() / "extensions/qorplus/qorplus.components"};
    // LibreOffice's own library comes first and by its place, so that ours finds it wherever LibreOffice lies.
    load(places.program / "libuno_cppuhelpergcc3.so.3");
    void* const library = load(library_folder() / "qorplus-office.so");
    const auto make = reinterpret_cast<MakeOfficeCommands>(::dlsym(library, make_office_commands_name));
    if (!make) throw calc::OfficeError(fmt::format("LibreOffice cannot be used: {}", ::dlerror()));
    return std::unique_ptr<OfficeCommands>(make(places));
}

}  // namespace qor::cli
