#include "services/ctlCellRef.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/fake_host.hpp"
#include "tests/fakes/form_with.hpp"

using namespace qor;
using fakes::FakeObject;
using fakes::Lines;
using fakes::Values;

namespace {

// A host in which the user picks `picked`, or cancels where that is empty.
struct Picking : fakes::FakeHost {
    std::u16string picked = u"A1:B2,C3";
    std::u16string path = u"/books";
    std::vector<Variant> asked;
    fakes::FormWith<ctlCellRef> form{screen, u"frmRange", u"txtRange"};
    ctlCellRef& txtRange = form.control;

    Picking() {
        application.answers(names::InputBox, [this](Access, Values arguments) -> Variant {
            screen.log.emplace_back(u"pick");
            asked.assign(arguments.begin(), arguments.end());
            if (picked.empty()) return false;
            return range(picked);
        });
        application.answers(names::Range, [this](Access, Values arguments) -> Variant {
            return range(*arguments[0].get_if<std::u16string>());
        });
        begin_command();
    }

    Object range(const std::u16string& address) {
        if (address.empty()) throw Error(ErrorNumber::host_refused);
        return make(u"Range", [&](FakeObject& fake) {
            fake.answers(names::Address, [address](Access, Values arguments) -> Variant {
                REQUIRE(arguments.size() == 2);
                CHECK_FALSE(*arguments[0].get_if<bool>());
                CHECK_FALSE(*arguments[1].get_if<bool>());
                return address;
            });
            fake.answers(names::Select, [this, address](Access, Values) -> Variant {
                screen.log.push_back(u"select " + address);
                return {};
            });
            const Object book = make(u"Workbook", [&](FakeObject& workbook) { workbook.holds(names::Path, path); });
            fake.holds(names::Parent, make(u"Worksheet", [&](FakeObject& sheet) { sheet.holds(names::Parent, book); }));
        });
    }
    std::u16string pick(std::u16string address) {
        picked = std::move(address);
        txtRange.box.pick();
        return txtRange.box.text();
    }
};

}  // namespace

TEST_CASE_FIXTURE(Picking, "the host is asked for a range under the control's title") {
    txtRange.AppTitle = u"QOR Plus: Cell Tools";
    CHECK(pick(u"A1:B2,C3") == u"A1:B2,C3");
    REQUIRE(asked.size() == 3);
    CHECK(*asked[0].get_if<std::u16string>() == u"Please select range");
    CHECK(*asked[1].get_if<std::u16string>() == u"QOR Plus: Cell Tools");
    CHECK(*asked[2].get_if<std::int32_t>() == 8);
}

TEST_CASE_FIXTURE(Picking, "one area and one cell are each taken from the address as it was picked") {
    txtRange.SingleArea = true;
    CHECK(pick(u"C3,A1:B2") == u"C3");
    CHECK(pick(u"A1:B2") == u"A1:B2");
    txtRange.SingleCell = true;
    CHECK(pick(u"A1:B2,C3") == u"A1");
    CHECK(pick(u"C3,A1:B2") == u"C3,A1");
    CHECK(pick(u"C3,D4") == u"C3");
    txtRange.SingleArea = false;
    CHECK(pick(u"C3,D4") == u"C3,D4");
}

TEST_CASE_FIXTURE(Picking, "a whole column or row is taken from the address as it was picked") {
    txtRange.SingleArea = true;
    txtRange.SingleCell = true;
    txtRange.SelectSpeck = 1;
    CHECK(pick(u"B5:D7") == u"B:B");
    CHECK(pick(u"B:B") == u"B:B");
    txtRange.SelectSpeck = 2;
    CHECK(pick(u"B5:D7") == u"5:5");
    CHECK(pick(u"5:5") == u"5:5");
    CHECK(pick(u"B:B").empty());
}

TEST_CASE_FIXTURE(Picking, "a form hears of the picking before and after it, and of every change of the text") {
    Lines events;
    txtRange.Selecting = [&](bool begins) { events.emplace_back(begins ? u"begins" : u"ends"); };
    txtRange.Change = [&] { events.push_back(u"change " + txtRange.box.text()); };
    pick(u"B2");
    pick(u"B2");
    txtRange.box.set_text(u"C3");
    CHECK(events == Lines{u"begins", u"change B2", u"ends", u"begins", u"ends", u"change C3"});
}

TEST_CASE_FIXTURE(Picking, "a pick that is cancelled, or that the host refuses, keeps the text and ends all the same") {
    txtRange.box.set_text(u"B2");
    int ends = 0;
    txtRange.Selecting = [&](bool begins) { ends += begins ? 0 : 1; };
    CHECK(pick(u"") == u"B2");
    CHECK(ends == 1);
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"InputBox"; };
    CHECK(pick(u"C3") == u"B2");
    CHECK(ends == 2);
    host_log.refuses = [](auto, std::u16string_view member, auto) { return member == u"Address"; };
    CHECK(pick(u"C3") == u"B2");
    CHECK(ends == 3);
}

TEST_CASE_FIXTURE(Picking, "where a saved workbook is needed, a range in a new one is refused") {
    const std::u16string message =
        u"message This file is new and never saved.  Before associating a bookmark with a file, you must first save "
        u"the file.";
    path.clear();
    CHECK(pick(u"B2") == u"B2");
    txtRange.SaveB4Select = true;
    CHECK(pick(u"B2").empty());
    CHECK(screen.log == Lines{u"pick", u"pick", message});
    path = u"/books";
    CHECK(pick(u"B2") == u"B2");
    CHECK(screen.log.back() == u"pick");
    // The text that stands there is looked at even where nothing was picked.
    path.clear();
    CHECK(pick(u"").empty());
    CHECK(screen.log.back() == message);
    CHECK(pick(u"").empty());
    CHECK(screen.log.back() == u"pick");
}

TEST_CASE_FIXTURE(Picking, "a form that steps aside is back when the range is picked, and then it is selected") {
    txtRange.let_form_step_aside();
    screen.while_modal = [&](Form&) { pick(u"B2:C3"); };
    form.show_modal();
    CHECK(screen.log == Lines{u"modal frmRange", u"hide frmRange", u"pick", u"again frmRange", u"select B2:C3"});
    CHECK(form.visible());
}

TEST_CASE_FIXTURE(Picking, "nothing is selected where nothing was picked, and the form is back") {
    txtRange.let_form_step_aside();
    screen.while_modal = [&](Form&) { pick(u""); };
    form.show_modal();
    CHECK(screen.log == Lines{u"modal frmRange", u"hide frmRange", u"pick", u"again frmRange"});
    CHECK(form.visible());
    CHECK(attempt([&] { txtRange.SelectRange(); }) == 1004);
}

TEST_CASE_FIXTURE(Picking, "a disabled box picks nothing") {
    txtRange.box.set_enabled(false);
    CHECK(pick(u"B2").empty());
    CHECK(screen.log.empty());
}
