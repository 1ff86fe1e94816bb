#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/sheet/ConditionOperator.hpp>
#include <com/sun/star/sheet/XSheetConditionalEntries.hpp>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/adapter/ground/range_areas.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

std::u16string decimal(std::size_t number) {
    return from_utf8(std::to_string(number));
}

// =A1*2, =A2*2 and so on.
Array doubling(std::size_t rows) {
    Array formulas = Array::table(rows, 1);
    for (std::size_t row = 0; row < rows; ++row) formulas.at(row) = u"=A" + decimal(row + 1) + u"*2";
    return formulas;
}

Sheet first_sheet_of_newest_book() {
    const auto host = std::make_shared<Host>(office_context());
    return Book{host, host->documents().back()}.sheets().front();
}

Variant formula_in(const Object& sheet, std::u16string_view address) {
    return sheet.get(names::Range, address).get(names::Formula);
}

}  // namespace

TEST_CASE("an array of formulas goes into its cells") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    Array mixed = Array::table(40, 3);
    for (std::size_t row = 0; row < 40; ++row) {
        const std::u16string number = decimal(row + 1);
        mixed.at(row, 0) = u"=A" + number + u"+$A$1";                                 // filled down
        mixed.at(row, 1) = row % 2 ? Variant(u"=\"n\"&" + number) : Variant(1.0);     // every second cell
        mixed.at(row, 2) = row < 20 ? u"=SUM(A$1:A" + number + u")" : u"=" + number;  // filled, then one by one
    }
    sheet.get(names::Range, u"A1:A40").put(names::Value, 3.0);
    const Object range = sheet.get(names::Range, u"C1:E40");
    range.put(names::Formula, mixed);
    for (std::size_t row = 0; row < 40; ++row) {
        const std::u16string number = decimal(row + 1);
        CHECK(formula_in(sheet, u"C" + number) == u"=A" + number + u"+$A$1");
        CHECK(formula_in(sheet, u"D" + number) == (row % 2 ? u"=\"n\"&" + number : u"1"));
        CHECK(formula_in(sheet, u"E" + number) == (row < 20 ? u"=SUM(A$1:A" + number + u")" : u"=" + number));
    }
    CHECK(sheet.get(names::Range, u"C40").get(names::Value) == 6.0);
    CHECK(sheet.get(names::Range, u"D40").get(names::Value) == u"n40");
    CHECK(sheet.get(names::Range, u"E20").get(names::Value) == 60.0);
    CHECK(sheet.get(names::Range, u"E40").get(names::Value) == 40.0);
}

TEST_CASE("a row and a block of formulas take few calls") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    Array block = Array::table(8, 200);
    for (std::size_t place = 0; place < block.size(); ++place) block.at(place) = u"=" + decimal(place) + u"+1";
    const Object range = sheet.get(names::Range, u"A1:GR8");
    const std::uint64_t before = host_calls;
    range.put(names::Formula, block);
    CHECK(host_calls - before < 60);
    CHECK(sheet.get(names::Range, u"GR8").get(names::Value) == 1600.0);
    CHECK(formula_in(sheet, u"B1") == u"=1+1");
}

TEST_CASE("formulas down a column take few calls") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object range = sheet.get(names::Range, u"B1:B5000");
    const std::uint64_t before = host_calls;
    range.put(names::Formula, doubling(5000));
    CHECK(host_calls - before < 80);
    CHECK(formula_in(sheet, u"B5000") == u"=A5000*2");
    CHECK(formula_in(sheet, u"B1") == u"=A1*2");
}

TEST_CASE("cells keep their looks when one formula is written over them") {
    for (const bool as_array : {false, true}) {
        CAPTURE(as_array);
        const Calc calc;
        const Object sheet = calc.add_sheet();
        const auto range = [&](const char16_t* address) { return sheet.get(names::Range, address); };
        range(u"B1").get(names::Interior).put(names::Color, 255);
        range(u"B1").get(names::Font).put(names::Italic, true);
        range(u"B3:B5").get(names::Font).put(names::Bold, true);
        range(u"B7").get(names::Interior).put(names::Color, 65280);
        range(u"B9").put(names::NumberFormat, u"0.00");
        range(u"B11").put(names::WrapText, true);
        range(u"B11").put(names::HorizontalAlignment, -4108);
        range(u"B13").put(names::Locked, false);
        const Sheet uno = first_sheet_of_newest_book();
        set_property(cells_at(uno, {1, 14, 1, 14}), "CellStyle", rtl::OUString("Good"));
        if (as_array) {
            range(u"B1:B40").put(names::Formula, doubling(40));
        } else {
            range(u"B1:B40").put(names::Formula, u"=A1*2");
        }
        CHECK(range(u"B1").get(names::Interior).get(names::Color) == 255);
        CHECK(range(u"B1").get(names::Font).get(names::Italic) == true);
        CHECK(range(u"B2").get(names::Interior).get(names::Color) == 16777215);
        CHECK(range(u"B2").get(names::Font).get(names::Italic) == false);
        CHECK(range(u"B4").get(names::Font).get(names::Bold) == true);
        CHECK(range(u"B4").get(names::Font).get(names::Italic) == false);
        CHECK(range(u"B7").get(names::Interior).get(names::Color) == 65280);
        CHECK(range(u"B9").get(names::NumberFormat) == u"0.00");
        CHECK(range(u"B10").get(names::NumberFormat) == u"General");
        CHECK(range(u"B11").get(names::WrapText) == true);
        CHECK(range(u"B11").get(names::HorizontalAlignment) == -4108);
        CHECK(range(u"B13").get(names::Locked) == false);
        CHECK(range(u"B14").get(names::Locked) == true);
        CHECK(get_property<rtl::OUString>(cells_at(uno, {1, 14, 1, 14}), "CellStyle") == "Good");
        CHECK(get_property<rtl::OUString>(cells_at(uno, {1, 15, 1, 15}), "CellStyle") == "Default");
        CHECK(range(u"B15").get(names::Interior).get(names::Color) == 13434828);  // the style's own
        CHECK(formula_in(sheet, u"B15") == u"=A15*2");
        CHECK(formula_in(sheet, u"B40") == u"=A40*2");
    }
}

