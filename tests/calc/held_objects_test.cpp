#include <com/sun/star/awt/Rectangle.hpp>
#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/sheet/ConditionOperator.hpp>
#include <com/sun/star/sheet/XSheetConditionalEntries.hpp>
#include <com/sun/star/table/XTableCharts.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <set>

#include "hosts/calc/adapter/book.hpp"
#include "hosts/calc/adapter/object_model.hpp"
#include "hosts/calc/adapter/range_areas.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "platform/text.hpp"
#include "tests/calc/fixture.hpp"

// An object of every kind is held while what it belongs to goes away; then each of its members is asked for.
namespace qor::calc::tests {
namespace {

using Lines = std::set<std::string>;

void add_chart(const Sheet& sheet) {
    const Ref charts{Ref<css::table::XTableChartsSupplier>(sheet.sheet)->getCharts()};
    const css::table::CellRangeAddress data{static_cast<sal_Int16>(sheet.index()), 0, 0, 1, 2};
    charts->addNewByName("Income", css::awt::Rectangle(8000, 0, 8000, 6000), sequence_of({data}), true, true);
}

void add_condition(const Sheet& sheet) {
    const Cells cells = cells_at(sheet, {0, 0, 0, 0});
    const auto entries =
        get_property<css::uno::Reference<css::sheet::XSheetConditionalEntries>>(cells, "ConditionalFormat");
    entries->addNew(
        sequence_of({named_value("Operator", css::sheet::ConditionOperator_GREATER),
                     named_value("Formula1", rtl::OUString("5")), named_value("StyleName", rtl::OUString("Good"))}));
    set_property(cells, "ConditionalFormat", entries);
}

// A workbook with two sheets; on the first one lies something of every kind.
Object full_book(const Calc& calc) {
    Object book = calc.open(std::filesystem::path(QOR_TEST_FILES) / "objects.ods");
    const Object sheet = book.get(names::Worksheets, 1);
    sheet.put(names::Name, u"First");
    book.get(names::Worksheets).call(names::Add, named(names::After, sheet));
    sheet.get(names::Range, u"A1:B3").put(names::Formula, u"=ROW()");
    sheet.get(names::Range, u"A1").call(MemberName(u"AddComment"), u"note");
    book.get(names::Names).call(names::Add, u"First!Local", u"=First!$A$1");
    book.get(names::CustomDocumentProperties).call(names::Add, u"Kind", false, 4, u"whole");
    const auto host = std::make_shared<Host>(office_context());
    const Sheet raw = Book{host, host->documents().back()}.sheets().front();
    add_chart(raw);
    add_condition(raw);
    return book;
}

std::vector<Object> objects_of_sheet(const Object& sheet) {
    const Object range = sheet.get(names::Range, u"A1:B2,D4");
    const Object cell = sheet.get(names::Range, u"A1");
    const Object charts = sheet.get(names::ChartObjects);
    const Object frame = charts.get(names::Item, 1);
    const Object series = frame.get(names::Chart).get(names::SeriesCollection);
    const Object comments = sheet.get(names::Comments);
    const Object conditions = cell.get(names::FormatConditions);
    const Object embedded = sheet.get(names::OLEObjects);
    return {sheet,
            range,
            range.get(names::Areas),
            range.get(names::Font),
            range.get(names::Interior),
            range.get(names::Borders),
            charts,
            frame,
            frame.get(names::Chart),
            series,
            series.get(names::Item, 1),
            comments,
            comments.get(names::Item, 1),
            conditions,
            conditions.get(names::Item, 1),
            embedded,
            embedded.get(names::Item, 1),
            sheet.get(names::Shapes),
            sheet.get(names::Hyperlinks),
            sheet.get(names::Parent).get(names::Names, u"First!Local")};
}

std::vector<Object> objects_of_book(const Object& book) {
    std::vector<Object> objects = objects_of_sheet(book.get(names::Worksheets, 1));
    const Object properties = book.get(names::CustomDocumentProperties);
    for (const Variant& one :
         {Variant(book), book.get(names::Worksheets), book.get(names::Windows), book.get(names::Windows, 1),
          book.get(names::Names), Variant(properties), properties.get(names::Item, 1)}) {
        objects.push_back(one.object());
    }
    return objects;
}

const ObjectDescription& description_of(const Object& object) {
    return *std::ranges::find(object_model(), object.target()->type_name(), &ObjectDescription::name);
}

// What answers without an error, such as "Range.Parent".
Lines answers_of(const std::vector<Object>& objects) {
    Lines answers;
    for (const Object& object : objects) {
        for (const MemberDescription& member : description_of(object).members()) {
            const MemberName name(member.name);
            const std::string line = to_utf8(object.target()->type_name()) + "." + to_utf8(member.name);
            if (error_of([&] { object.get(name); }) == 0) answers.insert(line);
            if (error_of([&] { object.call(name); }) == 0) answers.insert(line);
            if (member.writable && error_of([&] { object.put(name, 1); }) == 0) answers.insert(line + " =");
        }
        if (error_of([&] { object.items(); }) == 0) answers.insert(to_utf8(object.target()->type_name()) + " each");
    }
    return answers;
}

std::string text_of(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "; ";
    return text;
}

}  // namespace

TEST_CASE("what is held of a sheet that is deleted raises an error, whatever it is asked") {
    const Calc calc;
    const Object book = full_book(calc);
    const Object sheet = book.get(names::Worksheets, 1);
    const std::vector<Object> objects = objects_of_sheet(sheet);
    calc.application.put(names::DisplayAlerts, false);
    sheet.call(names::Delete);
    CHECK(text_of(answers_of(objects)) == "");
    CHECK(book.get(names::Worksheets).get(names::Count) == 1);
}

TEST_CASE("what is held of a workbook that is closed raises an error, whatever it is asked") {
    const Calc calc;
    const Object other = calc.add_sheet();
    const Object book = full_book(calc);
    const std::vector<Object> objects = objects_of_book(book);
    book.call(names::Close, false);
    CHECK(text_of(answers_of(objects)) == "");
    CHECK(other.get(names::UsedRange).get(names::Count) == 1);
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 1);
}

