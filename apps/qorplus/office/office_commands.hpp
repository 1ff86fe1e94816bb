#pragma once

#include <filesystem>
#include <string>

namespace qor::cli {

// What the command line asks of LibreOffice. It lies in a library of its own, which is loaded when a command needs it:
// the rest works on a machine without LibreOffice. Its members raise UsageError and OfficeError.
class OfficeCommands {
  public:
    virtual ~OfficeCommands() = default;

    // Plays a script, given as JSON text, in a LibreOffice of its own. Relative paths of the script start from
    // `current_folder`. Gives the transcript as JSON text.
    virtual std::string run(const std::string& script, const std::filesystem::path& current_folder) = 0;

    // Adds the extension package to the user's LibreOffice, in place of an earlier one.
    virtual void install(const std::filesystem::path& package) = 0;

    // False if it was not there.
    virtual bool uninstall() = 0;
};

// Where everything lies that the commands need.
struct OfficePlaces {
    std::filesystem::path program;         // LibreOffice's program folder
    std::filesystem::path component_list;  // of the unpacked extension
};

// The library's one entry.
using MakeOfficeCommands = OfficeCommands* (*)(const OfficePlaces& places);
inline constexpr const char* make_office_commands_name = "qorplus_make_office_commands";

}  // namespace qor::cli
