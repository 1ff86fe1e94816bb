#include "workbooks/scroll_areas.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/command_host.hpp"

using namespace qor;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;

namespace {

struct Group : fakes::CommandHost {
    std::u16string active = u"B";
    std::vector<std::u16string> group{u"B", u"C"};

    Group() {
        application.answers(names::ScreenUpdating, writes(u"drawing"));
        application.answers(names::ActiveSheet, [this](Access, Values) -> Variant {
            return make(u"Worksheet", [](FakeObject& sheet) { sheet.holds(names::Index, 2); });
        });
        application.answers(names::ActiveWindow, [this](Access, Values) -> Variant {
            return make(u"Window", [this](FakeObject& window) {
                std::vector<Object> sheets;
                for (const auto& name : group)
                    sheets.push_back(make(u"Worksheet", [&](FakeObject& sheet) { sheet.holds(names::Name, name); }));
                window.holds(names::SelectedSheets, collection(u"Sheets", sheets));
            });
        });
        application.answers(names::Selection, [this](Access, Values) -> Variant {
            return make(u"Range", [this](FakeObject& selection) {
                selection.answers(names::Areas, [this](Access, Values index) -> Variant {
                    CHECK(to_long(index[0]) == 1);
                    return make(u"Range",
                                [this](FakeObject& area) { area.holds(names::AddressLocal, u"$A$1 of " + active); });
                });
            });
        });
        application.answers(names::Worksheets, [this](Access, Values index) -> Variant {
            const std::u16string name = index[0].get_if<std::int32_t>() ? u"B" : to_text(index[0]);
            return make(u"Worksheet", [&](FakeObject& sheet) {
                sheet.answers(names::Activate, [this, name](Access, Values) -> Variant {
                    active = name;
                    done.push_back(u"activate " + name);
                    return {};
                });
                sheet.answers(names::Select, writes(u"select " + name));
                sheet.answers(names::ScrollArea, writes(u"scroll " + name));
            });
        });
    }
};

}  // namespace

TEST_CASE_FIXTURE(Group, "each selected worksheet scrolls within its own selection, and the group comes back") {
    call(u"UTSetScrAre");
    CHECK(done == Lines{u"drawing False", u"activate B", u"scroll B $A$1 of B", u"activate C", u"scroll C $A$1 of C",
                        u"activate B", u"select B False", u"select C False", u"drawing True"});
    CHECK_FALSE(gExcel);
}

TEST_CASE_FIXTURE(Group, "the group comes back when the host refuses a scroll area") {
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"AddressLocal"; };
    CHECK(attempt([&] { call(u"UTSetScrAre"); }) == 1004);
    CHECK(done ==
          Lines{u"drawing False", u"activate B", u"activate B", u"select B False", u"select C False", u"drawing True"});
}

TEST_CASE_FIXTURE(Group, "scroll areas are cleared without moving the user") {
    call(u"UTCleScrAre");
    CHECK(done == Lines{u"scroll B ", u"scroll C "});
    CHECK(active == u"B");
}
