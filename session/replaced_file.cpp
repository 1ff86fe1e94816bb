#include "session/replaced_file.hpp"

#include <fmt/format.h>

#include <system_error>

#include "screens/script/script_error.hpp"

namespace qor {

ReplacedFile::ReplacedFile(std::filesystem::path target, const std::string& hidden_name)
    : target_(std::move(target)), folder_(target_.parent_path() / hidden_name) {
    std::error_code refused;
    if (!std::filesystem::create_directory(folder_, refused)) {
        throw ScriptError(
            fmt::format("nothing can be written in {}: {}", target_.parent_path().string(), refused.message()));
    }
}

ReplacedFile::~ReplacedFile() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::filesystem::path ReplacedFile::replace(const std::filesystem::path& written) const {
    std::filesystem::path place = target_.parent_path() / written.filename();
    std::error_code refused;
    std::filesystem::rename(written, place, refused);
    if (refused) throw ScriptError(fmt::format("{} cannot be replaced: {}", place.string(), refused.message()));
    return place;
}

}  // namespace qor
