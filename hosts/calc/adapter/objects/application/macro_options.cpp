#include "hosts/calc/adapter/objects/application/macro_options.hpp"

#include <algorithm>
#include <com/sun/star/container/XNameAccess.hpp>

#include "hosts/calc/uno/service.hpp"
#include "platform/text.hpp"

namespace qor::calc {

void require_macro(const Host& host, std::u16string_view name) {
    const auto functions =
        create_service<css::container::XNameAccess>(host.context(), "com.sun.star.sheet.FunctionDescriptions");
    const auto names = functions->getElementNames();
    const auto same = [&](const rtl::OUString& function) { return equal_ignoring_case(view_of(function), name); };
    if (std::ranges::any_of(names, same)) return;
    throw Error(ErrorNumber::host_refused, {}, u"There is no function named '" + std::u16string(name) + u"'.");
}

}  // namespace qor::calc
