#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ui/form.hpp"

namespace qor {

// The system's dialogs for files, folders and colours: a form sets what it needs, calls one of them and reads the
// outcome. Made anew for each use. What a dialog raises is raised on with the member's name in the trace.
class CDiag {
  public:
    CDiag();

    Form* GetMehwnd = nullptr;       // the form over whose window the dialog stands
    bool GetCancel = false;          // the user has cancelled, or nothing came of the dialog
    std::int16_t FileExt = 0;        // where the extension begins in FileName, from 0; 0 if it has none
    std::int16_t MaxFileSize = 260;  // no name is cut to it
    std::u16string InitDir;          // at first the current folder
    std::int32_t flags = 0;          // handed back as they came
    std::int16_t FilterIndex = 1;    // of the pairs in Filter, from 1
    std::u16string FileTitle;        // FileName without its folder
    std::u16string FileName;
    std::u16string DialogTitle;
    std::u16string DefaultExt;  // added to a name without one

    // Pairs of a description and a pattern, all joined by "|".
    std::u16string Filter() const;
    void Filter(std::u16string_view value);

    std::int32_t GetColorWDiag();                                 // 0xBBGGRR; 0 when cancelled
    std::u16string BrowseForFolder(const std::u16string& title);  // empty when cancelled
    // Both answer FileName, which stays as it was when cancelled.
    std::u16string ShowOpen();
    std::u16string ShowSave();

  private:
    void show(FileDialog::Purpose purpose);

    // With zero characters instead of "|"; what is written ends in two of them, and is read with them.
    std::u16string filter_{u"All Files (*.*)\0*.*", 19};
};

}  // namespace qor
