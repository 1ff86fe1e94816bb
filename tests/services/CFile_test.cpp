#include "services/CFile.hpp"

#include <doctest/doctest.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <chrono>

#include "platform/text.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;

namespace {

struct Folder {
    test::TemporaryFolder folder;

    // The path of a name in the folder, behind a separator of the other system.
    std::u16string at(std::u16string_view name) const { return folder.path.u16string().append(u"\\").append(name); }
    std::u16string put(const std::string& name) const {
        test::put(folder.path / name, "content");
        return at(from_utf8(name));
    }
};

using PathPart = std::u16string (*)(std::u16string_view);

std::string part(PathPart function, std::u16string_view path) {
    return to_utf8(function(path));
}

}  // namespace

TEST_CASE_FIXTURE(Folder, "a file is there or not, with either separator") {
    put("a.txt");
    CHECK(CFile::FileExists(at(u"a.txt")));
    CHECK(CFile::FileExists((folder.path / "a.txt").u16string()));
    CHECK(CFile::FileExists(u"C:" + at(u"a.txt")));
    CHECK_FALSE(CFile::FileExists(at(u"b.txt")));
    CHECK_FALSE(CFile::FileExists(at(u"a.txt\\b")));
    CHECK_FALSE(CFile::FileExists(u""));
    CHECK_FALSE(CFile::FileExists(u"1:" + at(u"a.txt")));
}

TEST_CASE_FIXTURE(Folder, "a folder is found as a file is, unless a separator ends its path") {
    CHECK(CFile::FileExists(folder.path.u16string()));
    CHECK_FALSE(CFile::FileExists(at(u"")));
}

TEST_CASE_FIXTURE(Folder, "a name may hold wildcards, which only the last one may") {
    put("a1.txt");
    CHECK(CFile::FileExists(at(u"*.txt")));
    CHECK(CFile::FileExists(at(u"a?.txt")));
    CHECK(CFile::FileExists(at(u"*.*")));
    CHECK_FALSE(CFile::FileExists(at(u"?.txt")));
    CHECK_FALSE(CFile::FileExists(at(u"*.doc")));
    CHECK_FALSE(CFile::FileExists(at(u"[a]1.tx*")));
    std::filesystem::create_directory(folder.path / "[b]");
    CHECK(CFile::FileExists(at(u"[b]\\*")));  // a folder holds itself
    CHECK(CFile::FileExists(at(u"[b]*")));
    CHECK_FALSE(CFile::FileExists(at(u"?b]\\a")));
}

TEST_CASE_FIXTURE(Folder, "a folder is one around blanks and before one separator") {
    put("a.txt");
    const std::u16string path = folder.path.u16string();
    CHECK(CFile::FolderExists(path));
    CHECK(CFile::FolderExists(u"  " + path + u"  "));
    CHECK(CFile::FolderExists(path + u"\\"));
    CHECK(CFile::FolderExists(path + u"/"));
    CHECK_FALSE(CFile::FolderExists(path + u"\\\\"));
    CHECK_FALSE(CFile::FolderExists(at(u"a.txt")));
    CHECK_FALSE(CFile::FolderExists(at(u"b")));
    CHECK_FALSE(CFile::FolderExists(u""));
    CHECK_FALSE(CFile::FolderExists(u"   "));
    CHECK(CFile::FolderExists(u"/"));
    CHECK(CFile::FolderExists(u"C:\\"));
    CHECK_FALSE(CFile::FolderExists(u"1:\\"));
}

TEST_CASE_FIXTURE(Folder, "times are told in coordinated universal time") {
    const std::u16string path = put("a.txt");
    // 7 minutes 9 seconds past 4 in the morning of 5 March 2004, and the last second of 1999.
    const std::array<timespec, 2> access_and_write{timespec{.tv_sec = 1078459629, .tv_nsec = 999'999'999},
                                                   timespec{.tv_sec = 946684799, .tv_nsec = 0}};
    REQUIRE(::utimensat(AT_FDCWD, (folder.path / "a.txt").c_str(), access_and_write.data(), 0) == 0);
    CHECK(to_utf8(CFile::GetFileLastAccessTime(path)) == "03/05/2004  04:07:09");
    CHECK(to_utf8(CFile::GetFileLastWriteTime(path)) == "12/31/1999  23:59:59");
    CHECK(CFile::GetFileCreationTime(path).size() == 20);
}

