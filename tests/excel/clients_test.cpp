#include <doctest/doctest.h>

#include <filesystem>

#include "automation/member_names.hpp"
#include "functions/registry.hpp"
#include "hosts/excel/com/ole.hpp"
#include "platform/windows/system_text.hpp"
#include "tests/excel/script_host.hpp"
#include "tests/excel/server.hpp"
#include "tests/excel/tester.hpp"
#include "tests/fakes/fake_host.hpp"
#include "tests/support/failing_object.hpp"
#include "tests/support/temporary_folder.hpp"

using namespace qor;
using fakes::FakeObject;
using fakes::Values;
using test::Language;
using test::Server;
using test::Tester;

namespace {

const MemberName HelpFile{u"HelpFile"};
const MemberName Registered{u"Registered"};
const MemberName Refuse{u"Refuse"};

std::u16string script(const std::string& path) {
    const std::string text = test::content_of(path);
    REQUIRE_FALSE(text.empty());
    return from_utf8(text);
}

std::u16string own_script(const std::string& name) {
    return script(QOR_SCRIPTS "/" + name);
}

// A script with T and C and what else it is given.
int run(Language language, std::u16string_view text, const Object& add_in, std::vector<test::NamedItem> items = {},
        const std::string& expected = {}) {
    auto* const tester = new Tester;
    const Object held(tester);
    if (!expected.empty()) tester->expect(expected);
    items.push_back({u"T", held});
    items.push_back({u"C", add_in});
    CHECK(test::run_script(language, text, items) == "");
    return tester->checks();
}

// A host with two workbooks that want saving, which counts what is done to it.
struct Host : fakes::FakeHost {
    std::int32_t saved = 0;
    std::int32_t registered = 0;
    Variant help_file;
    std::shared_ptr<support::AccessFailure> refusal = std::make_shared<support::AccessFailure>();
    Object refusing = support::failing_object(host, refusal);  // the application, which may be told to refuse a call

    Object workbook() {
        return make(u"Workbook", [&](FakeObject& fake) {
            fake.holds(names::FileFormat, -4143)
                .holds(names::Path, u"C:\\books")
                .holds(names::Saved, false)
                .answers(names::Save, [&](Access, Values) -> Variant {
                    ++saved;
                    return {};
                });
        });
    }
    Host() {
        application.holds(names::Workbooks, collection(u"Workbooks", {workbook(), workbook()}))
            .holds(names::ActiveWorkbook, workbook())
            .answers(names::Help,
                     [&](Access, Values arguments) -> Variant {
                         help_file = arguments.front();
                         return {};
                     })
            .answers(HelpFile, [&](Access, Values) { return help_file; })
            .answers(names::MacroOptions,
                     [&](Access, Values arguments) -> Variant {
                         if (arguments.size() == 5) ++registered;
                         return {};
                     })
            .answers(Registered, [&](Access, Values) -> Variant { return registered; })
            .answers(names::Saved, [&](Access, Values) -> Variant { return saved; })
            .answers(Refuse, [&](Access, Values arguments) -> Variant {
                // Counted from the next call on.
                *refusal = {0, static_cast<std::uint64_t>(to_long(arguments.front()))};
                return {};
            });
    }
};

// What cscript prints, run as its users run it.
std::string printed_by_cscript(const std::string& file) {
    const test::TemporaryFolder folder;
    const std::filesystem::path output = folder.path / "output";
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    const HANDLE handle = CreateFileW(output.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = handle;
    start.hStdError = handle;
    PROCESS_INFORMATION process{};
    std::wstring command = L"cscript.exe //nologo " + system_text(from_utf8(QOR_SCRIPTS "/" + file));
    REQUIRE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process));
    CHECK(WaitForSingleObject(process.hProcess, 30'000) == WAIT_OBJECT_0);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
    CloseHandle(handle);
    return test::content_of(output);
}

}  // namespace

TEST_CASE_FIXTURE(Server, "scripts use members, properties, arguments and errors") {
    CHECK(run(Language::visual_basic, own_script("members.vbs"), create()) == 29);
    CHECK(run(Language::java, own_script("members.js"), create()) == 12);
}

TEST_CASE_FIXTURE(Server, "every function gives a script what it gives on the machine that built it") {
    const std::string folder = QOR_CALLS;
    for (const auto& [language, file] :
         {std::pair(Language::visual_basic, "/calls.vbs"), std::pair(Language::java, "/calls.js")})
        CHECK(run(language, script(folder + file), create(), {}, folder + "/results.txt") > 2000);
}

TEST_CASE_FIXTURE(Server, "the 207 registered names are members, but for the four that a host's companion answers") {
    const Object add_in = create();
    int answered = 0;
    for (const Function& function : worksheet_functions()) {
        const std::int32_t error = attempt([&] { add_in.call(MemberName(function.name)); });
        if (error != 438) ++answered;
    }
    CHECK(answered == 203);
    for (const std::u16string_view name : {u"CELLINFO", u"EXCELUSERNAME", u"WRKBKINFO", u"WRKSHTINFO"})
        CHECK(attempt([&] { add_in.call(MemberName(name)); }) == 438);
}

TEST_CASE_FIXTURE(Server, "a script hands the host's application on to commands") {
    Host host;
    CHECK(run(Language::visual_basic, own_script("application.vbs"), create(), {{u"Application", host.refusing}}) ==
          10);
}

TEST_CASE_FIXTURE(Server, "whichever call the host refuses, the command raises it with its trace") {
    Host host;
    const Object add_in = create();
    const MemberName UTSavAll{u"UTSavAll"};
    std::u16string source;
    const auto save_all = [&](const Object& application) {
        try {
            add_in.call(UTSavAll, application);
        } catch (const Error& error) {
            source = error.source();
            throw;
        }
    };
    std::uint64_t raised = 0;
    const auto check = [&](std::int32_t error) {
        if (error == 0) return;
        ++raised;
        CHECK(error == 1004);
        CHECK((source.substr(0, 9) == u"UTSavAll\r"));
    };
    const std::uint64_t failures = support::fail_each_access([&] { return host.host; }, save_all, check);
    CHECK(failures == 11);
    CHECK(raised == failures);
}

TEST_CASE_FIXTURE(Server, "cscript runs plain scripts") {
    CHECK(printed_by_cscript("plain.vbs") == "QOR Plus 2.6\r\n22ND\r\n438\r\n");
    CHECK(printed_by_cscript("plain.js") == "QOR Plus 0.2\r\n");
}
