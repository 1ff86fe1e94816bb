#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

Variant entered(const Object& sheet, const char16_t* formula) {
    const Object cell = sheet.get(names::Range, u"D10");
    cell.put(names::Formula, formula);
    return cell.get(names::Formula);
}

}  // namespace

TEST_CASE("formulas are read back as they were written") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    const Object other = book.get(names::Worksheets).call(names::Add, named(names::After, sheet));
    other.put(names::Name, u"my sheet");
    book.get(names::Worksheets).call(names::Add, named(names::After, other)).put(names::Name, u"Third");
    for (const char16_t* formula : {u"=1+2*A1",
                                    u"=SUM(A1:B2,C3)",
                                    u"='my sheet'!A1",
                                    u"=Third!$A$1+Sheet1!B2",
                                    u"=SUM({1,2;3,4})",
                                    u"=SUM((A1:A2,B3))",
                                    u"=SUM(A:A)",
                                    u"=SUM(1:2)",
                                    u"=SUM($B:$C)",
                                    u"=A1&\"a,b;\"\"c\"",
                                    u"=IF(TRUE,1,FALSE)",
                                    u"=CONVERT(1,\"m\",\"ft\")",
                                    u"=CEILING(2.5,1)",
                                    u"=FORMULATEXT(A1)",
                                    u"=STDEV.S(A1:A3)",
                                    u"=SUM('my sheet:Third'!A1:B2)",
                                    u"=IFERROR(A1/B1,#N/A)",
                                    u"=A1:B5 B2:C3",
                                    u"=NETWORKDAYS(A1,A2)",
                                    u"=CONCAT(A1:A3)",
                                    u"=PERCENTILE.INC(A1:A3,0.5)",
                                    u"=FLOOR(2.5,1)"}) {
        CHECK(entered(sheet, formula) == formula);
        CHECK(sheet.get(names::Range, u"D10").get(names::HasFormula) == true);
    }
    sheet.get(names::Range, u"A1").put(names::Value, 4.0);
    sheet.get(names::Range, u"D10").put(names::Formula, u"=CONVERT(A1,\"km\",\"m\")");
    CHECK(sheet.get(names::Range, u"D10").get(names::Value) == 4000.0);
    sheet.get(names::Range, u"D10").put(names::Formula, u"=CEILING(-2.5,-2)");
    CHECK(sheet.get(names::Range, u"D10").get(names::Value) == -4.0);
    sheet.get(names::Range, u"D10").put(names::Formula, u"=SUM('my sheet:Third'!A1)");
    CHECK(sheet.get(names::Range, u"D10").get(names::Value) == 0.0);
}

TEST_CASE("a formula that cannot be read is refused and leaves the cell") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object cell = sheet.get(names::Range, u"A1");
    cell.put(names::Value, u"'05");
    for (const char16_t* formula : {u"=1+", u"=SUM(1,2", u"=)", u"=\"open", u"=1 2", u"=SIN()"}) {
        CHECK(error_of([&] { cell.put(names::Formula, formula); }) == 1004);
        CHECK(cell.get(names::Value) == u"05");
    }
}

TEST_CASE("references to another workbook carry its path") {
    const Calc calc;
    const Object source = calc.add_book();
    source.get(names::Worksheets, 1).get(names::Range, u"A1").put(names::Value, 42.0);
    const Object saved = calc.reopened(source, "my source.ods");
    const Object sheet = calc.add_sheet();
    const std::u16string folder = from_utf8(calc.folder().string());
    const std::u16string full = u"='" + folder + u"/[my source.ods]Sheet1'!$A$1";
    const Object cell = sheet.get(names::Range, u"B2");
    cell.put(names::Formula, full);
    CHECK(cell.get(names::Formula) == full);
    CHECK(cell.get(names::Value) == 42.0);
    cell.put(names::Formula, u"='[my source.ods]Sheet1'!A1+1");
    CHECK(cell.get(names::Value) == 43.0);
    CHECK(saved.get(names::Name) == u"my source.ods");
}

