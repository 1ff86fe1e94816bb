#include <com/sun/star/document/UndoContextNotClosedException.hpp>
#include <com/sun/star/document/XActionLockable.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/support/failing_host_calls.hpp"

// The office refuses one call after the other of what a member does. Whatever call it is, the member raises an error or
// does without, and nothing stays locked, open or half done.
namespace qor::calc::tests {
namespace {

using css::uno::UNO_QUERY_THROW;
using UndoManager = css::uno::Reference<css::document::XUndoManager>;

css::uno::Reference<css::frame::XModel> newest_document() {
    return {Host(office_context()).documents().back().reference(), UNO_QUERY_THROW};
}

bool has_open_undo_context(const UndoManager& manager) {
    manager->enterUndoContext("Probe");
    manager->leaveUndoContext();
    try {
        manager->clear();  // refuses while a context is open
    } catch (const css::document::UndoContextNotClosedException&) {
        return true;
    }
    return false;
}

void check_free(const css::uno::Reference<css::frame::XModel>& document) {
    CHECK_FALSE(document->hasControllersLocked());
    const css::uno::Reference<css::document::XActionLockable> actions(document, UNO_QUERY_THROW);
    CHECK_FALSE(actions->isActionLocked());
    const UndoManager manager =
        css::uno::Reference<css::document::XUndoManagerSupplier>(document, UNO_QUERY_THROW)->getUndoManager();
    CHECK_FALSE(manager->isLocked());
    CHECK_FALSE(has_open_undo_context(manager));
}

// One workbook for all failures of one member.
class Trial {
  public:
    Trial() : book(calc.add_book()), sheet(book.get(names::Worksheets, 1)), document_(newest_document()) {}

    Object range(std::u16string_view address) const { return sheet.get(names::Range, address); }

    // Fails each call of the work and sees that the workbook can be worked on then.
    template <class Work, class Check>
    void run(Work work, Check check) {
        const auto check_all = [&](std::int32_t error) {
            CAPTURE(error);
            check_free(document_);
            check(error);
            next_command_works();
        };
        support::fail_each_host_call([] {}, work, check_all);
    }
    template <class Work>
    void run(Work work) {
        run(work, [](std::int32_t) {});
    }

    // That, where the member promises to do all or nothing: the cells read as before or as after.
    template <class Prepare, class Work, class Read>
    void run_all_or_nothing(Prepare prepare, Work work, Read read) {
        prepare();
        const auto before = read();
        work();
        const auto after = read();
        REQUIRE_FALSE(before == after);
        support::fail_each_host_call(prepare, work, [&](std::int32_t error) {
            CAPTURE(error);
            check_free(document_);
            if (error == 0) {
                CHECK(read() == after);
            } else {
                CHECK(read() == before);
            }
            next_command_works();
        });
    }

    const Calc calc;
    Object book;
    Object sheet;

  private:
    void next_command_works() {
        const Object cell = range(u"Z99");
        cell.put(names::Value, ++next_);
        CHECK(cell.get(names::Value) == next_);
    }

