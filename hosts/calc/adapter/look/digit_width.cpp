#include "hosts/calc/adapter/look/digit_width.hpp"

#include <algorithm>
#include <cmath>
#include <com/sun/star/awt/XDevice.hpp>
#include <com/sun/star/style/XStyleFamiliesSupplier.hpp>

#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

constexpr double units_per_inch = 2540;
constexpr double points_per_inch = 72;
constexpr double pixels_per_inch = 96;
constexpr double margin = 5;  // in pixels

Ref<css::uno::XInterface> standard_style(const Book& book) {
    const Ref families{Ref<css::style::XStyleFamiliesSupplier>(book.document)->getStyleFamilies()};
    const Ref<css::container::XNameAccess> styles(families->getByName("CellStyles"));
    return Ref<css::uno::XInterface>(styles->getByName("Default"));
}

// Measured at a great height, where the rounding to whole points of width does not count.
double digit_width(const Book& book) {
    constexpr std::int16_t great_height = 1000;
    const auto style = standard_style(book);
    css::awt::FontDescriptor font;
    font.Name = get_property<rtl::OUString>(style, "CharFontName");
    font.Height = great_height;
    const auto device = get_property<Ref<css::awt::XDevice>>(book.document, "ReferenceDevice");
    const Ref measure{device->getFont(font)};
    sal_Int16 widest = 0;
    for (sal_Unicode digit = u'0'; digit <= u'9'; ++digit) widest = std::max(widest, measure->getCharWidth(digit));
    const double height = get_property<float>(style, "CharHeight");
    return widest / double{great_height} * height * units_per_inch / points_per_inch;
}

}  // namespace

DigitWidth::DigitWidth(const Book& book)
    : digit_(digit_width(book)), pixels_(std::max(1.0, std::round(digit_ * pixels_per_inch / units_per_inch))) {}

// Columns are whole pixels wide. Below one character the margin shrinks along.
double DigitWidth::characters_in(std::int32_t width) const {
    const double pixels = std::round(width / digit_ * pixels_);
    const double characters = pixels < pixels_ + margin ? pixels / (pixels_ + margin) : (pixels - margin) / pixels_;
    return std::round(characters * 100) / 100;
}

std::int32_t DigitWidth::width_of(double characters) const {
    const double pixels = std::round(characters < 1 ? characters * (pixels_ + margin) : characters * pixels_ + margin);
    return static_cast<std::int32_t>(std::lround(pixels / pixels_ * digit_));
}

}  // namespace qor::calc
