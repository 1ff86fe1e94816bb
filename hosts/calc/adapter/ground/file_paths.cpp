#include "hosts/calc/adapter/ground/file_paths.hpp"

#include <filesystem>
#include <osl/file.hxx>

#include "automation/error.hpp"
#include "hosts/calc/uno/text.hpp"
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

std::u16string path_of_address(std::u16string_view address) {
    rtl::OUString path;
    const auto outcome = osl::FileBase::getSystemPathFromFileURL(to_uno(address), path);
    return outcome == osl::FileBase::E_None ? from_uno(path) : std::u16string(address);
}

std::u16string address_of_path(std::u16string_view path) {
    rtl::OUString address;
    const auto outcome = osl::FileBase::getFileURLFromSystemPath(to_uno(path), address);
    return outcome == osl::FileBase::E_None ? from_uno(address) : std::u16string(path);
}

void refuse_file(std::u16string_view path, std::u16string_view reason) {
    throw Error(ErrorNumber::host_refused, {}, u"'" + std::u16string(path) + u"' " + std::u16string(reason));
}

}  // namespace qor::calc
