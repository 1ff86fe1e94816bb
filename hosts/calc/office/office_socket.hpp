#pragma once

#include <filesystem>
#include <rtl/ustring.hxx>
#include <string_view>

namespace qor::calc {

// Where LibreOffice puts the socket of that name. One that is killed leaves it behind.
std::filesystem::path office_socket(std::string_view name);

// The socket by which a LibreOffice hands its work to the one that already holds the profile.
std::filesystem::path profile_socket(const rtl::OUString& profile_url);

// Whether a LibreOffice listens there.
bool is_listening(const std::filesystem::path& socket);

}  // namespace qor::calc
