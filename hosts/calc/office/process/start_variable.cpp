#include "hosts/calc/office/process/start_variable.hpp"

#include "platform/file_address.hpp"
#include "platform/files.hpp"
#include "platform/text.hpp"

namespace qor::calc {

std::string address_in_variable(const std::filesystem::path& path) {
    std::string address = to_utf8(address_of_path(path_text(path)));
    for (std::size_t place = 0; (place = address.find('$', place)) != std::string::npos;) {
        address.replace(place, 1, "%24");
    }
    return address;
}

}  // namespace qor::calc
