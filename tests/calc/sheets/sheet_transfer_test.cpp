#include <com/sun/star/lang/Locale.hpp>
#include <cstdio>
#include <memory>

#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/uno/property.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// A workbook with the sheets Sheet1, Data and Last.
Object three_sheets(const Calc& calc) {
    Object book = calc.add_book();
    const Object sheets = book.get(names::Worksheets);
    sheets.call(names::Add, named(names::After, sheets.get(names::Item, 1))).put(names::Name, u"Data");
    sheets.call(names::Add, named(names::After, sheets.get(names::Item, 2))).put(names::Name, u"Last");
    const Object data = sheets.get(names::Item, u"Data");
    data.get(names::Range, u"A1").put(names::Value, 5.0);
    data.get(names::Range, u"A2").put(names::Formula, u"=A1*2");
    data.get(names::Range, u"A3").put(names::Formula, u"=Sheet1!B1+A1");
    data.get(names::Range, u"A1").get(names::Interior).put(names::Color, 255);
    data.get(names::Range, u"A1").put(names::ColumnWidth, 30.0);
    sheets.get(names::Item, 1).get(names::Range, u"B1").put(names::Value, 100.0);
    return book;
}

std::string names_of(const Object& book) {
    std::string text;
    for (const Variant& sheet : book.get(names::Worksheets).object().items()) {
        text += utf8(sheet.get(names::Name)) + "/";
    }
    return text;
}

std::string active_sheet(const Calc& calc) {
    return utf8(calc.application.get(names::ActiveSheet).get(names::Name));
}

}  // namespace

TEST_CASE("a sheet is copied inside its workbook") {
    const Calc calc;
    const Object book = three_sheets(calc);
    const Object data = book.get(names::Worksheets, u"Data");
    data.call(names::Protect, named(names::Password, u"secret"), named(MemberName(u"DrawingObjects"), false));
    data.call(names::Copy, named(names::Before, book.get(names::Worksheets, 1)));
    CHECK(names_of(book) == "Data (2)/Sheet1/Data/Last/");
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
    CHECK(names_of(book) == "Data (2)/Sheet1/Data/Last/Data (3)/");
    book.get(names::Worksheets, u"Last").put(names::Visible, 0);
    book.get(names::Worksheets, u"Last").call(names::Copy, Missing{}, book.get(names::Worksheets, u"Last"));
    CHECK(names_of(book) == "Data (2)/Sheet1/Data/Last/Last (2)/Data (3)/");
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
    CHECK(names_of(book) == "Data/Sheet1/Last/");
    CHECK(active_sheet(calc) == "Sheet1");
    sheets.get(names::Item, u"Last").call(names::Move, named(names::Before, sheets.get(names::Item, 1)));
    CHECK(names_of(book) == "Last/Data/Sheet1/");
    sheets.get(names::Item, u"Last").call(names::Move, Missing{}, sheets.get(names::Item, 3));
    CHECK(names_of(book) == "Data/Sheet1/Last/");
    CHECK(sheets.get(names::Item, u"Data").get(names::Range, u"A3").get(names::Value) == 105.0);
}

