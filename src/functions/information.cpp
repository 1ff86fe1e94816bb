#include "functions/information.hpp"

#include <array>

#include "functions/families.hpp"
#include "platform/text.hpp"

// What the machine tells about itself. Every call asks anew.
namespace qor {
namespace {

template <class Source>
using Answer = std::u16string (*)(const Source&);

std::u16string decimal(std::uint64_t number) {
    return from_utf8(std::to_string(number));
}

constexpr std::array<Answer<CDrive>, 8> drive_answers{
    [](const CDrive& drive) { return decimal(drive.AvailableSpace()); },
    [](const CDrive& drive) { return std::u16string(drive.DriveTypeEx()); },
    [](const CDrive& drive) { return drive.FileSystem(); },
    [](const CDrive& drive) { return decimal(drive.FreeSpace()); },
    [](const CDrive& drive) { return drive.Label(); },
    [](const CDrive& drive) { return to_text(drive.MaxFilenameLength()); },
    [](const CDrive& drive) { return drive.SerialNumber(); },
    [](const CDrive& drive) { return decimal(drive.TotalSpace()); },
};

constexpr std::array<Answer<COpsSys>, 6> system_answers{
    [](const COpsSys& system) { return system.GetMachineName(); },
    [](const COpsSys& system) { return system.GetMachineUserName(); },
    [](const COpsSys& system) { return system.GetOrganization(); },
    [](const COpsSys& system) { return system.GetWinDir(); },
    [](const COpsSys& system) { return system.GetWinSysDir(); },
    [](const COpsSys& system) { return std::u16string(system.GetOSPlatform()); },
};

template <class Source, std::size_t count>
std::u16string answer_from(const std::array<Answer<Source>, count>& answers, std::int32_t question,
                           const Source& source) {
    const auto place = static_cast<std::size_t>(question);  // beyond the table if it is negative
    return place < count ? answers[place](source) : u"0";
}

}  // namespace

std::u16string answer_about(const CDrive& drive, std::int32_t question) {
    return answer_from(drive_answers, question, drive);
}

std::u16string answer_about(const COpsSys& system, std::int32_t question) {
    return answer_from(system_answers, question, system);
}

std::vector<FunctionDeclaration> information_functions() {
    return {
        {.name = u"DRIVEINFO",
         .help_id = 130005,
         .description = u"Returns drive information.",
         .parameters = {u"lTypeInfo", u"sDriveLetter"},
         .formula =
             [](std::int32_t lTypeInfo, const std::u16string& sDriveLetter) {
                 CDrive drive;
                 drive.Drive(sDriveLetter);
                 return answer_about(drive, lTypeInfo);
             },
         .examples = {{{9, u"C"}, u"0"}}},
        {.name = u"SYSINFO",
         .help_id = 130015,
         .description = u"Returns system information.",
         .parameters = {u"lTypeInfo"},
         .formula = [](std::int32_t lTypeInfo) { return answer_about(COpsSys(), lTypeInfo); },
         .examples = {{{-1}, u"0"}}},
    };
}

}  // namespace qor
