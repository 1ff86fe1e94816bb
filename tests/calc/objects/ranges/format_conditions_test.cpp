#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/sheet/ConditionOperator.hpp>
#include <com/sun/star/sheet/XSheetConditionalEntries.hpp>
#include <com/sun/star/table/CellAddress.hpp>

#include "hosts/calc/adapter/ground/range_areas.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

using css::sheet::ConditionOperator;

// As the office's dialog would: formulas in Calc's notation, relative to the range's corner.
void add_condition(const Rectangle& place, ConditionOperator comparison, const char* first, const char* second) {
    const auto host = std::make_shared<Host>(office_context());
    const Sheet sheet = Book{host, host->documents().back()}.sheets().front();
    const Cells cells = cells_at(sheet, place);
    const Ref entries{
        get_property<css::uno::Reference<css::sheet::XSheetConditionalEntries>>(cells, "ConditionalFormat")};
    const css::table::CellAddress corner{0, place.left, place.top};
    entries->addNew(sequence_of(
        {named_value("Operator", comparison), named_value("Formula1", rtl::OUString::createFromAscii(first)),
         named_value("Formula2", rtl::OUString::createFromAscii(second)), named_value("SourcePosition", corner),
         named_value("StyleName", rtl::OUString("Good"))}));
    set_property(cells, "ConditionalFormat", entries.reference());
}

}  // namespace

TEST_CASE("conditional formats are read as the cell sees them") {
    for (const std::string file : {"", "conditions.ods", "conditions.xlsx", "conditions.xls"}) {
        CAPTURE(file);
        const Calc calc;
        Object book = calc.add_book();
        book.get(names::Worksheets).call(names::Add, named(names::After, book.get(names::Worksheets, 1)));
        constexpr Rectangle place{1, 1, 1, 9};  // B2:B10
        add_condition(place, css::sheet::ConditionOperator_BETWEEN, "10", "C2");
        add_condition(place, css::sheet::ConditionOperator_GREATER, "SUM($A$1:A1;3)", "");
        add_condition(place, css::sheet::ConditionOperator_FORMULA, "AND(B2>1;C$1=\"a;b\")", "");
        if (!file.empty()) book = calc.reopened(book, file.c_str());
        const Object sheet = book.get(names::Worksheets, 1);
        CHECK(sheet.get(names::Range, u"A1").get(names::FormatConditions).get(names::Count) == 0);
        const Object conditions = sheet.get(names::Range, u"B4").get(names::FormatConditions);
        REQUIRE(conditions.get(names::Count) == 3);
        const Object between = conditions.get(names::Item, 1);
        CHECK(between.get(names::Type) == 1);
        CHECK(between.get(names::Operator) == 1);
        CHECK(between.get(names::Formula1) == u"=10");
        CHECK(between.get(names::Formula2) == u"=C4");
        const Object greater = conditions.get(names::Item, 2);
        CHECK(greater.get(names::Operator) == 5);
        CHECK(greater.get(names::Formula1) == u"=SUM($A$1:A3,3)");
        CHECK(error_of([&] { greater.get(names::Formula2); }) == 1004);
        const Object expression = conditions.get(names::Item, 3);
        CHECK(expression.get(names::Type) == 2);
        CHECK(error_of([&] { expression.get(names::Operator); }) == 1004);
        CHECK(expression.get(names::Formula1) == u"=AND(B4>1,C$1=\"a;b\")");
        CHECK(error_of([&] { conditions.get(names::Item, 4); }) == 9);
        CHECK(conditions.items().size() == 3);
        sheet.call(names::Delete);
        CHECK(error_of([&] { conditions.get(names::Count); }) == 1004);
        CHECK(error_of([&] { between.get(names::Type); }) == 1004);
    }
}

TEST_CASE("every comparison has its number") {
    struct Row {
        ConditionOperator calc;
        std::int32_t excel;
    };
    for (const Row& row :
         {Row{css::sheet::ConditionOperator_BETWEEN, 1}, Row{css::sheet::ConditionOperator_NOT_BETWEEN, 2},
          Row{css::sheet::ConditionOperator_EQUAL, 3}, Row{css::sheet::ConditionOperator_NOT_EQUAL, 4},
          Row{css::sheet::ConditionOperator_GREATER, 5}, Row{css::sheet::ConditionOperator_LESS, 6},
          Row{css::sheet::ConditionOperator_GREATER_EQUAL, 7}, Row{css::sheet::ConditionOperator_LESS_EQUAL, 8}}) {
        const Calc calc;
        const Object sheet = calc.add_sheet();
        add_condition({0, 0, 0, 0}, row.calc, "1", "2");
        CHECK(sheet.get(names::Range, u"A1").get(names::FormatConditions, 1).get(names::Operator) == row.excel);
    }
}

}  // namespace qor::calc::tests
