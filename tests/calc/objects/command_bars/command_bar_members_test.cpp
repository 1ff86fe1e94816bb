#include "tests/calc/objects/every_object.hpp"
#include "tests/calc/support/office_loop.hpp"

namespace qor::calc::tests {
namespace {

const MemberName built_in{u"BuiltIn"};
const MemberName enabled{u"Enabled"};
const MemberName parameter{u"Parameter"};

// A member that reads what it was given; what it starts with.
struct Row {
    MemberName member;
    Variant start;
    Variant other;
};

}  // namespace

TEST_CASE("controls of every kind answer the same members") {
    const Calc calc;
    calc.add_book();
    const Object bar = calc.application.get(names::CommandBars).call(names::Add, u"Members");
    CHECK(kind_of(bar.get(names::Parent)) == "CommandBars");
    CHECK(kind_of(bar.get(names::Application)) == "Application");
    CHECK(kind_of(calc.application.get(names::CommandBars).get(MemberName(u"ActiveMenuBar"))) == "CommandBar");
    CHECK(calc.application.get(names::CommandBars).get(MemberName(u"ActiveMenuBar")).get(names::Index) == 1);
    const Object controls = bar.get(names::Controls);
    CHECK(kind_of(controls.get(names::Application)) == "Application");
    std::int32_t place = 0;
    for (const std::int32_t type : {1, 3, 10}) {
        CAPTURE(type);
        const Object control = controls.call(names::Add, type);
        CHECK(control.get(names::Type) == type);
        CHECK(control.get(names::Id) == 1);
        CHECK(control.get(names::Index) == ++place);
        CHECK(control.get(built_in) == false);
        CHECK(kind_of(control.get(names::Parent)) == "CommandBar");
        CHECK(kind_of(control.get(names::Application)) == "Application");
        for (const Row& row :
             {Row{names::Caption, u"", u"Do &it"}, Row{names::Tag, u"", u"Mine"}, Row{parameter, u"", u"more"},
              Row{names::OnAction, u"", u"UTBoo"}, Row{names::ToolTipText, u"Do it", u"a tip"},
              Row{enabled, true, false}, Row{names::Visible, true, false}, Row{names::BeginGroup, false, true}}) {
            CAPTURE(utf8(row.member.text()));
            CHECK(control.get(row.member) == row.start);
            control.put(row.member, row.other);
            CHECK(control.get(row.member) == row.other);
        }
        control.put(names::Width, 120);
        CHECK(control.get(names::Width) == 120);
        control.put(names::Visible, true);
    }
    CHECK(controls.get(names::Count) == 3);
    const std::vector<Object> held{bar,
                                   controls,
                                   controls.get(names::Item, 1),
                                   controls.get(names::Item, 2),
                                   controls.get(names::Item, 3),
                                   controls.get(names::Item, 3).get(names::Controls)};
    controls.get(names::Item, 2).call(names::Delete);
    CHECK(text_of(answers_of({held[3]})) == "CommandBarComboBox.Application; ");
    CHECK(controls.get(names::Count) == 2);
    bar.call(names::Delete);
    // What leads elsewhere still answers; all that is of the bar itself is gone.
    CHECK(text_of(answers_of(held)) ==
          "CommandBar.Application; CommandBar.Controls; CommandBar.Parent; CommandBarButton.Application; "
          "CommandBarComboBox.Application; CommandBarControls.Application; CommandBarControls.Parent; "
          "CommandBarPopup.Application; ");
    let_office_work();
}

TEST_CASE("a recent file that was taken out of the list is gone") {
    const Calc calc;
    for (const char* file : {"first.ods", "second.ods"}) {
        calc.reopened(calc.add_book(), file).call(names::Close, false);
    }
    const Object files = calc.application.get(names::RecentFiles);
    const Object file = files.get(names::Item, 1);
    CHECK(kind_of(file.get(names::Application)) == "Application");
    CHECK(kind_of(file.get(names::Parent)) == "RecentFiles");
    file.call(names::Delete);
    CHECK(error_of([&] { file.get(names::Index); }) == 1004);
    CHECK(error_of([&] { file.call(names::Delete); }) == 1004);
}

}  // namespace qor::calc::tests
