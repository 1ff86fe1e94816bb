#include "hosts/calc/adapter/ground/reference_style_setting.hpp"

#include "hosts/calc/adapter/ground/configuration.hpp"

namespace qor::calc {
namespace {

// The office's numbers for the notation of formulas: its own, Excel's with letters, Excel's with row and column
// numbers.
constexpr sal_Int32 office_notation = 0;
constexpr sal_Int32 r1c1_notation = 2;

Configuration syntax(const Host& host) {
    return {host.context(), u"/org.openoffice.Office.Calc/Formula/Syntax"};
}

}  // namespace

ReferenceStyle reference_style(const Host& host) {
    sal_Int32 notation = office_notation;  // what holds as long as the user has chosen none
    syntax(host).value("Grammar") >>= notation;
    return notation == r1c1_notation ? ReferenceStyle::row_column : ReferenceStyle::letters;
}

void set_reference_style(const Host& host, ReferenceStyle style) {
    if (style == reference_style(host)) return;
    const bool numbers = style == ReferenceStyle::row_column;
    syntax(host).set_value("Grammar", css::uno::Any(numbers ? r1c1_notation : office_notation));
}

}  // namespace qor::calc
