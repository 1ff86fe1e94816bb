#include "hosts/excel/screen/system_screen.hpp"

#include <algorithm>
#include <array>

#include "automation/error.hpp"
#include "hosts/excel/screen/host_window.hpp"
#include "platform/windows/system.hpp"
#include "platform/windows/system_text.hpp"
#include "ui/form.hpp"

namespace qor::excel {
namespace {

constexpr std::int32_t action_not_supported = 445;
constexpr double twips_per_inch = 1440;

// In the order of MessageIcon, MessageButtons and MessageAnswer.
constexpr std::array<UINT, 5> icons{0, MB_ICONERROR, MB_ICONQUESTION, MB_ICONWARNING, MB_ICONINFORMATION};
constexpr std::array<UINT, 6> buttons{MB_OK,          MB_OKCANCEL, MB_ABORTRETRYIGNORE,
                                      MB_YESNOCANCEL, MB_YESNO,    MB_RETRYCANCEL};
constexpr std::array<int, 7> answers{IDOK, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES, IDNO};
constexpr std::array<UINT, 4> default_buttons{MB_DEFBUTTON1, MB_DEFBUTTON2, MB_DEFBUTTON3, MB_DEFBUTTON4};

// A message shows no other message meanwhile.
const MessageBox* shown = nullptr;

void CALLBACK open_help(HELPINFO*) {
    if (shown) attempt(shown->open_help);
}

}  // namespace

void SystemScreen::show_modal(Form& form) {
    throw Error(action_not_supported, form.name(),
                u"The dialog " + form.name() + u" cannot be shown: this build for Excel draws no dialogs.");
}

MessageAnswer SystemScreen::message_box(const MessageBox& message) {
    const std::wstring text = system_text(message.text);
    const std::wstring title = system_text(message.title);
    MSGBOXPARAMSW box{};
    box.cbSize = sizeof(box);
    box.hwndOwner = host_window();
    box.lpszText = text.c_str();
    box.lpszCaption = title.c_str();
    box.dwStyle = icons[static_cast<std::size_t>(message.icon)] | buttons[static_cast<std::size_t>(message.buttons)] |
                  default_buttons[std::min<std::size_t>(message.default_button, default_buttons.size() - 1)];
    if (message.open_help && box.hwndOwner) {
        box.dwStyle |= MB_HELP;
        box.lpfnMsgBoxCallback = open_help;
    }
    shown = &message;
    const int pressed = MessageBoxIndirectW(&box);
    shown = nullptr;
    const auto* const answer = std::ranges::find(answers, pressed);
    return answer == answers.end() ? default_answer(message) : static_cast<MessageAnswer>(answer - answers.begin());
}

double SystemScreen::twips_per_pixel() const {
    const HDC screen = GetDC(nullptr);
    const int dots_per_inch = screen ? GetDeviceCaps(screen, LOGPIXELSX) : 96;
    if (screen) ReleaseDC(nullptr, screen);
    return twips_per_inch / dots_per_inch;
}

}  // namespace qor::excel
