#include "hosts/calc/adapter/ground/range_address.hpp"

#include "hosts/calc/formula/row_column.hpp"

namespace qor::calc {
namespace {

std::u16string address_in_r1c1(const Rectangle& area, const AddressStyle& style) {
    const CellPlace base{style.base.left, style.base.top};
    const Corner first{area.left, area.top, style.column_fixed, style.row_fixed};
    const Corner last{area.right, area.bottom, style.column_fixed, style.row_fixed};
    return area.cells() == 1 ? row_column_text(first, base) : row_column_range_text(first, last, base);
}

std::u16string prefix_of(const Sheet& sheet) {
    const std::u16string book = sheet.book.name();
    const std::u16string name = sheet.name();
    std::u16string prefix = u"[" + book + u"]" + name;
    if (needs_quotes(name) || needs_quotes(book)) prefix = in_quotes(prefix);
    return prefix + u"!";
}

}  // namespace

std::u16string address_of(const RangeAreas& areas, const AddressStyle& style) {
    std::u16string text;
    if (style.external) text = prefix_of(areas.sheet);
    for (std::size_t i = 0; i < areas.areas.size(); ++i) {
        const Rectangle area = areas.rectangle(i);
        if (i > 0) text += u",";
        text += style.r1c1 ? address_in_r1c1(area, style) : address_text(area, style.row_fixed, style.column_fixed);
    }
    return text;
}

std::u16string reference_to(const RangeAreas& areas) {
    const std::u16string sheet = in_quotes(areas.sheet.name()) + u"!";
    std::u16string text;
    for (std::size_t i = 0; i < areas.areas.size(); ++i) {
        if (i > 0) text += u",";
        text += sheet + address_text(areas.rectangle(i));
    }
    return text;
}

std::u16string place_of(const RangeAreas& areas) {
    return address_of(areas, {.external = true});
}

}  // namespace qor::calc
