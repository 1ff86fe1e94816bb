// What a function makes of the arguments that a cell's formula gives it.
#include <doctest/doctest.h>

#include "tests/calc/support/fixture.hpp"
#include "tests/calc_document/calc_document.hpp"

namespace qor::calc::tests {
namespace {

struct Case {
    std::string formula;
    std::string shown;
};

// C1 and C2 hold numbers, D1 is blank, D2 to D4 hold texts, D5 the empty text of a formula, D6 a truth value, D7 an
// error, E1 a date, E2 to E4 short texts and 0.
class Arguments : public CalcDocument {
  public:
    Arguments() : CalcDocument(office_context()) {
        enter("C1", "6");
        enter("C2", "3");
        enter("D2", "'words");
        enter("D3", "'2");
        enter("D4", "'$1,234.50");
        enter("D5", "=\"\"");
        enter("D6", "=TRUE()");
        enter("D7", "=1/0");
        cell("E1")->setValue(38061);  // 15 March 2004
        enter("E2", "'abc");
        enter("E3", "'B");
        enter("E4", "0");
    }

    void check(const std::vector<Case>& cases) const {
        for (const auto& [formula, expected] : cases) {
            CAPTURE(formula);
            enter("A1", formula.c_str());
            CHECK(shown("A1") == expected);
        }
    }
};

}  // namespace

TEST_CASE("a number is taken from whatever holds one") {
    const Arguments book;
    book.check({
        {"=NW(C1;C2)", "3"},
        {"=NW(C1:C1;C2:C2)", "3"},
        {"=NW({6};{3})", "3"},
        {"=NW(6;3)", "3"},
        {"=NW(C1;\"2\")", "4"},
        {"=NW(C1;D3)", "4"},
        {"=NW(C1;D3:D3)", "4"},
        {"=NW(D4;C1)", "1228.5"},
        {"=NW(C1;D1)", "6"},  // a blank cell is 0
        {"=NW(C1;D1:D1)", "6"},
        {"=NW(C1;D6)", "5"},
        {"=NW(C1;TRUE())", "5"},
        {"=NW(E1;1)", "38060"},
        {"=NW(NW(C1;C2);1)", "2"},
        {"=NW(SUM(C1:C2);1)", "8"},
    });
}

TEST_CASE("what is no number makes the result 0") {
    const Arguments book;
    book.check({
        {"=NW(C1;D2)", "0"},
        {"=NW(C1;D2:D2)", "0"},
        {"=NW(C1;\"words\")", "0"},
        {"=NW(C1;D5)", "0"},
        {"=NW(C1;\"\")", "0"},
        {"=NW(C1;C1:C2)", "0"},
        {"=NW(C1;{1;2})", "0"},
        {"=NW(C1;C:C)", "0"},
        {"=NW(C1;)", "0"},
        {"=NW(;C1)", "0"},
        {"=NW(C1)", "0"},
        {"=NW()", "0"},
        {"=SUM(NW(C1;D2);1)", "1"},
        {"=NW(C1;C2;D2)", "0"},
        {"=NW(C1;C2;C1:C2)", "0"},
    });
}

// Calc asks the function only where no argument is an error and each is of a shape that it can hand over.
TEST_CASE("what Calc refuses shows Calc's own error") {
    const Arguments book;
    book.check({
        {"=NW(C1;D7)", "#DIV/0!"},
        {"=NW(C1;1/0)", "#DIV/0!"},
        {"=NW(C1;NA())", "#N/A"},
        {"=NW(C1;#N/A)", "#N/A"},
        {"=NW(C1;nosuchname)", "#NAME?"},
        {"=FORMATNAME(D7;\"x\")", "#DIV/0!"},
        {"=NW(C1;D7:D7)", "Err:504"},
        {"=NW(C1;D:D)", "Err:504"},  // the error in D7 counts
        {"=NW(C1;C1~C2)", "Err:504"},
        {"=NW(C1;C2;4;5)", "Err:504"},
        {"=IFERROR(NW(C1;D7);0)", "0"},
        {"=IFERROR(NW(C1;D7:D7);0)", "0"},
    });
}

TEST_CASE("a whole number is rounded, and what is none makes the result what it starts with") {
    const Arguments book;
    book.check({
        {"=EWEEKDAYNAME(C2;FALSE();1)", "Tuesday"},
        {"=EWEEKDAYNAME(C2:C2;FALSE();1)", "Tuesday"},
        {"=EWEEKDAYNAME(2.5;FALSE();1)", "Monday"},
        {"=EWEEKDAYNAME(D3;FALSE();1)", "Monday"},
        {"=EWEEKDAYNAME(D6;FALSE();1)", "Sunday"},
        {"=EWEEKDAYNAME(D1;FALSE();1)", ""},
        {"=EWEEKDAYNAME(D2;FALSE();1)", ""},
        {"=EWEEKDAYNAME(C1:C2;FALSE();1)", ""},
        {"=EWEEKDAYNAME(3000000000;FALSE();1)", ""},
        {"=EWEEKDAYNAME(;FALSE();1)", ""},
        {"=EWEEKDAYNAME()", ""},
        {"=NW(1.26;0;1)", "1.3"},
        {"=NW(1.26;0;D1)", "1"},  // a blank cell is 0 and not left out
        {"=NW(1.26;0;)", "1.26"},
        {"=NW(1.26;0)", "1.26"},
        {"=NW(1.26;0;-1)", "0"},
        {"=EDATEDIFF(\"d\";E1;E1;D2)", "0"},
        {"=EDATEDIFF(\"d\";E1)", "0"},
    });
}

TEST_CASE("a text is taken from whatever holds a value") {
    const Arguments book;
    book.check({
        {"=FORMATNAME(E2;E3)", "abc B "},
        {"=FORMATNAME(E2:E2;E3:E3)", "abc B "},
        {"=FORMATNAME(\"Ann\";\"Lee\")", "Ann Lee "},
        {"=FORMATNAME(C1;1.5)", "6 1.5 "},
        {"=FORMATNAME(E2;D1)", "abc "},  // a blank cell is the empty text
        {"=FORMATNAME(E2;D1:D1)", "abc "},
        {"=FORMATNAME(E2;E3;D1;D1;D1)", "abc B "},
        {"=FORMATNAME(E2;E4)", "abc "},  // Calc tells 0 and a blank cell from each other only here:
        {"=FORMATNAME(E2;TEXT(E4;\"0\"))", "abc 0 "},
        {"=FORMATNAME(E2;D5)", "abc "},
        {"=FORMATNAME(E2;TRUE())", "abc 1 "},
        {"=FORMATNAME(E2;E3;;;\"Jr\")", "abc B Jr "},
        {"=FORMATNAME(E2;E2:E3)", ""},
        {"=FORMATNAME(E2;E:E)", ""},
        {"=FORMATNAME(E2)", ""},
        {"=FORMATNAME(;E2)", ""},
    });
}

TEST_CASE("a value of any kind keeps the kind that Calc gives it") {
    const Arguments book;
    book.check({
        {"=BETWEEN(C2;2;C1)", "1"},
        {"=BETWEEN(C2:C2;2;C1:C1)", "1"},
        {"=BETWEEN(\"b\";\"a\";\"c\")", "1"},
        {"=BETWEEN(E3;\"A\";\"C\")", "1"},
        {"=BETWEEN(D3;1;3)", "0"},  // the text "2" comes behind every number
        {"=BETWEEN(D1;-1;1)", "1"},
        {"=BETWEEN(D1:D1;-1;1)", "1"},
        {"=BETWEEN(C1:C2;0;9)", "0"},
        {"=BETWEEN(C1;0)", "0"},
        {"=BETWEEN(C1;;9)", "0"},
        {"=NUMBERTOWORDS(C1)", "Six "},
        {"=NUMBERTOWORDS(D4)", "Error - Number improperly formed"},
        {"=NUMBERTOWORDS(D5)", "Error - Number improperly formed"},
        {"=NUMBERTOWORDS(D1)", "Zero "},
        {"=NUMBERTOWORDS(D1:D1)", "Error - Number improperly formed"},
        {"=NUMBERTOWORDS(C1:C2)", ""},
        {"=NUMBERTOWORDS()", ""},
        {"=EYEAR(E1)", "2004"},
        {"=EYEAR(E1:E1)", "2004"},
        {"=EYEAR(\"3/15/2004\")", "2004"},
        {"=EYEAR(D2)", "0"},
        {"=EYEAR(E1:E2)", "0"},
        {"=EYEAR()", "0"},
        {"=EEOMONTH(E1;0;D2)", "0"},
        {"=ISDATE(E1)", "0"},  // a date comes as its serial number
        {"=ISDATE(\"3/15/2004\")", "1"},
        {"=ISDATE(TEXT(E1;\"m/d/yyyy\"))", "1"},
        {"=ISTIME(\"12:30\")", "1"},
        {"=ISTIME(D1:D1)", "0"},
    });
}

TEST_CASE("a truth value is taken from numbers and texts") {
    const Arguments book;
    book.check({
        {"=CONTAINS(E2;E3)", "1"},
        {"=CONTAINS(E2;E3;1;3;TRUE())", "0"},
        {"=CONTAINS(E2;E3;1;3;D6)", "0"},
        {"=CONTAINS(E2;E3;1;3;D6:D6)", "0"},
        {"=CONTAINS(E2;E3;1;3;\"True\")", "0"},
        {"=CONTAINS(E2;E3;1;3;C1)", "0"},
        {"=CONTAINS(E2;E3;1;3;D1)", "1"},
        {"=CONTAINS(E2;E3;1;3;D1:D1)", "1"},
        {"=CONTAINS(E2;E3;1;3;\"false\")", "1"},
        {"=CONTAINS(E2;E3;1;3;)", "1"},
        {"=CONTAINS(E2;E3;1;3;D2)", "0"},
        {"=CONTAINS(E2;E3;1;3;C1:C2)", "0"},
        {"=EMONTHNAME(E1)", "March"},
        {"=EMONTHNAME(E1;TRUE())", "Mar"},
        {"=EMONTHNAME(E1;D2)", ""},
    });
}

}  // namespace qor::calc::tests
