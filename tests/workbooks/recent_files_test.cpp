#include "workbooks/recent_files.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/command_host.hpp"

using namespace qor;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;

namespace {

struct RecentFiles : fakes::CommandHost {
    std::int32_t count = 3;
    std::int32_t most = 9;
    bool shown = true;

    RecentFiles() {
        application.answers(names::DisplayRecentFiles, [this](Access access, Values value) -> Variant {
            if (access == Access::put) shown = to_boolean(value[0]);
            return shown;
        });
        application.answers(names::RecentFiles, [this](Access, Values) -> Variant {
            return make(u"RecentFiles", [this](FakeObject& files) {
                files.answers(names::Count, [this](Access, Values) -> Variant { return count; });
                files.answers(names::Maximum, [this](Access access, Values value) -> Variant {
                    if (access == Access::put) most = to_long(value[0]);
                    return most;
                });
                files.answers(names::Item, [this](Access, Values index) -> Variant {
                    CHECK(to_long(index[0]) == 1);
                    return make(u"RecentFile", [this](FakeObject& file) {
                        file.answers(names::Delete, [this](Access, Values) -> Variant {
                            --count;
                            most = 0;
                            shown = false;
                            return {};
                        });
                    });
                });
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(RecentFiles,
                  "the list of recent files is emptied where the user wants that, or when it is asked for") {
    call(u"UTCleRecFil");
    call(u"UTCleRecFil", false);
    CHECK(count == 3);
    call(u"UTCleRecFil", true);
    CHECK(count == 0);
    CHECK(most == 9);
    CHECK(shown);
    count = 2;
    settings.set_option(u"chkT1DeleteRecentFiles", u"-1");
    call(u"UTCleRecFil");
    CHECK(count == 0);
    CHECK_FALSE(gExcel);
}
