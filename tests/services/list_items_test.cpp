#include "services/list_items.hpp"

#include <doctest/doctest.h>

#include "tests/fakes/fake_screen.hpp"

using namespace qor;

namespace {

class frmLists final : public Form {
  public:
    explicit frmLists(Screen& screen) : Form(u"frmLists", screen) {}
    std::u16string_view caption() const noexcept override { return u"Lists"; }

    ListBox lstLeft{*this, u"lstLeft", {{u"Name"}, {u"Range"}}, ListBox::Selecting::several_rows};
    ListBox lstRight{*this, u"lstRight", {{u"Name"}, {u"Range"}}, ListBox::Selecting::several_rows};
};

struct Lists {
    fakes::FakeScreen screen;
    frmLists form{screen};
};

using Texts = std::vector<std::u16string>;

Texts names_in(const ListBox& list) {
    Texts names;
    for (std::size_t row = 0; row < list.count(); ++row) names.push_back(list.text(row, 0) + list.text(row, 1));
    return names;
}

}  // namespace

TEST_CASE_FIXTURE(Lists, "selected entries move to the other list from the last to the first") {
    for (const auto* name : {u"a", u"b", u"c", u"d"}) form.lstLeft.add_row({name, u"1"});
    form.lstLeft.set_selected(0, true);
    form.lstLeft.set_selected(2, true);
    MoveSelectedItems(form.lstLeft, form.lstRight, MoveDirection::to_second);
    CHECK(names_in(form.lstLeft) == Texts{u"b1", u"d1"});
    CHECK(names_in(form.lstRight) == Texts{u"c1", u"a1"});
    CHECK(form.lstLeft.selection().empty());
    CHECK(form.lstRight.selection().empty());
    SelectAllItems(form.lstRight);
    CHECK(form.lstRight.selection().size() == 2);
    MoveSelectedItems(form.lstLeft, form.lstRight, MoveDirection::to_first);
    CHECK(names_in(form.lstLeft) == Texts{u"b1", u"d1", u"a1", u"c1"});
    CHECK(form.lstRight.count() == 0);
}
