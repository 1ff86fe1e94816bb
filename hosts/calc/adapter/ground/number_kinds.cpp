#include "hosts/calc/adapter/ground/number_kinds.hpp"

#include <chrono>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>
#include <com/sun/star/util/Date.hpp>
#include <com/sun/star/util/NumberFormat.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>

#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

bool holds_masked_dollar(std::u16string_view code) {
    for (std::size_t i = 0; i < code.size(); ++i) {
        if (masked_dollar(code.substr(i)) > 0) return true;
    }
    return false;
}

}  // namespace

std::size_t masked_dollar(std::u16string_view code) {
    for (const std::u16string_view dollar : {u"\\$", u"\"$\""}) {
        if (code.starts_with(dollar)) return dollar.size();
    }
    return 0;
}

bool is_general_format(std::int32_t format_key) {
    constexpr std::int32_t keys_of_one_language = 10000;  // General is the first of them
    return format_key % keys_of_one_language == 0;
}

NumberKind kind_of_format(const Sheet& sheet, std::int32_t format_key) {
    if (is_general_format(format_key)) return NumberKind::plain;
    namespace type = css::util::NumberFormat;
    const Ref formats{Ref<css::util::XNumberFormatsSupplier>(sheet.book.document)->getNumberFormats()};
    const Ref format{formats->getByKey(format_key)};
    const auto bits = get_property<sal_Int16>(format, "Type");
    if (bits & type::LOGICAL) return NumberKind::boolean;
    if (bits & type::DATETIME) return NumberKind::date;
    if (bits & type::CURRENCY) return NumberKind::currency;
    if (bits & type::TEXT) return NumberKind::text;
    if ((bits & type::NUMBER) != 0 &&
        holds_masked_dollar(from_uno(get_property<rtl::OUString>(format, "FormatString")))) {
        return NumberKind::currency;
    }
    return NumberKind::plain;
}

std::vector<KindOfCells> number_kinds(const Sheet& sheet, const Cells& cells) {
    std::vector<KindOfCells> result;
    const auto add = [&](const Ref<css::uno::XInterface>& run, auto places) {
        const NumberKind kind = kind_of_format(sheet, get_property<sal_Int32>(run, "NumberFormat"));
        if (kind != NumberKind::plain) result.push_back({kind, places()});
    };
    const auto state = Ref<css::beans::XPropertyState>(cells)->getPropertyState("NumberFormat");
    if (state != css::beans::PropertyState_AMBIGUOUS_VALUE) {
        add(Ref<css::uno::XInterface>(cells),
            [&] { return std::vector{Ref<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress()}; });
        return result;
    }
    const Ref<css::container::XIndexAccess> runs(
        Ref{Ref<css::sheet::XUniqueCellFormatRangesSupplier>(cells)->getUniqueCellFormatRanges()});
    const sal_Int32 count = runs->getCount();
    for (sal_Int32 i = 0; i < count; ++i) {
        const Ref<css::sheet::XSheetCellRanges> run(runs->getByIndex(i));
        add(Ref<css::uno::XInterface>(run), [&] {
            const auto places = run->getRangeAddresses();
            return std::vector(places.begin(), places.end());
        });
    }
    return result;
}

double days_to_null_date(const Sheet& sheet) {
    using namespace std::chrono;
    const auto date = get_property<css::util::Date>(sheet.book.document, "NullDate");
    const sys_days day{year{date.Year} / month{date.Month} / std::chrono::day{date.Day}};
    return static_cast<double>((day - sys_days{1899y / December / 30}).count());
}

}  // namespace qor::calc
