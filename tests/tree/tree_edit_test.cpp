#include "tests/support/failing_object.hpp"
#include "tests/tree/tree_host.hpp"

using namespace qor;
using namespace qor::tests;

namespace {

const std::u16string question =
    u"message Choose OK to confirm the deletion of worksheet named Loan.  Otherwise choose Cancel.";

}  // namespace

TEST_CASE_FIXTURE(TwoBooks, "a worksheet takes the text that is typed over it; its twin keeps the old one") {
    choose_on(u"plan.xls:1*Loan", u"Rename Worksheet");
    CHECK(tree.treQOR.edited() == &node(u"plan.xls:1*Loan"));
    tree.treQOR.end_label_edit(u"Credit");
    CHECK(done == Lines{u"Loan name Credit"});
    CHECK(node(u"plan.xls:1*Credit").text() == u"Credit");
    CHECK(tree.treQOR.find(u"plan.xls:1*Loan") == nullptr);
    CHECK(node(u"plan.xls:2*Loan").text() == u"Loan");
}

TEST_CASE_FIXTURE(TwoBooks, "an edit that the host refuses, or of a window, leaves everything as it was") {
    host_log.refuses = [](auto, std::u16string_view member, Access access) {
        return member == u"Name" && access == Access::put;
    };
    choose_on(u"plan.xls:1*Loan", u"Rename Worksheet");
    tree.treQOR.end_label_edit(u"a/b");
    CHECK(node(u"plan.xls:1*Loan").text() == u"Loan");
    tree.treQOR.select(&node(u"Book2"));
    tree.treQOR.start_label_edit();
    tree.treQOR.end_label_edit(u"Book3");
    CHECK(node(u"Book2").text() == u"Book2");
    CHECK(done.empty());
    CHECK(screen.log.empty());
}

TEST_CASE_FIXTURE(TwoBooks, "a worksheet is deleted after a question, and goes from every window of its workbook") {
    check(u"plan.xls:1*Loan");
    check(u"plan.xls:2*Loan");
    check_states.clear();
    choose_on(u"plan.xls:1*Loan", u"Delete Worksheet");
    CHECK(screen.log == Lines{question});
    CHECK(done == Lines{u"alerts off", u"Loan delete", u"alerts on"});
    CHECK(keys() == Lines{u"ROOT", u"plan.xls:1", u"plan.xls:1*Inputs", u"plan.xls:1*Ratios", u"plan.xls:2",
                          u"plan.xls:2*Inputs", u"plan.xls:2*Ratios", u"Book2", u"Book2*Notes", u"Book2*Draft"});
    CHECK(tree.CountCheckBoxes(1) + tree.CountCheckBoxes(2) + tree.CountCheckBoxes(3) == 0);
    CHECK(check_states == std::vector<bool>{true, false});  // the first deletion leaves the twin's check
    tree.treQOR.double_click();                             // the node under the pointer is gone
    CHECK(closing.empty());
}

TEST_CASE_FIXTURE(TwoBooks, "a deletion that is not confirmed changes nothing") {
    screen.answer = MessageAnswer::cancel;
    check(u"plan.xls:1*Loan");
    choose_on(u"plan.xls:1*Loan", u"Delete Worksheet");
    CHECK(screen.log == Lines{question});
    CHECK(done.empty());
    CHECK(tree.treQOR.count() == 12);
    CHECK(tree.CountCheckBoxes(3) == 1);
}

TEST_CASE_FIXTURE(TwoBooks, "the last worksheet of a window cannot be deleted") {
    choose_on(u"Book2*Draft", u"Delete Worksheet");
    screen.log.clear();
    done.clear();
    tree.treQOR.select(&node(u"Book2*Notes"));
    tree.treQOR.delete_selected();
    CHECK(screen.log == Lines{u"message Cannot delete since a workbook must have at least one worksheet."});
    CHECK(done.empty());
    CHECK(tree.treQOR.find(u"Book2*Notes") != nullptr);
}

TEST_CASE_FIXTURE(TwoBooks, "neither a window nor the root is deleted, without a word") {
    for (const auto* key : {u"ROOT", u"Book2"}) {
        tree.treQOR.select(&node(key));
        tree.treQOR.delete_selected();
    }
    CHECK(tree.treQOR.count() == 12);
    CHECK(screen.log.empty());
}

TEST_CASE_FIXTURE(TwoBooks, "whatever the host refuses of a deletion, the alerts are on again and the node is gone") {
    const auto select = [&] {
        begin_command();
        load();
        done.clear();
        tree.treQOR.select(&node(u"plan.xls:1*Loan"));
        return host;
    };
    const auto delete_it = [&](const Object& failing) {
        gExcel = failing;
        tree.treQOR.delete_selected();
    };
    support::fail_each_access(select, delete_it, [&](std::int32_t error) {
        CHECK(error == 0);
        CHECK((done.empty() || done.back() != u"alerts off"));
        CHECK(tree.treQOR.find(u"plan.xls:1*Loan") == nullptr);
        CHECK(tree.treQOR.find(u"plan.xls:2*Loan") == nullptr);
    });
}
