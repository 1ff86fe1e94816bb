#include "hosts/calc/adapter/ground/file_paths.hpp"

#include <filesystem>

#include "automation/error.hpp"
#include "platform/files.hpp"
#include "platform/text.hpp"

namespace qor::calc {

std::u16string full_path(const std::u16string& path) {
    std::error_code ignored;
    const std::filesystem::path absolute = std::filesystem::absolute(native_path(path), ignored);
    return from_utf8(absolute.lexically_normal().string());
}

std::u16string file_name_of(std::u16string_view path) {
    return std::u16string(path.substr(path.rfind(u'/') + 1));
}

void refuse_file(std::u16string_view path, std::u16string_view reason) {
    throw Error(ErrorNumber::host_refused, {}, u"'" + std::u16string(path) + u"' " + std::u16string(reason));
}

}  // namespace qor::calc
