#include "hosts/calc/formula/reference_style.hpp"

#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "platform/text.hpp"

namespace {

using qor::ReferenceKind;
using qor::ReferenceStyle;
using qor::calc::CellPlace;
using qor::calc::ReferenceConversion;

std::string converted(std::u16string_view formula, const ReferenceConversion& conversion) {
    const auto result = qor::calc::convert_references(formula, conversion);
    return result ? qor::to_utf8(*result) : "none";
}

std::string of_kind(std::u16string_view formula, ReferenceKind kind) {
    return converted(formula, {.kind = kind});
}

constexpr CellPlace base{2, 4};  // C5

struct Conversion {
    std::u16string_view formula;
    std::string converted;
};

void check_all(const ReferenceConversion& conversion, const std::vector<Conversion>& rows) {
    for (const Conversion& row : rows) {
        CAPTURE(qor::to_utf8(row.formula));
        CHECK(converted(row.formula, conversion) == row.converted);
    }
}
void check_absolute(const std::vector<Conversion>& rows) {
    check_all({.kind = ReferenceKind::absolute}, rows);
}
void check_by_number(const std::vector<Conversion>& rows) {
    check_all({.to = ReferenceStyle::row_column, .base = base}, rows);
}
void check_by_letter(const std::vector<Conversion>& rows) {
    check_all({.from = ReferenceStyle::row_column, .base = base}, rows);
}

}  // namespace

TEST_CASE("the four kinds of references") {
    const std::u16string_view formula = u"=A1+$B2-C$3*$D$4";
    CHECK(of_kind(formula, ReferenceKind::absolute) == "=$A$1+$B$2-$C$3*$D$4");
    CHECK(of_kind(formula, ReferenceKind::absolute_row) == "=A$1+B$2-C$3*D$4");
    CHECK(of_kind(formula, ReferenceKind::absolute_column) == "=$A1+$B2-$C3*$D4");
    CHECK(of_kind(formula, ReferenceKind::relative) == "=A1+B2-C3*D4");
    CHECK(converted(formula, {}) == "=A1+$B2-C$3*$D$4");
    CHECK(of_kind(u"=SUM(A1:$B$2,C:C,$4:5)", ReferenceKind::absolute) == "=SUM($A$1:$B$2,$C:$C,$4:$5)");
    CHECK(of_kind(u"=SUM($A$1:$B$2,$C:$C,$4:$5)", ReferenceKind::absolute_row) == "=SUM(A$1:B$2,C:C,$4:$5)");
    CHECK(of_kind(u"=SUM($A$1:$B$2,$C:$C,$4:$5)", ReferenceKind::absolute_column) == "=SUM($A1:$B2,$C:$C,4:5)");
    CHECK(of_kind(u"=SUM($A$1:$B$2,$C:$C,$4:$5)", ReferenceKind::relative) == "=SUM(A1:B2,C:C,4:5)");
    CHECK(of_kind(u"A1", ReferenceKind::absolute) == "$A$1");
}

TEST_CASE("only references change") {
    check_absolute({
        {u"=\"A1\"&A1&\"\"\"B2\"", "=\"A1\"&$A$1&\"\"\"B2\""},
        {u"='A1'!B2+Sheet1!B2+Sheet1:Sheet3!C3:D4", "='A1'!$B$2+Sheet1!$B$2+Sheet1:Sheet3!$C$3:$D$4"},
        {u"='it''s A1'!B2", "='it''s A1'!$B$2"},
        {u"=[B2.xlsx]S!B2+'/p/[B2.xlsx]B2'!B2", "=[B2.xlsx]S!$B$2+'/p/[B2.xlsx]B2'!$B$2"},
        {u"=LOG10(A1)+A1B+_A1+A1.x+XFE1+A1048577", "=LOG10($A$1)+A1B+_A1+A1.x+XFE1+A1048577"},
        {u"=SUM(Table1[[#All],[A1]])*A1", "=SUM(Table1[[#All],[A1]])*$A$1"},
        {u"=1E5+1.5*{1,2;3,4}-2%", "=1E5+1.5*{1,2;3,4}-2%"},
        {u"=#REF!+SUM(#REF!)+#REF!A1", "=#REF!+SUM(#REF!)+#REF!$A$1"},
        {u"=(A1,B2) A1:B9", "=($A$1,$B$2) $A$1:$B$9"},
        {u"=A1:INDEX(B:B,3)", "=$A$1:INDEX($B:$B,3)"},
        {u"=xfd1048576+a1", "=$XFD$1048576+$A$1"},
    });
}

TEST_CASE("references by the numbers of rows and columns") {
    check_by_number({
        {u"=A1+$B$2+C5+$D6+E$7", "=R[-4]C[-2]+R2C2+RC+R[1]C4+R7C[2]"},
        {u"=SUM($B$10:$B$15)", "=SUM(R10C2:R15C2)"},
        {u"=SUM(C5:D6)", "=SUM(RC:R[1]C[1])"},
        {u"=SUM(A:B,$C:$C,C:C,5:5,$6:$7)", "=SUM(C[-2]:C[-1],C3,C,R,R6:R7)"},
        {u"=Sheet1!B2&\"B2\"", "=Sheet1!R[-3]C[-1]&\"B2\""},
        {u"=SUM(A$1:A$1048576)", "=SUM(C[-2])"},
    });
    check_by_letter({
        {u"=SUM(R10C2:R15C2)", "=SUM($B$10:$B$15)"},
        {u"=R[-4]C[-2]+R2C2+RC+R[1]C4+R7C[2]", "=A1+$B$2+C5+$D6+E$7"},
        {u"=SUM(C[-2]:C[-1],C3,C,R,R6:R7)", "=SUM(A:B,$C:$C,C:C,5:5,$6:$7)"},
        {u"=rc[1]+r[1]c", "=D5+C6"},
        {u"=ROUND(RC,2)+RATE(C1,2)+RC_1+R1C1x", "=ROUND(C5,2)+RATE($A:$A,2)+RC_1+R1C1x"},
        {u"R1C28", "$AB$1"},
    });
}

TEST_CASE("references that are counted over the edge go on at the other one") {
    check_by_letter({
        {u"=R[-5]C[-3]", "=XFD1048576"},
        {u"=R[1048572]C[16382]", "=A1"},
        {u"=SUM(R[-5]C:R[-4]C)", "=SUM(C:C)"},
        {u"=R[1048576]C+R0C1+R1048577C1", "=R[1048576]C+R0C1+R1048577C1"},
    });
}

TEST_CASE("style and kind change together") {
    CHECK(converted(u"=RC[-1]*R1C1",
                    {.from = ReferenceStyle::row_column, .kind = ReferenceKind::absolute, .base = base}) ==
          "=$B$5*$A$1");
    CHECK(
        converted(u"=A1*$B$2", {.to = ReferenceStyle::row_column, .kind = ReferenceKind::absolute_row, .base = base}) ==
        "=R1C[-2]*R2C[-1]");
    CHECK(converted(u"=R[1]C", {.from = ReferenceStyle::row_column,
                                .to = ReferenceStyle::row_column,
                                .kind = ReferenceKind::absolute,
                                .base = base}) == "=R6C3");
}

TEST_CASE("text that is not closed is no formula") {
    CHECK(converted(u"=SUM(A1", {}) == "none");
    CHECK(converted(u"=\"A1", {}) == "none");
    CHECK(converted(u"", {}) == "");
}