TEST_CASE("what is held of a workbook's second window raises an error once that is closed") {
    const Calc calc;
    const Object book = calc.add_book();
    const Ref<css::frame::XModel> model(Host(office_context()).documents().back());
    const css::uno::Reference<css::frame::XDispatchProvider> frame(
        Ref { model->getCurrentController() } -> getFrame(), css::uno::UNO_QUERY_THROW);
    Ref(css::frame::DispatchHelper::create(office_context()))->executeDispatch(frame, ".uno:NewWindow", {}, 0, {});
    REQUIRE(book.get(names::Windows).get(names::Count) == 2);
    const Object window = book.get(names::Windows, *book.get(names::Name).get_if<std::u16string>() + u":2");
    const auto host = std::make_shared<Host>(office_context());
    const Ref<css::util::XCloseable> second(Ref{Book{host, host->documents().back()}.controllers().back()->getFrame()});
    second->close(true);
    CHECK(text_of(answers_of({window})) == "");
    CHECK(book.get(names::Windows).get(names::Count) == 1);
}

TEST_CASE("an object of every kind that a workbook has is held in these tests") {
    const Calc calc;
    Lines kinds;
    for (const Object& object : objects_of_book(full_book(calc))) kinds.insert(to_utf8(object.target()->type_name()));
    Lines others;
    for (const ObjectDescription& object : object_model()) {
        if (!kinds.contains(to_utf8(object.name))) others.insert(to_utf8(object.name));
    }
    CHECK(text_of(others) ==
          "Application; CommandBar; CommandBarButton; CommandBarComboBox; CommandBarControls; CommandBarPopup; "
          "CommandBars; RecentFile; RecentFiles; ThisWorkbook; Workbooks; WorksheetFunction; ");
}

}  // namespace qor::calc::tests