TEST_CASE("a sheet goes into another workbook") {
    const Calc calc;
    const Object source = calc.reopened(three_sheets(calc), "source.ods");
    const Object target = calc.add_book();
    const Object data = source.get(names::Worksheets, u"Data");
    data.put(names::ScrollArea, u"A1:B5");
    data.call(names::Copy, named(names::After, target.get(names::Worksheets, 1)));
    CHECK(names_of(target) == "Sheet1/Data/");
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
    CHECK(names_of(target) == "Data (2)/Sheet1/Data/");

    source.get(names::Worksheets, u"Last").call(names::Move, named(names::Before, target.get(names::Worksheets, 1)));
    CHECK(names_of(target) == "Last/Data (2)/Sheet1/Data/");
    CHECK(names_of(source) == "Sheet1/Data/");
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
    CHECK(names_of(copy) == "Sheet1/");
    CHECK(copy.get(names::Worksheets, 1).get(names::Range, u"B1").get(names::Value) == 100.0);
    const Object moved = source.get(names::Worksheets, u"Data");
    moved.call(names::Move);
    CHECK(count() == 3);
    CHECK(names_of(calc.application.get(names::ActiveWorkbook)) == "Data/");
    CHECK(names_of(source) == "Sheet1/Last/");
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

TEST_CASE("printing one sheet of a workbook") {
    const Calc calc;
    const Object book = three_sheets(calc);
    const Object first = book.get(names::Worksheets, 1);
    book.get(names::Worksheets).call(names::Add, named(names::Before, first)).put(names::Name, u"Empty");
    const std::filesystem::path file = calc.folder() / "printed.pdf";
    const auto printed = [&](const char16_t* sheet) {
        std::filesystem::remove(file);
        book.get(names::Worksheets, sheet)
            .call(names::PrintOut, named(MemberName(u"PrToFileName"), std::u16string(file.u16string())));
        if (!std::filesystem::exists(file)) return std::string("nothing");
        const std::unique_ptr<FILE, int (*)(FILE*)> text(
            ::popen(("pdftotext -layout '" + file.string() + "' -").c_str(), "r"), ::pclose);
        std::string numbers;
        for (int c = 0; (c = std::fgetc(text.get())) != EOF;) {
            if (c >= '0' && c <= '9') numbers += static_cast<char>(c);
        }
        return numbers;
    };
    // The sheet's name is in the header, the number of the page at the foot.
    CHECK(printed(u"Data") == "5101051");
    CHECK(printed(u"Sheet1") == "11001");
    CHECK(printed(u"Empty") == "nothing");
    CHECK(active_sheet(calc) == "Empty");
    // A printer that is not there, for paper and for a file.
    for (const bool into_file : {false, true}) {
        CAPTURE(into_file);
        std::filesystem::remove(file);
        const Variant path = into_file ? Variant(std::u16string(file.u16string())) : Variant(Missing{});
        CHECK(error_of([&] {
                  first.call(names::PrintOut, named(MemberName(u"ActivePrinter"), u"No such printer"),
                             named(MemberName(u"PrToFileName"), path));
              }) == 1004);
        CHECK_FALSE(std::filesystem::exists(file));
    }
    // This office has no print service.
    CHECK(error_of([&] { first.call(names::PrintOut); }) == 1004);
    CHECK(error_of([&] { book.get(names::Worksheets, u"Empty").call(names::PrintOut); }) == 0);
    CHECK(active_sheet(calc) == "Empty");
    first.put(names::Visible, 0);
    CHECK(error_of([&] { first.call(names::PrintOut); }) == 1004);
    const std::u16string nowhere((calc.folder() / "absent" / "x" / "y.pdf").u16string());
    CHECK(error_of([&] { first.call(names::PrintOut, named(MemberName(u"PrToFileName"), nowhere)); }) == 1004);
}

TEST_CASE("spelling") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const Object cells = sheet.get(names::Cells);
    CHECK(cells.call(names::CheckSpelling) == true);
    sheet.get(names::Range, u"A1").put(names::Value, u"The boss's 25 good words - it's all.");
    CHECK(cells.call(names::CheckSpelling) == true);
    sheet.get(names::Range, u"B7").put(names::Value, u"good wrods");
    CHECK(cells.call(names::CheckSpelling) == false);
    CHECK(sheet.get(names::Range, u"A1:B6").call(names::CheckSpelling) == true);
    CHECK(error_of([&] { sheet.call(names::CheckSpelling); }) == 0);
    CHECK(calc.application.call(names::CheckSpelling, u"word") == true);
    CHECK(calc.application.call(names::CheckSpelling, u"wrod") == false);
}

TEST_CASE("spelling without a dictionary is refused") {
    const Calc calc;
    const Object sheet = calc.add_sheet();
    const auto host = std::make_shared<Host>(office_context());
    set_property(host->documents().front(), "CharLocale", css::lang::Locale("eo", "", ""));
    CHECK(error_of([&] { calc.application.call(names::CheckSpelling, u"vorto"); }) == 1004);
    CHECK(error_of([&] { sheet.get(names::Cells).call(names::CheckSpelling); }) == 1004);
}

}  // namespace qor::calc::tests
