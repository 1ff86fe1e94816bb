#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

// How cells look, each in a column of its own.
struct Look {
    const char16_t* part;  // of the range; empty for its own member
    MemberName member;
    Variant value;
};

std::vector<Look> looks() {
    std::vector<Look> all{{u"Font", names::Bold, true},
                          {u"Font", names::Italic, true},
                          {u"Font", MemberName(u"Underline"), 2},
                          {u"Font", names::Name, u"Times New Roman"},
                          {u"Font", names::Size, 16.0},
                          {u"Font", names::Color, 255},
                          {u"Interior", names::Color, 65535},
                          {u"", names::HorizontalAlignment, -4108},
                          {u"", names::HorizontalAlignment, -4152},
                          {u"", names::WrapText, true},
                          {u"", names::Locked, false},
                          {u"", names::FormulaHidden, true}};
    for (const char16_t* format : {u"General", u"0.00", u"#,##0", u"0%", u"$#,##0.00", u"m/d/yyyy", u"d-mmm-yy",
                                   u"h:mm AM/PM", u"m/d/yyyy h:mm", u"[Red]0.0;-0.0", u"0.0000", u"@", u"0.00E+00"}) {
        all.push_back({u"", names::NumberFormat, format});
    }
    return all;
}

Object target_of(const Object& cell, const Look& look) {
    return *look.part ? Object(cell.get(MemberName(look.part))) : cell;
}

}  // namespace

