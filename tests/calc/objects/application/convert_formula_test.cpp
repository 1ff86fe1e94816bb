#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("ConvertFormula gives the four kinds of references") {
    const Calc calc;
    const Object application = calc.application;
    calc.add_book();
    constexpr std::int32_t letters = 1;
    const auto convert = [&](std::u16string_view formula, std::int32_t kind) {
        return application.call(names::ConvertFormula, formula, letters, letters, kind);
    };
    CHECK(convert(u"=A1+$B$2+Sheet1!C$3", 1) == u"=$A$1+$B$2+Sheet1!$C$3");
    CHECK(convert(u"=A1+$B$2+Sheet1!C$3", 2) == u"=A$1+B$2+Sheet1!C$3");
    CHECK(convert(u"=A1+$B$2+Sheet1!C$3", 3) == u"=$A1+$B2+Sheet1!$C3");
    CHECK(convert(u"=A1+$B$2+Sheet1!C$3", 4) == u"=A1+B2+Sheet1!C3");
    CHECK(application.call(names::ConvertFormula, u"=A1+$B$2", letters) == u"=A1+$B$2");
    CHECK(application.call(names::ConvertFormula, u"=SUM(A1", letters, letters, 1) == Variant(ErrorValue{2015}));
    CHECK(error_of([&] { convert(u"=A1", 5); }) == 1004);
    CHECK(error_of([&] { convert(u"=A1", 0); }) == 1004);
    CHECK(error_of([&] { application.call(names::ConvertFormula, u"=A1", 2); }) == 1004);
}

TEST_CASE("ConvertFormula changes the style of references") {
    const Calc calc;
    const Object application = calc.application;
    const Object sheet = calc.add_sheet();
    constexpr std::int32_t letters = 1;
    constexpr std::int32_t numbers = -4150;
    CHECK(application.call(names::ConvertFormula, u"=SUM(R10C2:R15C2)", numbers, letters) == u"=SUM($B$10:$B$15)");
    const Object cell = sheet.get(names::Range, u"C5");
    CHECK(application.call(names::ConvertFormula, u"=A1*$B$2", letters, numbers, named(names::RelativeTo, cell)) ==
          u"=R[-4]C[-2]*R2C2");
    cell.call(names::Select);
    CHECK(application.call(names::ConvertFormula, u"=R[1]C", numbers, letters) == u"=C6");
    CHECK(application.call(names::ConvertFormula, u"=R[1]C", numbers, letters, 1) == u"=$C$6");
}

}  // namespace qor::calc::tests
