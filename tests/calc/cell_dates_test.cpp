#include <doctest/doctest.h>

#include "tests/cli/calc_fixture.hpp"

namespace qor::cli {

TEST_CASE("dates go from cell to cell as serial numbers") {
    CalcDocument book;
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

TEST_CASE("a function that has no date to give shows 0") {
    CalcDocument book;
    for (const char* formula : {"=EYEAR(\"no date\")", "=EEOMONTH(\"no date\")", "=EDATEADD(\"x\";1;38061)"}) {
        CAPTURE(formula);
        book.enter("A1", formula);
        CHECK(book.shown("A1") == "0");
    }
}

}  // namespace qor::cli
