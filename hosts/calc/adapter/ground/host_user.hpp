#pragma once

#include <optional>
#include <string>

#include "ui/file_dialog.hpp"
#include "ui/message_box.hpp"

namespace qor::calc {

struct RangeQuestion {
    std::u16string prompt;
    std::u16string title;
    std::u16string proposed;
};

// The one whom the host asks. Every answer but a message's may be none: the user cancels.
class HostUser {
  public:
    virtual ~HostUser() = default;

    virtual MessageAnswer message_box(const MessageBox& message) = 0;
    // The path of a file to save to. The kind that the user chose is put into the dialog.
    virtual std::optional<std::u16string> file_to_save(FileDialog& dialog) = 0;
    // A range in Excel's notation. One that names no sheet lies on the active one.
    virtual std::optional<std::u16string> range(const RangeQuestion& question) = 0;
    // Whether the page or file of that address is shown.
    virtual bool show_page(const std::u16string& address) = 0;
};

}  // namespace qor::calc