TEST_CASE("conditional formats stay where they are when one formula is written over them") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Sheet uno = first_sheet_of_newest_book();
    const Cells third = cells_at(uno, {1, 2, 1, 2});
    const auto entries =
        get_property<css::uno::Reference<css::sheet::XSheetConditionalEntries>>(third, "ConditionalFormat");
    entries->addNew(
        sequence_of({named_value("Operator", css::sheet::ConditionOperator_GREATER),
                     named_value("Formula1", rtl::OUString("5")), named_value("StyleName", rtl::OUString("Bad"))}));
    set_property(third, "ConditionalFormat", entries);
    sheet.get(names::Range, u"B1:B30").put(names::Formula, u"=A1*2");
    const auto count_at = [&](std::int32_t row) {
        return get_property<css::uno::Reference<css::container::XIndexAccess>>(cells_at(uno, {1, row, 1, row}),
                                                                               "ConditionalFormat")
            ->getCount();
    };
    CHECK(count_at(2) == 1);
    CHECK(count_at(1) == 0);
    CHECK(count_at(3) == 0);
    CHECK(formula_in(sheet, u"B30") == u"=A30*2");
}

TEST_CASE("a refused array changes nothing") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const auto range = [&](const char16_t* address) { return sheet.get(names::Range, address); };
    range(u"A1").put(names::Value, 1.5);
    range(u"A2").put(names::Value, u"'05");
    range(u"A3").put(names::Value, Date{45000});
    range(u"A4").put(names::Value, true);
    range(u"A5").put(names::Formula, u"=A1*2");
    range(u"A6:A7").put(names::FormulaArray, u"=A1:A2&\"x\"");
    range(u"A8").put(names::Formula, u"=1/0");
    range(u"A10:A60").put(names::Formula, u"=$A$1+ROW()");
    Array refused = Array::table(60, 2);
    for (std::size_t row = 0; row < 60; ++row) {
        refused.at(row, 0) = row % 3 ? Variant(u"=B1+1") : Variant(false);
        refused.at(row, 1) = u"12%";
    }
    refused.at(59, 0) = u"=1 2";
    CHECK(error_of([&] { range(u"A1:B60").put(names::Value, refused); }) == 1004);
    CHECK(range(u"A1").get(names::Value) == 1.5);
    CHECK(range(u"A2").get(names::Value) == u"05");
    CHECK(range(u"A3").get(names::Value) == Variant(Date{45000}));
    CHECK(range(u"A3").get(names::NumberFormat) == u"m/d/yyyy");
    CHECK(range(u"A4").get(names::Value) == true);
    CHECK(range(u"A5").get(names::Formula) == u"=A1*2");
    CHECK(range(u"A6:A7").get(names::FormulaArray) == u"=A1:A2&\"x\"");
    CHECK(range(u"A7").get(names::Value) == u"05x");
    CHECK(range(u"A8").get(names::Value) == Variant(ErrorValue{2007}));
    CHECK(range(u"A9").get(names::Value) == Variant(Empty{}));
    CHECK(range(u"A60").get(names::Formula) == u"=$A$1+ROW()");
    CHECK(range(u"A60").get(names::Value) == 61.5);
    CHECK(range(u"B1").get(names::Value) == Variant(Empty{}));
    CHECK(range(u"B1").get(names::NumberFormat) == u"General");
    CHECK(error_of([&] { range(u"A1:A5,C1:C2").put(names::Value, u"=1 2"); }) == 1004);
    CHECK(range(u"A1").get(names::Value) == 1.5);
    CHECK(range(u"C1").get(names::Value) == Variant(Empty{}));
}

TEST_CASE("an array of formulas is one step of undo") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"B2").put(names::Value, 7.0);
    const Sheet uno = first_sheet_of_newest_book();
    const css::uno::Reference<css::document::XUndoManagerSupplier> supplier(uno.book.document.reference(),
                                                                            css::uno::UNO_QUERY_THROW);
    sheet.get(names::Range, u"B1:B50").put(names::Formula, doubling(50));
    supplier->getUndoManager()->undo();
    CHECK(formula_in(sheet, u"B1") == u"");
    CHECK(sheet.get(names::Range, u"B2").get(names::Value) == 7.0);
    CHECK(formula_in(sheet, u"B50") == u"");
    supplier->getUndoManager()->redo();
    CHECK(formula_in(sheet, u"B50") == u"=A50*2");
    CHECK(formula_in(sheet, u"B2") == u"=A2*2");
}

}  // namespace qor::calc::tests
