#include "tests/calc/sheets/three_sheets.hpp"
#include "tests/calc/support/sheet_names.hpp"

namespace qor::calc::tests {

TEST_CASE("a sheet is copied inside its workbook") {
    const Calc calc;
    const Object book = three_sheets(calc);
    const Object data = book.get(names::Worksheets, u"Data");
    data.call(names::Protect, named(names::Password, u"secret"), named(MemberName(u"DrawingObjects"), false));
    data.call(names::Copy, named(names::Before, book.get(names::Worksheets, 1)));
    CHECK(sheet_names(book) == "Data (2)/Sheet1/Data/Last/");
    CHECK(active_sheet(calc) == "Data (2)");
    const Object copy = book.get(names::Worksheets, 1);
    CHECK(copy.get(names::Range, u"A2").get(names::Formula) == u"=A1*2");
    CHECK(copy.get(names::Range, u"A2").get(names::Value) == 10.0);
    CHECK(copy.get(names::Range, u"A3").get(names::Formula) == u"=Sheet1!B1+A1");
    CHECK(copy.get(names::Range, u"A1").get(names::Interior).get(names::Color) == 255);
    CHECK(copy.get(names::Range, u"A1").get(names::ColumnWidth) == 30.0);
    CHECK(copy.get(names::ProtectContents) == true);
    CHECK(copy.get(names::ProtectDrawingObjects) == false);
    CHECK(error_of([&] { copy.call(names::Unprotect, u"wrong"); }) == 1004);
    CHECK(error_of([&] { copy.call(names::Unprotect, u"secret"); }) == 0);
    copy.call(names::Copy, named(names::After, book.get(names::Worksheets, u"Last")));
    CHECK(sheet_names(book) == "Data (2)/Sheet1/Data/Last/Data (3)/");
    book.get(names::Worksheets, u"Last").put(names::Visible, 0);
    book.get(names::Worksheets, u"Last").call(names::Copy, Missing{}, book.get(names::Worksheets, u"Last"));
    CHECK(sheet_names(book) == "Data (2)/Sheet1/Data/Last/Last (2)/Data (3)/");
    CHECK(book.get(names::Worksheets, u"Last (2)").get(names::Visible) == 0);
    const Object longest = book.get(names::Worksheets, u"Sheet1");
    longest.put(names::Name, u"1234567890123456789012345678901");
    longest.call(names::Copy, Missing{}, longest);
    CHECK(book.get(names::Worksheets, 3).get(names::Name) == u"123456789012345678901234567 (2)");
}

TEST_CASE("a sheet is moved inside its workbook") {
    const Calc calc;
    const Object book = three_sheets(calc);
    const Object sheets = book.get(names::Worksheets);
    sheets.get(names::Item, u"Sheet1").call(names::Move, named(names::After, sheets.get(names::Item, u"Data")));
    CHECK(sheet_names(book) == "Data/Sheet1/Last/");
    CHECK(active_sheet(calc) == "Sheet1");
    sheets.get(names::Item, u"Last").call(names::Move, named(names::Before, sheets.get(names::Item, 1)));
    CHECK(sheet_names(book) == "Last/Data/Sheet1/");
    sheets.get(names::Item, u"Last").call(names::Move, Missing{}, sheets.get(names::Item, 3));
    CHECK(sheet_names(book) == "Data/Sheet1/Last/");
    CHECK(sheets.get(names::Item, u"Data").get(names::Range, u"A3").get(names::Value) == 105.0);
}

TEST_CASE("a sheet goes into another workbook") {
    const Calc calc;
    const Object source = calc.reopened(three_sheets(calc), "source.ods");
    const Object target = calc.add_book();
    const Object data = source.get(names::Worksheets, u"Data");
    data.put(names::ScrollArea, u"A1:B5");
    data.call(names::Copy, named(names::After, target.get(names::Worksheets, 1)));
    CHECK(sheet_names(target) == "Sheet1/Data/");
    CHECK(calc.application.get(names::ActiveWorkbook).object().is(target));
    CHECK(active_sheet(calc) == "Data");
    const Object copy = target.get(names::Worksheets, u"Data");
    CHECK(copy.get(names::Range, u"A2").get(names::Formula) == u"=A1*2");
    CHECK(copy.get(names::Range, u"A3").get(names::Formula) ==
          u"='" + std::u16string(calc.folder().u16string()) + u"/[source.ods]Sheet1'!B1+A1");
    CHECK(copy.get(names::Range, u"A3").get(names::Value) == 105.0);
    CHECK(copy.get(names::Range, u"A1").get(names::Interior).get(names::Color) == 255);
    CHECK(copy.get(names::Range, u"A1").get(names::ColumnWidth) == 30.0);
    CHECK(copy.get(names::ScrollArea) == u"$A$1:$B$5");
    data.call(names::Copy, named(names::Before, target.get(names::Worksheets, 1)));
    CHECK(sheet_names(target) == "Data (2)/Sheet1/Data/");

    source.get(names::Worksheets, u"Last").call(names::Move, named(names::Before, target.get(names::Worksheets, 1)));
    CHECK(sheet_names(target) == "Last/Data (2)/Sheet1/Data/");
    CHECK(sheet_names(source) == "Sheet1/Data/");
    CHECK(active_sheet(calc) == "Last");
    CHECK(error_of([&] { data.get(names::Name); }) == 0);
}

TEST_CASE("a sheet goes into a new workbook") {
    const Calc calc;
    const Object source = three_sheets(calc);
    const auto count = [&] { return calc.application.get(names::Workbooks).get(names::Count); };
    source.get(names::Worksheets, 1).call(names::Copy);
    CHECK(count() == 2);
    const Object copy = calc.application.get(names::ActiveWorkbook);
    CHECK(sheet_names(copy) == "Sheet1/");
    CHECK(copy.get(names::Worksheets, 1).get(names::Range, u"B1").get(names::Value) == 100.0);
    const Object moved = source.get(names::Worksheets, u"Data");
    moved.call(names::Move);
    CHECK(count() == 3);
    CHECK(sheet_names(calc.application.get(names::ActiveWorkbook)) == "Data/");
    CHECK(sheet_names(source) == "Sheet1/Last/");
    CHECK(error_of([&] { moved.get(names::Name); }) == 1004);
    CHECK(error_of([&] { copy.get(names::Worksheets, 1).call(names::Move); }) == 1004);
    CHECK(count() == 3);
}

TEST_CASE("what Calc lacks of a sheet is kept") {
    const Calc calc;
    const Object book = three_sheets(calc);
    Object sheet = book.get(names::Worksheets, u"Data");
    CHECK(sheet.get(names::ScrollArea) == u"");
    sheet.put(names::ScrollArea, u"b2:A5");
    CHECK(sheet.get(names::ScrollArea) == u"$A$2:$B$5");
    CHECK(error_of([&] { sheet.put(names::ScrollArea, u"A1,B2"); }) == 1004);
    CHECK(error_of([&] { sheet.put(names::ScrollArea, u"Last!A1"); }) == 1004);
    CHECK(error_of([&] { sheet.put(names::ScrollArea, u"rubbish"); }) == 1004);
    CHECK(sheet.get(names::ScrollArea) == u"$A$2:$B$5");
    CHECK(sheet.get(names::TransitionFormEntry) == false);
    sheet.put(names::TransitionFormEntry, true);
    sheet.put(names::Name, u"Renamed");
    const Object again = calc.reopened(book, "kept.ods");
    sheet = again.get(names::Worksheets, u"Renamed");
    CHECK(sheet.get(names::ScrollArea) == u"$A$2:$B$5");
    CHECK(sheet.get(names::TransitionFormEntry) == true);
    CHECK(again.get(names::Worksheets, 1).get(names::ScrollArea) == u"");
    sheet.put(names::ScrollArea, u"");
    CHECK(sheet.get(names::ScrollArea) == u"");
    sheet.put(names::ScrollArea, u"A1");
    sheet.call(names::Delete);
    again.get(names::Worksheets).call(names::Add).put(names::Name, u"Renamed");
    CHECK(again.get(names::Worksheets, u"Renamed").get(names::ScrollArea) == u"");
}

}  // namespace qor::calc::tests
