#include <com/sun/star/lang/Locale.hpp>
#include <memory>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/uno/property.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

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
