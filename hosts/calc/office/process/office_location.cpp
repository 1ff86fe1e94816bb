#include "hosts/calc/office/process/office_location.hpp"

#include <array>
#include <cstdlib>

#include "hosts/calc/office/process/office_error.hpp"

namespace qor::calc {
namespace {

constexpr std::array usual_places{QOR_LIBREOFFICE_PROGRAM, "/usr/lib/libreoffice/program",
                                  "/usr/lib64/libreoffice/program", "/opt/libreoffice/program"};

bool holds_office(const std::filesystem::path& folder) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(folder / "soffice.bin", ignored);
}

}  // namespace

std::filesystem::path office_program_folder() {
    if (const char* chosen = std::getenv("QORPLUS_LIBREOFFICE")) {
        if (holds_office(chosen)) return chosen;
        throw OfficeError(std::string("there is no LibreOffice in ") + chosen +
                          ", where QORPLUS_LIBREOFFICE points; it wants the folder that holds soffice.bin");
    }
    for (const char* place : usual_places) {
        if (holds_office(place)) return place;
    }
    throw OfficeError(
        "LibreOffice is not installed; install the package libreoffice-calc, "
        "or set QORPLUS_LIBREOFFICE to the folder that holds soffice.bin");
}

}  // namespace qor::calc
