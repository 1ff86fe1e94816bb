#include "functions/information.hpp"

#include <doctest/doctest.h>

#include <algorithm>
#include <array>

#include "tests/functions/call.hpp"
#include "tests/support/raised.hpp"

using namespace qor;
using test::result_of;

namespace {

std::u16string text(std::u16string_view name, std::vector<Variant> arguments) {
    const Variant result = result_of(name, std::move(arguments));
    REQUIRE(result.is(Variant::Kind::text));
    return *result.get_if<std::u16string>();
}

// A drive C and no other.
class OneDrive final : public Drives {
  public:
    DriveKind kind(std::u16string_view root) const override {
        return is_there(root) ? DriveKind::cd_rom : DriveKind::no_root_directory;
    }
    std::optional<DriveSpace> space(std::u16string_view root) const override {
        if (!is_there(root)) return std::nullopt;
        return DriveSpace{.available = 10'000'000'000, .total = 18'446'744'073'709'551'615U, .free = 20'000'000'000};
    }
    std::optional<Volume> volume(std::u16string_view root) const override {
        if (!is_there(root)) return std::nullopt;
        return Volume{
            .label = u"Books", .serial_number = 0xFFFFFFFE, .max_filename_length = 255, .file_system = u"NTFS"};
    }
    bool set_label(std::u16string_view, std::u16string_view) override { return false; }
    std::u16string current_root() const override { return u"C:\\"; }

  private:
    static bool is_there(std::u16string_view root) { return root == u"C:\\"; }
};

class OldMachine final : public SystemInformation {
  public:
    std::u16string user_name() const override { return u"Pat"; }
    std::u16string machine_name() const override { return u"LEDGER"; }
    SystemVersion version() const override { return {SystemPlatform::windows_nt, 4, 0, 1381}; }
    std::u16string system_folder() const override { return u"C:\\WINNT\\system32"; }
    std::u16string windows_folder() const override { return u"C:\\WINNT"; }
    std::optional<std::u16string> machine_setting(std::u16string_view, std::u16string_view) const override {
        return u"Harbour Lane";
    }
};

constexpr std::array no_questions{-1, 8, 9, 2147483647, -2147483647 - 1};

}  // namespace

TEST_CASE("every question about a drive has its answer") {
    OneDrive drives;
    CDrive drive(drives);
    drive.Drive(u"c:\\books");
    const std::array<std::u16string_view, 8> expected{
        u"10000000000", u"CD-ROM", u"NTFS", u"20000000000", u"Books", u"255", u"-2", u"18446744073709551615",
    };
    for (std::int32_t question = 0; question < 8; ++question) {
        CAPTURE(question);
        CHECK((answer_about(drive, question) == expected[static_cast<std::size_t>(question)]));
    }
    for (const std::int32_t question : no_questions) CHECK((answer_about(drive, question) == u"0"));
}

TEST_CASE("a drive that cannot be read has no space") {
    OneDrive drives;
    CDrive drive(drives);
    drive.Drive(u"Q");
    for (const std::int32_t question : {0, 3, 7}) CHECK((answer_about(drive, question) == u"0"));
    CHECK((answer_about(drive, 1) == u"No Root Directory"));
}

TEST_CASE("every question about the machine has its answer") {
    const OldMachine machine;
    const COpsSys system(machine);
    const std::array<std::u16string_view, 6> expected{
        u"LEDGER", u"Pat", u"Harbour Lane", u"C:\\WINNT", u"C:\\WINNT\\system32", u"Windows NT",
    };
    for (std::int32_t question = 0; question < 6; ++question) {
        CAPTURE(question);
        CHECK((answer_about(system, question) == expected[static_cast<std::size_t>(question)]));
    }
    CHECK((answer_about(system, 6) == u"0"));
    for (const std::int32_t question : no_questions) CHECK((answer_about(system, question) == u"0"));
}

TEST_CASE("the functions ask this machine") {
    CDrive drive;
    drive.Drive(u"C");
    for (const std::int32_t question : {1, 2, 4, 5, 6, 7}) {
        CAPTURE(question);
        CHECK((text(u"DRIVEINFO", {question, u"c:\\windows"}) == answer_about(drive, question)));
    }
    for (const std::int32_t question : {0, 3}) {  // files come and go meanwhile
        const std::u16string bytes = text(u"DRIVEINFO", {question, u"C"});
        CHECK((bytes.size() > 3 && std::ranges::all_of(bytes, [](char16_t c) { return c >= u'0' && c <= u'9'; })));
    }
    const COpsSys system;
    for (std::int32_t question = 0; question < 6; ++question) {
        CHECK((text(u"SYSINFO", {question}) == answer_about(system, question)));
    }
    CHECK_FALSE(text(u"SYSINFO", {0}).empty());
}

TEST_CASE("a drive that is none and a question that is none raise nothing") {
    for (const auto* letter : {u"", u" ", u"1", u"Ä", u"\\\\server\\share"}) {
        for (const std::int32_t question : {0, 3, 7, 8, -1}) {
            CHECK((text(u"DRIVEINFO", {question, letter}) == u"0"));
        }
    }
    CHECK((text(u"SYSINFO", {-1}) == u"0"));
    CHECK((text(u"SYSINFO", {u"6"}) == u"0"));
    CHECK(test::raised([] { result_of(u"SYSINFO", {u"name"}); }) == 13);
    CHECK(test::raised([] { result_of(u"DRIVEINFO", {1}); }) == 449);
    using Names = std::vector<std::u16string_view>;
    CHECK((test::parameters_of(u"DRIVEINFO") == Names{u"lTypeInfo", u"sDriveLetter"}));
    CHECK((test::parameters_of(u"SYSINFO") == Names{u"lTypeInfo"}));
}