TEST_CASE("array formulas") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1:A3").put(names::Value, 2.0);
    const Object range = sheet.get(names::Range, u"B1:B3");
    range.put(names::FormulaArray, u"=A1:A3*10");
    CHECK(sheet.get(names::Range, u"B2").get(names::Value) == 20.0);
    CHECK(sheet.get(names::Range, u"B2").get(names::Formula) == u"=A1:A3*10");
    CHECK(range.get(names::FormulaArray) == u"=A1:A3*10");
    CHECK(range.get(names::HasArray) == true);
    CHECK(sheet.get(names::Range, u"A1").get(names::HasArray) == false);
    CHECK(sheet.get(names::Range, u"A1:B1").get(names::HasArray) == Variant(Null{}));
    CHECK(sheet.get(names::Range, u"A1:B1").get(names::HasFormula) == Variant(Null{}));
    CHECK(error_of([&] { sheet.get(names::Range, u"B2").put(names::Value, 1.0); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Range, u"B2:C9").put(names::Value, 1.0); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Range, u"B3").put(names::FormulaArray, u"=1+1"); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Range, u"B1:B2").call(MemberName(u"ClearContents")); }) == 1004);
    CHECK(sheet.get(names::Range, u"B2").get(names::Value) == 20.0);
    sheet.get(names::Range, u"A1:C9").put(names::Value, 1.0);
    CHECK(sheet.get(names::Range, u"B2").get(names::HasFormula) == false);
}

TEST_CASE("one formula over many cells moves along") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1:A4").put(names::Value, 3.0);
    sheet.get(names::Range, u"B1:C4").put(names::Formula, u"=A1*2");
    CHECK(sheet.get(names::Range, u"B4").get(names::Formula) == u"=A4*2");
    CHECK(sheet.get(names::Range, u"C4").get(names::Value) == 12.0);
    // Cells of different looks keep them.
    sheet.get(names::Range, u"D1").get(names::Font).put(names::Bold, true);
    sheet.get(names::Range, u"D1:D4").put(names::Formula, u"=A1+1");
    CHECK(sheet.get(names::Range, u"D3").get(names::Formula) == u"=A3+1");
    CHECK(sheet.get(names::Range, u"D3").get(names::Font).get(names::Bold) == false);
}

TEST_CASE("a deleted reference reads #REF!") {
    const Calc calc;
    const Object book = calc.add_book();
    const Object sheet = book.get(names::Worksheets, 1);
    const Object other = book.get(names::Worksheets).call(names::Add, named(names::After, sheet));
    other.put(names::Name, u"Gone");
    sheet.get(names::Range, u"A1").put(names::Formula, u"=Gone!B2+1");
    other.call(MemberName(u"Delete"));
    CHECK(sheet.get(names::Range, u"A1").get(names::Formula) == u"=#REF!B2+1");
    CHECK(sheet.get(names::Range, u"A1").get(names::Value) == Variant(ErrorValue{2023}));
}

TEST_CASE("a blank range beside formulas has none of them") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    sheet.get(names::Range, u"A1").put(names::Formula, u"=1/0");
    sheet.get(names::Range, u"A2").put(names::Formula, u"=1=1");
    sheet.get(names::Range, u"B1:B3").put(names::FormulaArray, u"={1;2;3}");
    const Object beside = sheet.get(names::Range, u"E1:F9");
    CHECK(beside.get(names::HasFormula) == false);
    CHECK(beside.get(names::HasArray) == false);
    CHECK(beside.get(names::Formula).array()->at(0) == u"");
    CHECK(beside.get(names::Value).array()->at(0) == Variant(Empty{}));
    CHECK(sheet.get(names::Range, u"E1").get(names::Formula) == u"");
    sheet.get(names::Range, u"E1:E2").put(names::Value, 5.0);
    CHECK(sheet.get(names::Range, u"E2").get(names::Value) == 5.0);
}

}  // namespace qor::calc::tests
