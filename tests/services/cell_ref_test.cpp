#include <doctest/doctest.h>

#include "automation/member_names.hpp"
#include "ground/MMain.hpp"
#include "services/cell_address.hpp"
#include "services/ctlCellRef.hpp"
#include "tests/fakes/fake_object.hpp"
#include "tests/fakes/fake_screen.hpp"
#include "tests/fakes/fake_settings.hpp"

using namespace qor;

namespace {

using Log = std::vector<std::u16string>;

class frmRange final : public Form {
  public:
    explicit frmRange(Screen& screen) : Form(u"frmRange", screen) {}
    std::u16string_view caption() const noexcept override { return u"Range"; }

    ctlCellRef txtRange{*this, u"txtRange"};
};

// A host in which the user picks `picked`, or cancels where that is empty.
struct Picking {
    fakes::FakeScreen screen;
    fakes::FakeSettings settings;
    fakes::HostLog host_log;
    std::u16string picked = u"A1:B2,C3";
    std::u16string path = u"/books";
    std::vector<Variant> asked;
    std::optional<frmRange> kept_form;
    frmRange& form;
    ctlCellRef& txtRange;

    Picking() : form((set_environment({screen, settings}), kept_form.emplace(screen))), txtRange(form.txtRange) {
        gExcel = fakes::make_fake(host_log, u"Application", [this](fakes::FakeObject& fake) {
            fake.answers(names::InputBox, [this](Access, std::span<Variant> arguments) -> Variant {
                screen.log.emplace_back(u"pick");
                asked.assign(arguments.begin(), arguments.end());
                if (picked.empty()) return false;
                return range(picked);
            });
            fake.answers(names::Range, [this](Access, std::span<Variant> arguments) -> Variant {
                return range(*arguments[0].get_if<std::u16string>());
            });
        });
    }
    ~Picking() { gExcel = Object(); }

    Object range(const std::u16string& address) {
        if (address.empty()) throw Error(ErrorNumber::host_refused);
        return fakes::make_fake(host_log, u"Range", [&](fakes::FakeObject& fake) {
            fake.answers(names::Address, [address](Access, std::span<Variant> arguments) -> Variant {
                REQUIRE(arguments.size() == 2);
                CHECK_FALSE(*arguments[0].get_if<bool>());
                CHECK_FALSE(*arguments[1].get_if<bool>());
                return address;
            });
            fake.answers(names::Select, [this, address](Access, std::span<Variant>) -> Variant {
                screen.log.push_back(u"select " + address);
                return {};
            });
            fake.holds(names::Parent, fakes::make_fake(host_log, u"Worksheet", [&](fakes::FakeObject& sheet) {
                           sheet.holds(names::Parent,
                                       fakes::make_fake(host_log, u"Workbook", [&](fakes::FakeObject& book) {
                                           book.holds(names::Path, path);
                                       }));
                       }));
        });
    }
    std::u16string pick(std::u16string address) {
        picked = std::move(address);
        txtRange.box.pick();
        return txtRange.box.text();
    }
};

}  // namespace

TEST_CASE("an address is reduced to its first area, its first cell, its columns or its rows") {
    CHECK(first_area(u"C3,A1:B2") == u"C3");
    CHECK(first_area(u"A1:B2") == u"A1:B2");
    CHECK(first_cell(u"A1:B2,C3") == u"A1");
    CHECK(first_cell(u"C3,A1:B2") == u"C3,A1");
    CHECK(first_cell(u"C3") == u"C3");

    CHECK(whole_column(u"B5:D7") == u"B:B");
    CHECK(whole_column(u"B:B") == u"B:B");
    CHECK(whole_column(u"B:D") == u"B:B");
    CHECK(whole_column(u"AB12") == u"AB:AB");
    CHECK(whole_column(u"5:5") == u"5:5");
    CHECK(whole_column(u"C3,A1:B2") == u"C:C");
    CHECK(whole_column(u"").empty());

    CHECK(whole_row(u"B5:D7") == u"5:5");
    CHECK(whole_row(u"B:B").empty());
    CHECK(whole_row(u"5:5") == u"5:5");
    CHECK(whole_row(u"12:40") == u"12:12");
    CHECK(whole_row(u"AB120") == u"120:120");
    CHECK(whole_row(u"C3,A1:B2") == u"1:1");
    CHECK(whole_row(u"").empty());
}

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
    Log events;
    txtRange.Selecting = [&](bool begins) { events.emplace_back(begins ? u"begins" : u"ends"); };
    txtRange.Change = [&] { events.push_back(u"change " + txtRange.box.text()); };
    pick(u"B2");
    pick(u"B2");
    txtRange.box.set_text(u"C3");
    CHECK(events == Log{u"begins", u"change B2", u"ends", u"begins", u"ends", u"change C3"});
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
    CHECK(screen.log == Log{u"pick", u"pick", message});
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
    CHECK(screen.log == Log{u"modal frmRange", u"hide frmRange", u"pick", u"again frmRange", u"select B2:C3"});
    CHECK(form.visible());
}

TEST_CASE_FIXTURE(Picking, "nothing is selected where nothing was picked, and the form is back") {
    txtRange.let_form_step_aside();
    screen.while_modal = [&](Form&) { pick(u""); };
    form.show_modal();
    CHECK(screen.log == Log{u"modal frmRange", u"hide frmRange", u"pick", u"again frmRange"});
    CHECK(form.visible());
    CHECK(attempt([&] { txtRange.SelectRange(); }) == 1004);
}

TEST_CASE_FIXTURE(Picking, "a disabled box picks nothing") {
    txtRange.box.set_enabled(false);
    CHECK(pick(u"B2").empty());
    CHECK(screen.log.empty());
}
