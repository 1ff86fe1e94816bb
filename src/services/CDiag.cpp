#include "services/CDiag.hpp"

#include <algorithm>
#include <filesystem>

#include "automation/error.hpp"
#include "ground/MMain.hpp"
#include "platform/files.hpp"
#include "runtime/trim.hpp"
#include "services/CFile.hpp"

namespace qor {
namespace {

constexpr char16_t zero = u'\0';

// A filter's parts, in pairs; a description without its pattern is none.
std::vector<FileDialog::Kind> kinds_of(std::u16string_view filter) {
    std::vector<std::u16string> parts;
    while (!filter.empty()) {
        const std::u16string_view part = filter.substr(0, filter.find(zero));
        filter.remove_prefix(std::min(part.size() + 1, filter.size()));
        if (!part.empty()) parts.emplace_back(trim(part));
    }
    std::vector<FileDialog::Kind> kinds;
    for (std::size_t place = 0; place + 1 < parts.size(); place += 2) kinds.push_back({parts[place], parts[place + 1]});
    return kinds;
}

// Behind the name's last point, 0 where there is none.
std::size_t extension_place(std::u16string_view path) {
    const std::u16string name = CFile::GetFileName(path);
    const std::size_t point = name.rfind(u'.');
    return point == name.npos ? 0 : path.size() - name.size() + point + 1;
}

}  // namespace

CDiag::CDiag() {
    std::error_code unknown;
    InitDir = path_text(std::filesystem::current_path(unknown));
}

std::u16string CDiag::Filter() const {
    std::u16string text = filter_;
    std::ranges::replace(text, zero, u'|');
    return text;
}

void CDiag::Filter(std::u16string_view value) {
    filter_ = value;
    std::ranges::replace(filter_, u'|', zero);
    for (int added = 0; added < 2 && !filter_.ends_with(std::u16string_view(u"\0\0", 2)); ++added) filter_ += zero;
}

std::int32_t CDiag::GetColorWDiag() {
    return with_trace(u"GetColorWDiag", [&] {
        const auto color = environment().screen.pick_color(GetMehwnd);
        GetCancel = !color;
        return color.value_or(0);
    });
}

std::u16string CDiag::BrowseForFolder(const std::u16string& title) {
    return with_trace(u"BrowseForFolder", [&] {
        const auto folder = environment().screen.pick_folder(GetMehwnd, title);
        GetCancel = !folder || folder->empty();
        return folder.value_or(std::u16string());
    });
}

std::u16string CDiag::ShowOpen() {
    with_trace(u"ShowOpen", [&] { show(FileDialog::Purpose::open); });
    return FileName;
}

std::u16string CDiag::ShowSave() {
    with_trace(u"ShowSave", [&] { show(FileDialog::Purpose::save); });
    return FileName;
}

void CDiag::show(FileDialog::Purpose purpose) {
    FileDialog dialog{
        .purpose = purpose, .title = DialogTitle, .kinds = kinds_of(filter_), .folder = InitDir, .file_name = FileName};
    if (FilterIndex > 0) dialog.chosen_kind = static_cast<std::size_t>(FilterIndex) - 1;
    const auto path = environment().screen.pick_file(GetMehwnd, dialog);
    GetCancel = !path || trim(*path).empty();
    if (GetCancel) return;
    FileName = trim(*path);
    const bool is_there = purpose == FileDialog::Purpose::open && CFile::FileExists(FileName);
    if (extension_place(FileName) == 0 && !DefaultExt.empty() && !is_there) FileName += u'.' + DefaultExt;
    FileTitle = CFile::GetFileName(FileName);
    FileExt = static_cast<std::int16_t>(extension_place(FileName));
    InitDir = trim(InitDir);
    FilterIndex = static_cast<std::int16_t>(dialog.chosen_kind + 1);
}

}  // namespace qor
