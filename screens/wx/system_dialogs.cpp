// The dialogs that the system draws: messages, files, folders and colours.
#include <wx/app.h>
#include <wx/colordlg.h>
#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/msgdlg.h>

#include <algorithm>
#include <array>
#include <span>

#include "screens/wx/colours.hpp"
#include "screens/wx/system_dialog.hpp"
#include "screens/wx/text.hpp"
#include "screens/wx/wx_screen.hpp"

namespace qor {
namespace {

using wx::from_wx;
using wx::to_wx;

struct Answer {
    int id;  // the toolkit's
    MessageAnswer answer;
    const char* label;
};

// The toolkit knows a yes, a no and a cancel, of which Escape is the cancel; the labels make of them what is asked for.
// In the order of the buttons.
constexpr std::array ok{Answer{wxID_OK, MessageAnswer::ok, "OK"}};
constexpr std::array ok_cancel{Answer{wxID_OK, MessageAnswer::ok, "OK"},
                               Answer{wxID_CANCEL, MessageAnswer::cancel, "Cancel"}};
constexpr std::array abort_retry_ignore{Answer{wxID_CANCEL, MessageAnswer::abort, "Abort"},
                                        Answer{wxID_YES, MessageAnswer::retry, "Retry"},
                                        Answer{wxID_NO, MessageAnswer::ignore, "Ignore"}};
constexpr std::array yes_no_cancel{Answer{wxID_YES, MessageAnswer::yes, "Yes"},
                                   Answer{wxID_NO, MessageAnswer::no, "No"},
                                   Answer{wxID_CANCEL, MessageAnswer::cancel, "Cancel"}};
constexpr std::array yes_no{Answer{wxID_YES, MessageAnswer::yes, "Yes"}, Answer{wxID_NO, MessageAnswer::no, "No"}};
constexpr std::array retry_cancel{Answer{wxID_OK, MessageAnswer::retry, "Retry"},
                                  Answer{wxID_CANCEL, MessageAnswer::cancel, "Cancel"}};

// By MessageButtons.
constexpr std::array<std::span<const Answer>, 6> answers{ok,     ok_cancel,   abort_retry_ignore, yes_no_cancel,
                                                         yes_no, retry_cancel};
// By MessageIcon.
constexpr std::array<long, 5> icons{wxICON_NONE, wxICON_ERROR, wxICON_QUESTION, wxICON_WARNING, wxICON_INFORMATION};

long style_of(const MessageBox& message, std::span<const Answer> offered) {
    long style = icons.at(static_cast<std::size_t>(message.icon)) | wxCENTRE;
    // The toolkit's flags have a sign on some systems only.
    const auto add = [&](auto flag) { style |= static_cast<long>(flag); };
    for (const Answer& button : offered) {
        add(button.id == wxID_OK ? wxOK : button.id == wxID_CANCEL ? wxCANCEL : wxYES_NO);
    }
    const std::size_t place = std::min<std::size_t>(message.default_button, offered.size() - 1);
    const int chosen = offered[place].id;
    if (chosen == wxID_NO) add(wxNO_DEFAULT);
    if (chosen == wxID_CANCEL) add(wxCANCEL_DEFAULT);
    if (message.open_help) add(wxHELP);
    return style;
}

void set_labels(wxMessageDialog& dialog, std::span<const Answer> offered) {
    const auto label = [&](int id) -> wxString {
        for (const Answer& button : offered) {
            if (button.id == id) return button.label;
        }
        return "Cancel";
    };
    if (dialog.HasFlag(wxOK)) {
        dialog.SetOKCancelLabels(label(wxID_OK), label(wxID_CANCEL));
    } else {
        dialog.SetYesNoCancelLabels(label(wxID_YES), label(wxID_NO), label(wxID_CANCEL));
    }
    dialog.SetHelpLabel("&Help");
}

wxString wildcard(const std::vector<FileDialog::Kind>& kinds) {
    wxString text;
    for (const FileDialog::Kind& kind : kinds) {
        if (!text.empty()) text += '|';
        text += to_wx(kind.description) + '|' + to_wx(kind.pattern);
    }
    return text;
}

}  // namespace

MessageAnswer WxScreen::message_box(const MessageBox& message) {
    const std::span<const Answer> offered = answers.at(static_cast<std::size_t>(message.buttons));
    const long style = style_of(message, offered);
    wxMessageDialog dialog(parent_for(nullptr), to_wx(message.text), to_wx(message.title), style);
    set_labels(dialog, offered);
    int pressed = wxID_HELP;
    while (pressed == wxID_HELP) {
        if (message.open_help) wxTheApp->CallAfter([&] { wx::press_help_on_f1(dialog); });  // once it has a window
        pressed = run(dialog);
        if (pressed == wxID_HELP) message.open_help();
    }
    for (const Answer& button : offered) {
        if (button.id == pressed) return button.answer;
    }
    return offered.back().answer;  // the window was closed: what says no
}

std::optional<std::u16string> WxScreen::pick_file(Form* owner, FileDialog& wanted) {
    const bool open = wanted.purpose == FileDialog::Purpose::open;
    wxFileDialog dialog(parent_for(owner), to_wx(wanted.title), to_wx(wanted.folder), to_wx(wanted.file_name),
                        wildcard(wanted.kinds),
                        open ? wxFD_OPEN | wxFD_FILE_MUST_EXIST : wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    if (!wanted.kinds.empty()) dialog.SetFilterIndex(static_cast<int>(wanted.chosen_kind));
    if (run(dialog) != wxID_OK) return {};
    if (!wanted.kinds.empty()) wanted.chosen_kind = static_cast<std::size_t>(dialog.GetFilterIndex());
    return from_wx(dialog.GetPath());
}

std::optional<std::u16string> WxScreen::pick_folder(Form* owner, const std::u16string& title) {
    wxDirDialog dialog(parent_for(owner), to_wx(title), {}, wxDD_DEFAULT_STYLE | wxDD_DIR_MUST_EXIST);
    if (run(dialog) != wxID_OK) return {};
    return from_wx(dialog.GetPath());
}

std::optional<std::int32_t> WxScreen::pick_color(Form* owner) {
    wxColourDialog dialog(parent_for(owner));
    if (run(dialog) != wxID_OK) return {};
    return wx::from_wx(dialog.GetColourData().GetColour());
}

}  // namespace qor
