#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("a new workbook is the active one") {
    const Calc calc;
    const Object book = calc.add_book();
    CHECK(calc.application.get(names::Workbooks).get(names::Count) == 1);
    CHECK(calc.application.get(names::ActiveWorkbook).object().is(book));
    CHECK(book.get(names::Path) == u"");
    CHECK(book.get(names::ReadOnly) == false);
    CHECK(book.get(names::Worksheets).get(names::Count) == 1);
    CHECK(book.get(names::Worksheets, 1).get(names::Name) == u"Sheet1");
    CHECK(book.get(names::Worksheets, u"sheet1").get(names::Index) == 1);
    CHECK(error_of([&] { book.get(names::Worksheets, 2); }) == 9);
    CHECK(error_of([&] { book.get(names::Worksheets, u"absent"); }) == 9);
}

}  // namespace qor::calc::tests
