#include "platform/windows/system.hpp"
// After it, on which they stand.
#include <commdlg.h>
#include <shlobj.h>

#include <array>
#include <memory>

#include "hosts/excel/screen/host_window.hpp"
#include "hosts/excel/screen/system_screen.hpp"
#include "platform/windows/system_text.hpp"

namespace qor::excel {
namespace {

constexpr std::size_t longest_path = 32'768;

// Pairs of description and pattern, each with its zero; the text's own zero closes the list.
std::wstring filter_of(const std::vector<FileDialog::Kind>& kinds) {
    std::wstring filter;
    for (const auto& [description, pattern] : kinds) {
        filter.append(system_text(description)).push_back(L'\0');
        filter.append(system_text(pattern)).push_back(L'\0');
    }
    return filter;
}

struct FreeItems {
    void operator()(ITEMIDLIST* items) const { CoTaskMemFree(items); }
};

}  // namespace

std::optional<std::u16string> SystemScreen::pick_file(Form*, FileDialog& dialog) {
    const std::wstring filter = filter_of(dialog.kinds);
    const std::wstring folder = system_text(dialog.folder);
    const std::wstring title = system_text(dialog.title);
    std::wstring path = system_text(dialog.file_name).substr(0, longest_path - 1);
    path.resize(longest_path);
    OPENFILENAMEW asked{};
    asked.lStructSize = sizeof(asked);
    asked.hwndOwner = host_window();
    asked.lpstrFilter = filter.empty() ? nullptr : filter.c_str();
    asked.nFilterIndex = static_cast<DWORD>(dialog.chosen_kind + 1);
    asked.lpstrFile = path.data();
    asked.nMaxFile = static_cast<DWORD>(path.size());
    asked.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    asked.lpstrTitle = title.empty() ? nullptr : title.c_str();
    const bool opens = dialog.purpose == FileDialog::Purpose::open;
    // The process's current folder is the host's affair.
    asked.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | (opens ? OFN_FILEMUSTEXIST : OFN_OVERWRITEPROMPT);
    if (!(opens ? GetOpenFileNameW(&asked) : GetSaveFileNameW(&asked))) return std::nullopt;
    if (asked.nFilterIndex > 0) dialog.chosen_kind = asked.nFilterIndex - 1;
    return from_system_text(path.c_str());
}

std::optional<std::u16string> SystemScreen::pick_folder(Form*, const std::u16string& title) {
    const std::wstring text = system_text(title);
    BROWSEINFOW asked{};
    asked.hwndOwner = host_window();
    asked.lpszTitle = text.c_str();
    asked.ulFlags = BIF_RETURNONLYFSDIRS;
    const std::unique_ptr<ITEMIDLIST, FreeItems> chosen(SHBrowseForFolderW(&asked));
    std::array<wchar_t, MAX_PATH> path{};
    if (!chosen || !SHGetPathFromIDListW(chosen.get(), path.data())) return std::nullopt;
    return from_system_text(path.data());
}

std::optional<std::int32_t> SystemScreen::pick_color(Form*) {
    std::array<COLORREF, 16> own_colors{};
    CHOOSECOLORW asked{};
    asked.lStructSize = sizeof(asked);
    asked.hwndOwner = host_window();
    asked.lpCustColors = own_colors.data();
    if (!ChooseColorW(&asked)) return std::nullopt;
    return static_cast<std::int32_t>(asked.rgbResult);
}

}  // namespace qor::excel
