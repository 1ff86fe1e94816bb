#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/drives.hpp"

namespace qor {

// One drive of the machine; at first the one of the current folder. No member raises an error: a drive that cannot be
// read has no space, and what was known of a volume before stays known.
class CDrive {
  public:
    explicit CDrive(Drives& drives = system_drives());

    // Read as the root, such as "C:\". Written as any text that begins with the letter.
    const std::u16string& Drive() const { return root_; }
    void Drive(std::u16string_view value);

    const std::u16string& Label() const { return volume_.label; }
    void Label(std::u16string_view value);  // an empty one takes the label away

    std::uint64_t AvailableSpace() const;  // bytes that this user may fill, read at each call
    std::int32_t DriveType() const;
    std::u16string_view DriveTypeEx() const;
    const std::u16string& FileSystem() const { return volume_.file_system; }
    bool FileSystemFlag(std::int32_t flag) const;
    std::int32_t FileSystemFlags() const;
    std::uint64_t FreeSpace() const;  // bytes, read at each call
    std::int32_t MaxFilenameLength() const { return volume_.max_filename_length; }
    bool Present() const { return is_present_; }               // the space could be read at the last refresh
    std::u16string SerialNumber() const;                       // signed decimal
    std::u16string SerialNumberEx() const;                     // "12AB-34CD", empty for 0
    std::uint64_t TotalSpace() const { return total_space_; }  // bytes, of the last refresh

    // The bytes in the unit that suits them ("1.00 KB"), with the bytes behind them if asked for. From 10,000,000 KB on
    // the first part is empty.
    static std::u16string FormatSize(std::uint64_t size, bool showBytes = false);

    void Refresh();

    // Makes the path the current folder; one that cannot be leaves it as it was.
    static void SetCurrDir(std::u16string_view path);

  private:
    void read_volume();

    Drives& drives_;
    std::u16string root_;
    std::uint64_t total_space_ = 0;
    Volume volume_;
    bool is_present_ = false;
};

}  // namespace qor