    css::uno::Reference<css::frame::XModel> document_;
    double next_ = 0;
};

Array texts(std::initializer_list<Variant> values, std::size_t columns) {
    Array table = Array::table(values.size() / columns, columns);
    std::size_t place = 0;
    for (const Variant& value : values) table.at(place++) = value;
    return table;
}

}  // namespace

TEST_CASE("a read that fails leaves nothing behind") {
    Trial trial;
    trial.range(u"A1:A4").put(names::Value, texts({1.5, Date{45000}, true, u"x"}, 1));
    trial.range(u"A5").put(names::Formula, u"=1/0");
    trial.range(u"B2").get(names::Font).put(names::Bold, true);
    for (const MemberName& member :
         {names::Value, names::Value2, names::Formula, names::FormulaArray, names::HasFormula, names::HasArray,
          names::NumberFormat, names::Text, names::Address, names::Count, names::ColumnWidth, names::RowHeight,
          names::Locked, names::MergeCells, names::HorizontalAlignment}) {
        CAPTURE(std::string(member.text().begin(), member.text().end()));
        trial.run([&] { trial.range(u"A1:B5").get(member); });
    }
    trial.run([&] { trial.range(u"A1:B5").get(names::Interior).get(names::Color); });
    trial.run([&] { trial.range(u"A1:B5").get(names::Font).get(names::Bold); });
    trial.run([&] { trial.sheet.get(names::UsedRange).get(names::Address); });
    trial.run([&] { trial.book.get(names::Worksheets).object().items(); });
    trial.run([&] { trial.calc.application.get(names::Selection).get(names::Address); });
    trial.run([&] { trial.calc.application.get(names::WorksheetFunction).call(names::Max, trial.range(u"A1:A4")); });
}

TEST_CASE("an array write that fails writes nothing") {
    Trial trial;
    const auto everything = [&] { return trial.range(u"A1:C40").get(names::Value); };
    const auto prepare = [&] {
        trial.range(u"A1:C40").call(MemberName(u"ClearContents"));
        trial.range(u"A1:C40").put(names::NumberFormat, u"General");
        trial.range(u"A1:B1").put(names::Value, texts({7.0, true}, 2));
        trial.range(u"A2").put(names::Formula, u"=A1*2");
        trial.range(u"A3:A4").put(names::FormulaArray, u"=A1:A2+1");
        trial.range(u"C1:C40").put(names::Formula, u"=ROW()");
    };
    trial.run_all_or_nothing(
        prepare,
        [&] {
            trial.range(u"A5:B6").put(names::Value, texts({1.0, u"a", 2.0, u"b"}, 2));
        },
        everything);
    trial.run_all_or_nothing(
        prepare,
        [&] {
            trial.range(u"A1:B4").put(
                names::Value,
                texts({Date{45000}, false, u"=B1", u"12%", Currency{125000}, u"text", ErrorValue{2042}, Empty{}}, 2));
        },
        everything);
    trial.run_all_or_nothing(
        prepare, [&] { trial.range(u"A1,B2:B3,C40").put(names::Value, 5.0); }, everything);
    trial.run_all_or_nothing(
        prepare, [&] { trial.range(u"A1").put(names::Value, 8.0); }, everything);
    trial.run_all_or_nothing(
        prepare, [&] { trial.range(u"A1").put(names::Value, u"1/2/2024"); }, everything);
}

TEST_CASE("a formula write that fails writes nothing and keeps the looks") {
    Trial trial;
    const auto everything = [&] {
        std::vector<Variant> all{trial.range(u"B1:B40").get(names::Formula)};
        for (const char16_t* address : {u"B1", u"B2", u"B3", u"B20"}) {
            all.push_back(trial.range(address).get(names::Font).get(names::Bold));
            all.push_back(trial.range(address).get(names::Interior).get(names::Color));
            all.push_back(trial.range(address).get(names::NumberFormat));
        }
        return all;
    };
    const auto prepare = [&] {
        trial.range(u"B1:B40").call(MemberName(u"ClearContents"));
        trial.range(u"B1:B40").get(names::Font).put(names::Bold, false);
        trial.range(u"B1:B40").get(names::Interior).put(names::Color, 0xFFFFFF);
        trial.range(u"B1:B40").put(names::NumberFormat, u"General");
        trial.range(u"B1").get(names::Interior).put(names::Color, 255);
        trial.range(u"B3").get(names::Font).put(names::Bold, true);
        trial.range(u"B20").put(names::NumberFormat, u"0.00");
        trial.range(u"B2").put(names::Value, u"here before");
    };
    trial.run_all_or_nothing(
        prepare, [&] { trial.range(u"B2").put(names::Formula, u"=1+1"); }, everything);
    trial.run_all_or_nothing(
        prepare, [&] { trial.range(u"B1:B40").put(names::Formula, u"=A1*2"); }, everything);
    trial.run_all_or_nothing(
        prepare, [&] { trial.range(u"B1:B2").put(names::FormulaArray, u"={1;2}"); }, everything);
}

TEST_CASE("clearing that fails clears nothing") {
    Trial trial;
    trial.run_all_or_nothing([&] { trial.range(u"A1:B2").put(names::Value, 1.0); },
                             [&] { trial.range(u"A1:B2").call(MemberName(u"ClearContents")); },
                             [&] { return trial.range(u"A1:B2").get(names::Value); });
}

TEST_CASE("a format that fails leaves nothing behind") {
    Trial trial;
    const Object range = trial.range(u"A1:B2,D4");
    trial.run([&] { range.get(names::Font).put(names::Bold, true); });
    trial.run([&] { range.get(names::Font).put(names::Color, 255); });
    trial.run([&] { range.get(names::Interior).put(names::ColorIndex, 6); });
    trial.run([&] { range.get(names::Borders).put(names::LineStyle, 1); });
    trial.run([&] { range.put(names::NumberFormat, u"0.0"); });
    trial.run([&] { range.put(names::HorizontalAlignment, -4108); });
    trial.run([&] { range.put(names::WrapText, true); });
    trial.run([&] { range.put(names::Locked, false); });
    trial.run([&] { trial.range(u"A1").put(names::ColumnWidth, 12.0); });
    trial.run([&] { trial.range(u"A1").put(names::RowHeight, 20.0); });
}

TEST_CASE("a change of sheets that fails leaves nothing behind") {
    Trial trial;
    const Object sheets = trial.book.get(names::Worksheets);
    trial.run([&] { sheets.call(names::Add, named(names::After, trial.sheet)); });
    trial.run([&] { trial.sheet.put(names::Name, u"Renamed"); });
    trial.run([&] {
        trial.sheet.put(names::Visible, 0);
        trial.sheet.put(names::Visible, -1);
    });
    trial.run([&] { sheets.get(names::Item, 2).call(names::Delete); });
    trial.sheet.put(names::Visible, -1);
    trial.run([&] { sheets.get(names::Item, 1).call(names::Select); });
    trial.run([&] { trial.sheet.call(names::Activate); });
    trial.run([&] { trial.range(u"B2:C3").call(names::Select); });
    CHECK(trial.sheet.get(names::Name) == u"Renamed");
}

TEST_CASE("protection that fails can be given and taken again") {
    Trial trial;
    trial.run(
        [&] {
            trial.sheet.call(names::Protect, u"secret");
            trial.sheet.call(names::Unprotect, u"secret");
        },
        [&](std::int32_t) {
            if (trial.sheet.get(names::ProtectContents) == true) trial.sheet.call(names::Unprotect, u"secret");
            CHECK(trial.sheet.get(names::ProtectContents) == false);
        });
}

TEST_CASE("a workbook that cannot be saved, opened or made leaves nothing behind") {
    Trial trial;
    trial.range(u"A1").put(names::Value, 42.0);
    const std::filesystem::path path = trial.calc.folder() / "failures.ods";
    const std::u16string name = path.u16string();
    trial.run([&] { trial.book.call(names::SaveAs, name); });
    trial.run([&] { trial.book.call(names::Save); });
    trial.book.call(names::Save);
    const Object books = trial.calc.application.get(names::Workbooks);
    const auto close_others = [&] {
        for (const Variant& one : books.items()) {
            if (!one.object().is(trial.book)) one.call(names::Close, false);
        }
        CHECK(books.get(names::Count) == 1);
    };
    trial.run([&] { books.call(names::Add); }, [&](std::int32_t) { close_others(); });
    const std::filesystem::path other = trial.calc.folder() / "other.ods";
    std::filesystem::copy_file(path, other);
    trial.run([&] { books.call(names::Open, other.u16string()); }, [&](std::int32_t) { close_others(); });
    trial.run([&] { books.call(names::Add).call(names::Close, false); }, [&](std::int32_t) { close_others(); });
    CHECK(trial.range(u"A1").get(names::Value) == 42.0);
}

TEST_CASE("windows that fail leave nothing behind") {
    Trial trial;
    const Object window = trial.book.get(names::Windows, 1);
    for (const MemberName& member :
         {names::Caption, names::Index, names::SelectedSheets, names::ActiveSheet, names::ActiveCell, names::Visible}) {
        trial.run([&] { window.get(member); });
    }
    trial.run([&] { window.call(names::Activate); });
    trial.run(
        [&] {
            window.put(names::Visible, false);
            window.put(names::Visible, true);
        },
        [&](std::int32_t) { window.put(names::Visible, true); });
}

TEST_CASE("a screen that stands still moves again, whatever call fails") {
    Trial trial;
    const Object application = trial.calc.application;
    trial.calc.add_book();
    const auto other_document = newest_document();
    const auto all_free = [&](std::int32_t) {
        CHECK(application.get(names::ScreenUpdating) == true);
        check_free(other_document);
    };
    // Its caller asks for the screen again, whatever has failed before, as every tool does.
    trial.run(
        [&] {
            const std::int32_t error = attempt([&] {
                application.put(names::ScreenUpdating, false);
                trial.range(u"A1").put(names::Value, 1.0);
            });
            application.put(names::ScreenUpdating, true);
            if (error != 0) throw Error(ErrorNumber::host_refused);
        },
        all_free);
}

TEST_CASE("a step of undo ends, whatever call in it fails") {
    Trial trial;
    const Object other = trial.calc.add_sheet();
    const auto other_document = newest_document();
    trial.run(
        [&] {
            const UndoStep step(u"Failing");
            trial.range(u"A1:A2").put(names::Value, 1.0);
            other.get(names::Range, u"A1").put(names::Formula, u"=1+1");
            trial.range(u"A1").get(names::Font).put(names::Bold, true);
        },
        [&](std::int32_t) { check_free(other_document); });
}

}  // namespace qor::calc::tests