TEST_CASE_FIXTURE(Folder, "a file that is not there has no attributes and the clock's first time") {
    const std::u16string path = at(u"absent");
    CHECK(to_utf8(CFile::GetFileCreationTime(path)) == "01/01/1601  00:00:00");
    CHECK(to_utf8(CFile::GetFileLastWriteTime(path)) == "01/01/1601  00:00:00");
    CHECK(to_utf8(CFile::GetFileLastAccessTime(path)) == "01/01/1601  00:00:00");
    for (const auto attribute : {CFile::IsFileHidden, CFile::IsFileSystem, CFile::IsFileReadOnly, CFile::IsFileArchive,
                                 CFile::IsFileTemp, CFile::IsFileNormal, CFile::IsFileCompressed}) {
        CHECK_FALSE(attribute(path));
    }
}

TEST_CASE_FIXTURE(Folder, "a file is normal or has attributes") {
    const std::u16string plain = put("plain.txt");
    CHECK(CFile::IsFileNormal(plain));
    CHECK_FALSE(CFile::IsFileHidden(plain));
    CHECK_FALSE(CFile::IsFileReadOnly(plain));
    const std::u16string hidden = put(".hidden");
    CHECK(CFile::IsFileHidden(hidden));
    CHECK_FALSE(CFile::IsFileNormal(hidden));
    const std::u16string locked = put("locked.txt");
    REQUIRE(::chmod((folder.path / "locked.txt").c_str(), S_IRUSR) == 0);
    CHECK(CFile::IsFileReadOnly(locked));
    CHECK_FALSE(CFile::IsFileNormal(locked));
    for (const auto attribute :
         {CFile::IsFileSystem, CFile::IsFileArchive, CFile::IsFileTemp, CFile::IsFileCompressed}) {
        CHECK_FALSE(attribute(plain));
    }
}

TEST_CASE("a path is taken apart whether anything is there or not") {
    CHECK(part(CFile::GetFilePath, u"C:\\Data\\Book.xls") == "C:\\Data");
    CHECK(part(CFile::GetFileName, u"C:\\Data\\Book.xls") == "Book.xls");
    CHECK(part(CFile::GetFileExtension, u"C:\\Data\\Book.xls") == "xls");
    CHECK(part(CFile::GetFileNameWOExt, u"C:\\Data\\Book.xls") == "Book");
    CHECK(part(CFile::GetFilePath, u"/home/ann/Book.2004.xls") == "/home/ann");
    CHECK(part(CFile::GetFileName, u"/home/ann/Book.2004.xls") == "Book.2004.xls");
    CHECK(part(CFile::GetFileExtension, u"/home/ann/Book.2004.xls") == "xls");
    CHECK(part(CFile::GetFileNameWOExt, u"/home/ann/Book.2004.xls") == "Book.2004");
    CHECK(part(CFile::GetFileName, u"/home/ann\\Bookmarks.dat") == "Bookmarks.dat");
    CHECK(part(CFile::GetFilePath, u"C:\\Book.xls") == "C:");
}

TEST_CASE("a path may lack parts") {
    CHECK(part(CFile::GetFilePath, u"Book.xls").empty());
    CHECK(part(CFile::GetFileName, u"Book.xls") == "Book.xls");
    CHECK(part(CFile::GetFileNameWOExt, u"Book.xls") == "Book");
    CHECK(part(CFile::GetFileExtension, u"Book").empty());
    CHECK(part(CFile::GetFileNameWOExt, u"Book") == "Book");
    CHECK(part(CFile::GetFileName, u"C:\\Data\\").empty());
    CHECK(part(CFile::GetFilePath, u"C:\\Data\\") == "C:\\Data");
    CHECK(part(CFile::GetFileNameWOExt, u"C:\\v1.2\\Book") == "Book");
    CHECK(part(CFile::GetFileExtension, u"C:\\v1.2\\Book") == "2\\Book");  // behind the path's last point
    for (const PathPart function :
         {CFile::GetFilePath, CFile::GetFileName, CFile::GetFileExtension, CFile::GetFileNameWOExt}) {
        CHECK(part(function, u"").empty());
    }
}
