#include "platform/text.hpp"
#include "screens/script/script_error.hpp"
#include "tests/calc/support/sheet_names.hpp"
#include "tests/calc/support/tool_run.hpp"
#include "tests/calc/support/whole_document.hpp"
#include "tests/support/failing_host_calls.hpp"
#include "tests/support/failing_object.hpp"

namespace qor::calc::tests {
namespace {

using nlohmann::json;

struct Batch {
    const char16_t* tool;
    json actions;  // between the checks and OK
};

const std::vector<Batch>& batches() {
    static const std::vector<Batch> all{
        {u"UTAddWor", {{{"set", "ctlSpinner1"}, {"to", "2"}}}},
        {u"UTDelEmpWor", json::array()},
        {u"UTSorWor", json::array()},
        {u"UTSpeCheAll", json::array()},
    };
    return all;
}

json script_of(const Batch& batch) {
    json actions = {{{"check", "ctlTreeView"}, {"node", "ROOT"}}};
    for (const json& action : batch.actions) actions.push_back(action);
    actions.push_back({{"press", "cmdButton(0)"}});
    return {{"forms", json::array({actions})}};
}

// A workbook with a number, a sheet with a blank and an empty sheet, on which one batch fails again and again.
class Trial : public ToolRun {
  public:
    explicit Trial(const Batch& batch) : batch_(batch), book_(add_book()) {
        give_sheets(book_, {u"c", u"b", u"a"});
        sheet_c().put(names::Value, 12.0);
        book_.get(names::Worksheets, u"b").get(names::Range, u"A1").put(names::Value, u" ");
        document_.emplace();
    }

    void run(const Object& host) {
        attempt([&] {
            try {
                call(batch_.tool, script_of(batch_), host);
            } catch (const ScriptError&) {
                // The dialog had less to press than the script wants.
            }
        });
    }

    // One undo brings back what was there; the host is usable, and what was entered stands.
    void check() {
        CHECK(application.get(names::ScreenUpdating) == true);
        CHECK(application.get(names::DisplayAlerts) == true);
        CHECK(application.get(names::Workbooks).get(names::Count) == 1);
        CHECK(undo_titles().size() <= 1);
        if (!undo_titles().empty()) undo();
        document_->check();
        sheet_c().put(names::Value, 13.0);
        CHECK(sheet_c().get(names::Value) == 13.0);
        undo();
    }
    void check_at_end() const { document_->check_now(); }

  private:
    Object sheet_c() const { return book_.get(names::Worksheets, u"c").get(names::Range, u"A1"); }

    const Batch& batch_;
    Object book_;
    std::optional<UnchangedDocument> document_;
};

}  // namespace

TEST_CASE("whatever access of a batch fails, one undo brings the workbook back and the host is usable again") {
    for (const Batch& batch : batches()) {
        CAPTURE(to_utf8(batch.tool));
        Trial trial(batch);
        const auto prepare = [&] {
            clear_undo();
            return trial.application;
        };
        const std::uint64_t failures = support::fail_each_access(
            prepare, [&](const Object& host) { trial.run(host); }, [&](std::int32_t) { trial.check(); });
        trial.check_at_end();
        CHECK(failures > 20);
    }
}

TEST_CASE("whatever call of a batch the office refuses, one undo brings the workbook back") {
    for (const Batch& batch : batches()) {
        CAPTURE(to_utf8(batch.tool));
        Trial trial(batch);
        const std::uint64_t failures = support::fail_each_host_call(
            clear_undo, [&] { trial.run(trial.application); }, [&](std::int32_t) { trial.check(); });
        trial.check_at_end();
        CHECK(failures > 50);
    }
}

TEST_CASE("each batch is one step of undo with the tool's name, and undo and redo give the whole document") {
    const std::vector<std::string> titles{"Add Worksheets", "Delete Empty Worksheets", "Sort Worksheets"};
    for (std::size_t place = 0; place < titles.size(); ++place) {
        CAPTURE(titles[place]);
        Trial trial(batches()[place]);
        const std::string before = whole_document();
        clear_undo();
        trial.run(trial.application);
        CHECK(undo_titles() == std::vector{titles[place]});
        const std::string after = whole_document();
        CHECK((after != before));
        undo();
        CHECK((whole_document() == before));
        redo();
        CHECK((whole_document() == after));
    }
}

}  // namespace qor::calc::tests
