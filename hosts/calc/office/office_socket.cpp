#include "hosts/calc/office/office_socket.hpp"

#include <fmt/format.h>
#include <rtl/digest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <memory>

#include "platform/posix/file_descriptor.hpp"

namespace qor::calc {

std::filesystem::path office_socket(std::string_view name) {
    const char* folder = ::access("/tmp", W_OK) == 0 ? "/tmp" : "/var/tmp";
    return fmt::format("{}/OSL_PIPE_{}_{}", folder, ::getuid(), name);
}

// The name ends in the MD5 sum of the address's UTF-16 units, each byte in as few digits as it needs.
std::filesystem::path profile_socket(const rtl::OUString& profile_url) {
    std::array<sal_uInt8, RTL_DIGEST_LENGTH_MD5> sum{};
    rtl_digest_MD5(profile_url.getStr(), static_cast<sal_uInt32>(profile_url.getLength()) * sizeof(sal_Unicode),
                   sum.data(), sum.size());
    std::string name = "SingleOfficeIPC_";
    for (const sal_uInt8 byte : sum) name += fmt::format("{:x}", byte);
    return office_socket(name);
}

bool is_listening(const std::filesystem::path& socket) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socket.native().size() >= sizeof address.sun_path) return false;
    std::memcpy(address.sun_path, socket.c_str(), socket.native().size());
    const FileDescriptor connection(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    return ::connect(connection.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

}  // namespace qor::calc
