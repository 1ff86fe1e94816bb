#include <doctest/doctest.h>

#include "tests/calc/support/fixture.hpp"
#include "tests/calc_document/calc_document.hpp"

namespace qor::calc::tests {

TEST_CASE("dates go from cell to cell as serial numbers") {
    CalcDocument book(office_context());
    book.cell("B2")->setValue(37652);  // 31 January 2003
    book.enter("C2", "=EDateAdd(\"m\";\"1\";$B$2)");
    CHECK(book.value("C2") == 37680);
    book.enter("D2", "=EDATEDIFF(\"d\";B2;C2)");
    CHECK(book.value("D2") == 28);
    book.enter("E2", "=EMONTH(C2)");
    CHECK(book.value("E2") == 2);
    book.enter("F2", "=EDAYSINMONTH(C2;)");  // an empty argument is one that is left out
    CHECK(book.value("F2") == 28);
}

TEST_CASE("a date shows as one where the formula or the cell says so") {
    const CalcDocument book(office_context());
    book.enter("A1", "=DATE(2004;3;15)");  // the formula gives the cell a date's format
    book.enter("B1", "=EEOMONTH(A1)");
    CHECK(book.shown("B1") == "38077");
    book.enter("B2", "=TEXT(EEOMONTH(A1);\"YYYY-MM-DD\")");
    CHECK(book.shown("B2") == "2004-03-31");
    book.enter("B3", "=ISDATE(A1)");
    CHECK(book.value("B3") == 0);
    book.enter("B4", "=LEFT(CELL(\"FORMAT\";A1);1)=\"D\"");
    CHECK(book.value("B4") == 1);
    book.enter("B4", "=LEFT(CELL(\"FORMAT\";A2);1)=\"D\"");
    CHECK(book.value("B4") == 0);
}

TEST_CASE("a function that has no date to give shows 0") {
    CalcDocument book(office_context());
    for (const char* formula : {"=EYEAR(\"no date\")", "=EEOMONTH(\"no date\")", "=EDATEADD(\"x\";1;38061)"}) {
        CAPTURE(formula);
        book.enter("A1", formula);
        CHECK(book.shown("A1") == "0");
    }
}

}  // namespace qor::calc::tests
