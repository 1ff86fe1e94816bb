#include "tests/cli/calc_fixture.hpp"

#include "hosts/calc/office/process/office_location.hpp"

namespace qor::cli {

calc::PrivateOffice& office() {
    static const std::filesystem::path components = QOR_COMPONENTS;
    static calc::PrivateOffice only(calc::office_program_folder(), {&components, 1});
    return only;
}

}  // namespace qor::cli
