#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("results of formulas that test are Booleans, in files too") {
    for (const char* file : {"", "tests.xlsx", "tests.xls", "tests.ods"}) {
        CAPTURE(file);
        const Calc calc;
        const Object book = calc.add_book();
        Object sheet = book.get(names::Worksheets, 1);
        struct Row {
            const char16_t* formula;
            Variant value;
        };
        const Row rows[] = {{u"=1<2", true},          {u"=1>2", false}, {u"=AND(1<2,3<4)", true}, {u"=NOT(1<2)", false},
                            {u"=ISBLANK(Z99)", true}, {u"=1+0", 1.0},   {u"=(1<2)*1", 1.0},       {u"=SUM(0,1)", 1.0},
                            {u"=2-2", 0.0},           {u"=\"x\"", u"x"}};
        std::int32_t row = 0;
        for (const Row& each : rows) sheet.get(names::Cells, ++row, 1).put(names::Formula, each.formula);
        if (*file) sheet = calc.reopened(book, file).get(names::Worksheets, 1);
        const Variant all = sheet.get(names::Range, u"A1:A10").get(names::Value);
        const Object functions = calc.application.get(names::WorksheetFunction);
        row = 0;
        for (const Row& each : rows) {
            CAPTURE(row);
            CHECK(all.array()->at(static_cast<std::size_t>(row), 0) == each.value);
            const Object cell = sheet.get(names::Cells, ++row, 1);
            CHECK(cell.get(names::Value) == each.value);
            CHECK(cell.get(names::Value2) == each.value);
            CHECK(cell.get(names::Formula) == each.formula);
            CHECK(functions.call(names::IsLogical, cell) == each.value.is(Variant::Kind::boolean));
        }
    }
}

TEST_CASE("a comparison that is formatted as a number is a Boolean all the same") {
    const Calc calc;
    const Object cell = calc.add_sheet().get(names::Range, u"A1");
    cell.put(names::Formula, u"=1<2");
    cell.put(names::NumberFormat, u"0.00");
    CHECK(cell.get(names::Value) == true);
}

}  // namespace qor::calc::tests
