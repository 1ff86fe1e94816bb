#include "platform/shell.hpp"

#include <doctest/doctest.h>
#include <stdlib.h>

#include <chrono>
#include <thread>

#include "tests/support/temporary_folder.hpp"

using namespace qor;
using namespace qor::test;

namespace {

// A search path with one program for addresses, which writes down what it is given.
struct Desktop {
    TemporaryFolder folder;
    std::string old_path = ::getenv("PATH");

    Desktop() { ::setenv("PATH", (folder.path.string() + ":" + old_path).c_str(), 1); }
    ~Desktop() { ::setenv("PATH", old_path.c_str(), 1); }

    void install_opener(const std::string& body) const {
        const auto program = folder.path / "xdg-open";
        put(program, "#!/bin/sh\n" + body);
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }
    std::string given() const {
        const auto file = folder.path / "given";
        for (int tries = 0; tries < 1000 && !std::filesystem::exists(file); ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return content_of(file);
    }
};

}  // namespace

TEST_CASE_FIXTURE(Desktop, "an address goes to the opener as one argument, whatever it holds") {
    install_opener(R"(printf '%s|' "$#" "$@" > "$0.new"; mv "$0.new" "$(dirname "$0")/given")");
    system_shell().open(u"https://example.org/?a=1&b='$(id)'; rm -rf \u00FC \"*");
    CHECK(given() == "1|https://example.org/?a=1&b='$(id)'; rm -rf \xC3\xBC \"*|");
}

TEST_CASE_FIXTURE(Desktop, "nobody waits for the opener") {
    install_opener(R"(touch "$(dirname "$0")/given"; exec sleep 3)");
    const auto begin = std::chrono::steady_clock::now();
    system_shell().open(u"https://example.org");
    CHECK(std::chrono::steady_clock::now() - begin < std::chrono::seconds(2));
    given();
    CHECK(std::filesystem::exists(folder.path / "given"));
}

TEST_CASE_FIXTURE(Desktop, "where there is no opener, nothing happens and nothing is said") {
    ::setenv("PATH", folder.path.c_str(), 1);
    system_shell().open(u"https://example.org");
    CHECK(folder.names().empty());
}
