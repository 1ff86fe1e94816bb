#include <algorithm>
#include <thread>

#include "hosts/calc/events/event_source.hpp"
#include "hosts/calc/uno/running_command.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/calc/support/office_loop.hpp"

namespace qor::calc::tests {
namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;

// What was told, in order; a new list each time it is asked for.
class Told {
  public:
    HostEvents handlers() {
        HostEvents events;
        events.workbook_opened = line("opened");
        events.workbook_created = line("created");
        events.workbook_to_be_saved = line("to be saved");
        events.workbook_saved_as = line("saved as");
        events.workbook_closing = line("closing");
        events.selection_changed = [this](const SelectionPlace& place) {
            lines_.push_back(utf8(place.workbook) + " " + utf8(place.worksheet) + " " + utf8(place.address));
        };
        return events;
    }
    HostEvents::WorkbookHandler line(const char* event) {
        return [this, event](const std::u16string& name) { lines_.push_back(std::string(event) + " " + utf8(name)); };
    }
    Lines now() {
        let_office_work();
        return std::exchange(lines_, {});
    }

  private:
    Lines lines_;
};

std::u16string path_in(const Calc& calc, const char16_t* file) {
    return calc.folder().u16string() + u"/" + file;
}

}  // namespace

TEST_CASE("a workbook's life is told") {
    const Calc calc;
    Told told;
    const EventSource source(office_context(), told.handlers());
    const Object book = calc.add_book();
    const std::string first_name = utf8(book.get(names::Name));
    CHECK(told.now() == Lines{"created " + first_name});

    book.call(names::SaveAs, path_in(calc, u"life.ods"));
    CHECK(told.now() == Lines{"to be saved " + first_name, "saved as life.ods"});
    book.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 5);
    book.call(names::Save);
    CHECK(told.now() == Lines{"to be saved life.ods"});
    book.call(names::Close, false);
    CHECK(told.now() == Lines{"closing life.ods"});

    const Object again = calc.open(calc.folder() / "life.ods");
    CHECK(told.now() == Lines{"opened life.ods"});
    again.call(names::Close, false);
    CHECK(told.now() == Lines{"closing life.ods"});
}

TEST_CASE("what is about to happen is told while it can still be seen") {
    const Calc calc;
    std::u16string path_then;
    bool was_open = false;
    HostEvents events;
    events.workbook_to_be_saved = [&](const std::u16string& name) {
        path_then = *calc.application.get(names::Workbooks, name).get(names::Path).get_if<std::u16string>();
    };
    events.workbook_closing = [&](const std::u16string& name) { was_open = !name.empty(); };
    const EventSource source(office_context(), events);
    const Object book = calc.add_book();
    path_then = u"not told";
    book.call(names::SaveAs, path_in(calc, u"before.ods"));
    CHECK(path_then.empty());  // it had none yet
    book.call(names::Close, false);
    CHECK(was_open);
}

TEST_CASE("nothing is told while a command runs; what can wait is told afterwards, once") {
    const Calc calc;
    Told told;
    const EventSource source(office_context(), told.handlers());
    {
        const RunningCommand command;
        const Object gone = calc.add_book();
        gone.call(names::Close, false);
        const Object book = calc.add_book();
        book.call(names::SaveAs, path_in(calc, u"first.ods"));
        book.call(names::SaveAs, path_in(calc, u"second.ods"));
        { const RunningCommand inner; }
        CHECK(told.now().empty());
    }
    Lines lines = told.now();
    std::ranges::sort(lines);  // of a new workbook the office speaks when it is next free
    CHECK(lines == Lines{"created second.ods", "saved as second.ods"});
}

