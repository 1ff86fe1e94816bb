#pragma once

#include <string>
#include <string_view>

namespace qor {

// Questions about a path. Either separator divides its parts. No member raises an error.
class CFile {
  public:
    static bool FileExists(std::u16string_view path);    // a folder counts; the name may hold * and ?
    static bool FolderExists(std::u16string_view path);  // around blanks, and before one separator at the end

    // "MM/DD/YYYY  HH:MM:SS" in coordinated universal time; the first second of 1601 for a file that is not there.
    static std::u16string GetFileCreationTime(std::u16string_view path);
    static std::u16string GetFileLastWriteTime(std::u16string_view path);
    static std::u16string GetFileLastAccessTime(std::u16string_view path);

    // False for a file that is not there.
    static bool IsFileHidden(std::u16string_view path);
    static bool IsFileSystem(std::u16string_view path);
    static bool IsFileReadOnly(std::u16string_view path);
    static bool IsFileArchive(std::u16string_view path);
    static bool IsFileTemp(std::u16string_view path);
    static bool IsFileNormal(std::u16string_view path);
    static bool IsFileCompressed(std::u16string_view path);

    // The parts of a path, whether anything is there or not.
    static std::u16string GetFilePath(std::u16string_view path);  // without the separator at its end
    static std::u16string GetFileName(std::u16string_view path);
    static std::u16string GetFileExtension(std::u16string_view path);  // behind the path's last point, if any
    static std::u16string GetFileNameWOExt(std::u16string_view path);
};

}  // namespace qor