TEST_CASE("how cells look survives files of three kinds") {
    for (const char* file : {"looks.xlsx", "looks.xls", "looks.ods"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = calc.add_book();
        Object sheet = book.get(names::Worksheets, 1);
        std::int32_t column = 0;
        for (const Look& look : looks())
            target_of(sheet.get(names::Cells, 1, ++column), look).put(look.member, look.value);
        sheet.get(names::Range, u"B2").get(names::Borders, 9).put(names::LineStyle, 1);
        sheet.get(names::Range, u"B2").get(names::Borders, 9).put(names::Weight, 4);
        sheet.get(names::Range, u"C1").put(names::ColumnWidth, 20.0);
        sheet.get(names::Range, u"A5").put(names::RowHeight, 30.0);
        sheet.get(names::Rows, 7).put(MemberName(u"Hidden"), true);
        sheet.get(names::Columns, 4).put(MemberName(u"Hidden"), true);
        sheet = calc.reopened(book, file).get(names::Worksheets, 1);
        column = 0;
        for (const Look& look : looks()) {
            CAPTURE(utf8(look.member.text()));
            CAPTURE(look.value);
            const Object cell = sheet.get(names::Cells, 1, ++column);
            CHECK(target_of(cell, look).get(look.member) == look.value);
        }
        CHECK(sheet.get(names::Range, u"B2").get(names::Borders, 9).get(names::Weight) == 4);
        CHECK(sheet.get(names::Range, u"B2").get(names::Borders, 8).get(names::LineStyle) == -4142);
        CHECK(sheet.get(names::Range, u"C1").get(names::ColumnWidth) == 20.0);
        CHECK(sheet.get(names::Range, u"A5").get(names::RowHeight) == 30.0);
        CHECK(sheet.get(names::Rows, 7).get(MemberName(u"Hidden")) == true);
        CHECK(sheet.get(names::Columns, 4).get(MemberName(u"Hidden")) == true);
        CHECK(sheet.get(names::Columns, 5).get(MemberName(u"Hidden")) == false);
    }
}

TEST_CASE("what cells hold beside values survives files of three kinds") {
    for (const char* file : {"cells.xlsx", "cells.xls", "cells.ods"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = calc.add_book();
        Object sheet = book.get(names::Worksheets, 1);
        sheet.get(names::Range, u"A1:A3").put(names::Formula, u"=ROW()*2");
        sheet.get(names::Range, u"B1:B3").put(names::FormulaArray, u"=A1:A3*10");
        sheet.get(names::Range, u"C1").put(names::Formula, u"=SUM(A1:A3,$B$1)");
        sheet.get(names::Range, u"C2").put(names::Value, true);
        sheet.get(names::Range, u"C3").put(names::Value, ErrorValue{2042});
        sheet.get(names::Range, u"E1").put(names::Value, Currency{125000});
        sheet.get(names::Range, u"E2").put(names::Value, Date{45000.5});
        sheet.get(names::Range, u"D2").call(MemberName(u"AddComment"), u"look here");
        book.get(names::Names).call(names::Add, u"Doubles", u"=Sheet1!$A$1:$A$3");
        const Object again = calc.reopened(book, file);
        sheet = again.get(names::Worksheets, 1);
        const auto range = [&](const char16_t* address) { return sheet.get(names::Range, address); };
        CHECK(range(u"A1:A3").get(names::HasFormula) == true);
        CHECK(range(u"A1:A3").get(names::HasArray) == false);
        CHECK(range(u"B1:B3").get(names::HasArray) == true);
        CHECK(range(u"B2").get(names::FormulaArray) == u"=A1:A3*10");
        CHECK(range(u"B3").get(names::Value) == 60.0);
        CHECK(range(u"C1").get(names::Formula) == u"=SUM(A1:A3,$B$1)");
        CHECK(range(u"C1").get(names::Value) == 32.0);
        CHECK(range(u"C2").get(names::HasFormula) == false);
        // Calc saves the constant #N/A in xls as a formula.
        const bool is_xls = std::string_view(file) == "cells.xls";
        CHECK(range(u"C3").get(names::HasFormula) == is_xls);
        CHECK(range(u"C3").get(names::Formula) == (is_xls ? u"=NA()" : u"#N/A"));
        CHECK(range(u"C2").get(names::Value) == true);
        CHECK(range(u"C3").get(names::Value) == Variant(ErrorValue{2042}));
        CHECK(range(u"E1").get(names::Value) == Variant(Currency{125000}));
        CHECK(range(u"E1").get(names::Value2) == 12.5);
        CHECK(range(u"E2").get(names::Value) == Variant(Date{45000.5}));
        CHECK(range(u"A1:C3").get(names::HasFormula) == Variant(Null{}));
        CHECK(range(u"D2").get(names::Comment).call(names::Text) == u"look here");
        CHECK(sheet.get(names::Comments).get(names::Count) == 1);
        CHECK(range(u"A1:A3").get(names::Name).get(names::Name) == u"Doubles");
        CHECK(range(u"Doubles").get(names::Address) == u"$A$1:$A$3");
        CHECK(sheet.get(names::UsedRange).get(names::Address) == u"$A$1:$E$3");
        CHECK(error_of([&] { range(u"B2").put(names::Value, 1.0); }) == 1004);
        CHECK(range(u"B2").get(names::Value) == 40.0);
        CHECK(range(u"D2").get(names::Comment).get(names::Parent).get(names::Address) == u"$D$2");
        range(u"D2").get(names::Comment).call(names::Delete);
        CHECK(sheet.get(names::Comments).get(names::Count) == 0);
    }
}

TEST_CASE("what Calc lacks of a sheet is kept in files of Excel, too") {
    for (const char* file : {"sheet.xlsx", "sheet.xls"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = calc.add_book();
        const Object sheet = book.get(names::Worksheets, 1);
        const Object hidden = book.get(names::Worksheets).call(names::Add, named(names::After, sheet));
        hidden.put(names::Visible, 2);
        sheet.put(names::ScrollArea, u"A1:B2");
        sheet.put(names::TransitionFormEntry, true);
        sheet.call(names::Protect, u"secret", false, true, false);
        const Object again = calc.reopened(book, file);
        const Object first = again.get(names::Worksheets, 1);
        CHECK(again.get(names::Worksheets, 2).get(names::Visible) == 2);
        CHECK(first.get(names::ScrollArea) == u"$A$1:$B$2");
        CHECK(first.get(names::TransitionFormEntry) == true);
        CHECK(first.get(names::ProtectContents) == true);
        CHECK(first.get(names::ProtectDrawingObjects) == false);
        CHECK(first.get(names::ProtectScenarios) == false);
        CHECK(error_of([&] { first.call(names::Unprotect, u"wrong"); }) == 1004);
        CHECK(error_of([&] { first.get(names::Range, u"A1").put(names::Value, 1.0); }) == 1004);
        first.call(names::Unprotect, u"secret");
        CHECK(first.get(names::ProtectContents) == false);
        first.get(names::Range, u"A1").put(names::Value, 1.0);
        CHECK(first.get(names::Range, u"A1").get(names::Value) == 1.0);
    }
}

}  // namespace qor::calc::tests
