#include "tests/calc/objects/every_object.hpp"

#include <algorithm>
#include <com/sun/star/awt/Rectangle.hpp>
#include <com/sun/star/sheet/ConditionOperator.hpp>
#include <com/sun/star/sheet/XSheetConditionalEntries.hpp>
#include <com/sun/star/table/XTableCharts.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>

#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/adapter/ground/range_areas.hpp"
#include "hosts/calc/adapter/objects/object_model.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "platform/text.hpp"

namespace qor::calc::tests {
namespace {

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

const ObjectDescription& description_of(const Object& object) {
    return *std::ranges::find(object_model(), object.target()->type_name(), &ObjectDescription::name);
}

}  // namespace

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

std::set<std::string> answers_of(const std::vector<Object>& objects) {
    std::set<std::string> answers;
    for (const Object& object : objects) {
        for (const MemberDescription& member : description_of(object).members()) {
            const MemberName name(member.name);
            const std::string line = kind_of(object) + "." + to_utf8(member.name);
            if (error_of([&] { object.get(name); }) == 0) answers.insert(line);
            if (error_of([&] { object.call(name); }) == 0) answers.insert(line);
            if (member.writable && error_of([&] { object.put(name, 1); }) == 0) answers.insert(line + " =");
        }
        if (error_of([&] { object.items(); }) == 0) answers.insert(kind_of(object) + " each");
    }
    return answers;
}

std::string text_of(const std::set<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "; ";
    return text;
}

std::string kind_of(const Object& object) {
    return to_utf8(object.target()->type_name());
}

}  // namespace qor::calc::tests
