#pragma once

#include <filesystem>
#include <string>

namespace qor {

// A file that is there whole or not at all: it is written under its own name in a hidden folder beside its place, and
// moved there at the end, over what is there.
class ReplacedFile {
  public:
    // Raises ScriptError when nothing can be written in the target's folder.
    ReplacedFile(std::filesystem::path target, const std::string& hidden_name);
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;
    ~ReplacedFile();

    // Where to write.
    std::filesystem::path path() const { return folder_ / target_.filename(); }

    // Moves the file that was written to its place, under the name that it got, and gives that place. Raises
    // ScriptError when the file cannot take it.
    std::filesystem::path replace(const std::filesystem::path& written) const;

  private:
    std::filesystem::path target_;
    std::filesystem::path folder_;
};

}  // namespace qor
