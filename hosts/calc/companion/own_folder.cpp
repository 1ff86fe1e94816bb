#include "hosts/calc/companion/own_folder.hpp"

#include <dlfcn.h>

namespace qor::calc {

std::filesystem::path own_folder() {
    Dl_info own{};
    ::dladdr(reinterpret_cast<const void*>(&own_folder), &own);
    return std::filesystem::path(own.dli_fname ? own.dli_fname : "").parent_path();
}

}  // namespace qor::calc