TEST_CASE("a handler is a command: nothing is told within it") {
    const Calc calc;
    int depth = 0;
    int deepest = 0;
    Lines lines;
    HostEvents events;
    events.workbook_created = [&](const std::u16string&) {
        deepest = std::max(deepest, ++depth);
        if (lines.size() < 2) {
            lines.emplace_back("created");
            calc.add_book();
        }
        let_office_work();
        --depth;
    };
    const EventSource source(office_context(), events);
    calc.add_book();
    let_office_work();
    let_office_work();
    CHECK(lines.size() == 2);
    CHECK(deepest == 1);
}

TEST_CASE("a handler's error keeps the others from nothing") {
    const Calc calc;
    Told told;
    HostEvents events = told.handlers();
    events.workbook_created = [](const std::u16string&) { throw Error(ErrorNumber::type_mismatch); };
    const EventSource source(office_context(), events);
    const Object book = calc.add_book();
    book.call(names::SaveAs, path_in(calc, u"error.ods"));
    CHECK(told.now().back() == "saved as error.ods");
}

TEST_CASE("a change of the selection is told once") {
    const Calc calc;
    Told told;
    const Object book = calc.add_book();
    book.get(names::Worksheets).call(names::Add);
    const Object first = book.get(names::Worksheets, 1);
    first.call(names::Activate);
    let_office_work();
    const std::string name = utf8(book.get(names::Name));
    const std::string sheet = utf8(first.get(names::Name));
    const EventSource source(office_context(), told.handlers());
    CHECK(told.now().empty());

    first.get(names::Range, u"B3").call(names::Select);
    CHECK(told.now() == Lines{name + " " + sheet + " $B$3"});
    first.get(names::Range, u"B3").call(names::Select);
    CHECK(told.now().empty());
    first.get(names::Range, u"C1:D4,F2").call(names::Select);
    CHECK(told.now() == Lines{name + " " + sheet + " $C$1:$D$4,$F$2"});
    first.get(names::Range, u"A1").call(names::Select);
    first.get(names::Range, u"A9").call(names::Select);
    CHECK(told.now() == Lines{name + " " + sheet + " $A$9"});
    {
        const RunningCommand command;
        first.get(names::Range, u"A1").call(names::Select);
        first.get(names::Range, u"A9").call(names::Select);
        let_office_work();
    }
    CHECK(told.now().empty());  // it is where it was

    const Object other = calc.add_book();
    told.now();
    other.get(names::Worksheets, 1).get(names::Range, u"A2").call(names::Select);
    CHECK(told.now() ==
          Lines{utf8(other.get(names::Name)) + " " + utf8(other.get(names::Worksheets, 1).get(names::Name)) + " $A$2"});
}

TEST_CASE("a timer repeats, changes and stops") {
    const Calc calc;
    const EventSource source(office_context(), {});
    int ticks = 0;
    const auto timer = source.make_timer([&] { ++ticks; });
    let_office_work(50ms);
    CHECK(ticks == 0);
    timer->set(20ms);
    CHECK(office_comes_to([&] { return ticks >= 3; }));

    ticks = 0;
    {
        const RunningCommand command;
        let_office_work(100ms);
        CHECK(ticks == 0);
        timer->set({});
        let_office_work(50ms);
    }
    let_office_work(50ms);
    CHECK(ticks == 1);  // those that fell due meanwhile
    let_office_work(100ms);
    CHECK(ticks == 1);

    timer->set(std::chrono::minutes(10));
    let_office_work(50ms);
    CHECK(ticks == 1);
    timer->set(10ms);
    CHECK(office_comes_to([&] { return ticks >= 2; }));
}

TEST_CASE("a source and a timer that are gone tell nothing") {
    const Calc calc;
    Told told;
    int ticks = 0;
    {
        const EventSource source(office_context(), told.handlers());
        const auto timer = source.make_timer([&] { ++ticks; });
        timer->set(1ms);
        std::this_thread::sleep_for(30ms);
        calc.add_book();  // still to be told, as the ticks are
    }
    calc.add_book();
    CHECK(told.now().empty());
    CHECK(ticks == 0);
}

}  // namespace qor::calc::tests
