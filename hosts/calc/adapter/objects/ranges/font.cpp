#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontUnderline.hpp>
#include <com/sun/star/awt/FontWeight.hpp>
#include <functional>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/ground/range_address.hpp"
#include "hosts/calc/adapter/look/attributes.hpp"
#include "hosts/calc/adapter/look/colours.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {
namespace {

constexpr sal_Int32 no_colour = -1;  // of a font: automatic, which is black; of a cell: none

class FontObject final : public CalcObject<FontObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Font";

    explicit FontObject(RangeAreas areas) : areas_(std::move(areas)) {}

    static const MemberTable<FontObject>& members();
    std::u16string place() const { return place_of(areas_); }
    void require_alive() const { areas_.sheet.require_alive(); }

  private:
    Variant bold() {
        return answer(shared_attribute<float>(areas_, "CharWeight"),
                      [](float weight) { return weight >= css::awt::FontWeight::BOLD; });
    }
    void set_bold(bool bold) {
        set_attribute(areas_, "CharWeight", bold ? css::awt::FontWeight::BOLD : css::awt::FontWeight::NORMAL);
    }
    Variant italic() {
        return answer(shared_attribute<css::awt::FontSlant>(areas_, "CharPosture"),
                      [](css::awt::FontSlant slant) { return slant != css::awt::FontSlant_NONE; });
    }
    void set_italic(bool italic) {
        set_attribute(areas_, "CharPosture", italic ? css::awt::FontSlant_ITALIC : css::awt::FontSlant_NONE);
    }
    Variant underline() {
        return answer(shared_attribute<sal_Int16>(areas_, "CharUnderline"), [](sal_Int16 line) {
            if (line == css::awt::FontUnderline::NONE) return numbers::underline::none;
            return line == css::awt::FontUnderline::DOUBLE ? numbers::underline::doubled : numbers::underline::single;
        });
    }
    void set_underline(std::int32_t line) {
        const sal_Int16 kind = line == numbers::underline::none      ? css::awt::FontUnderline::NONE
                               : line == numbers::underline::doubled ? css::awt::FontUnderline::DOUBLE
                                                                     : css::awt::FontUnderline::SINGLE;
        set_attribute(areas_, "CharUnderline", kind);
    }
    Variant size() {
        return answer(shared_attribute<float>(areas_, "CharHeight"),
                      [](float height) { return static_cast<double>(height); });
    }
    void set_size(double points) { set_attribute(areas_, "CharHeight", static_cast<float>(points)); }
    Variant name() { return answer(shared_attribute<rtl::OUString>(areas_, "CharFontName"), from_uno); }
    void set_name(const std::u16string& name) { set_attribute(areas_, "CharFontName", to_uno(name)); }
    Variant color() {
        return answer(shared_attribute<sal_Int32>(areas_, "CharColor"),
                      [](sal_Int32 colour) { return colour == no_colour ? 0 : swap_red_and_blue(colour); });
    }
    void set_color(std::int32_t color) { set_attribute(areas_, "CharColor", swap_red_and_blue(color)); }
    Variant color_index() {
        return answer(shared_attribute<sal_Int32>(areas_, "CharColor"), [](sal_Int32 colour) {
            return colour == no_colour ? numbers::colour_index::automatic : palette_index(colour);
        });
    }
    void set_color_index(std::int32_t index) {
        set_attribute(areas_, "CharColor",
                      index == numbers::colour_index::automatic ? no_colour : palette_colour(index));
    }
    Object parent() { return make_range(areas_); }

    RangeAreas areas_;
};

const MemberTable<FontObject>& FontObject::members() {
    using F = FontObject;
    static const MemberTable<F> table({
        property<&F::bold, &F::set_bold>(u"Bold"),
        property<&F::color, &F::set_color>(u"Color"),
        property<&F::color_index, &F::set_color_index>(u"ColorIndex"),
        property<&F::italic, &F::set_italic>(u"Italic"),
        property<&F::name, &F::set_name>(u"Name"),
        property<&F::parent>(u"Parent"),
        property<&F::size, &F::set_size>(u"Size"),
        property<&F::underline, &F::set_underline>(u"Underline"),
    });
    return table;
}

class InteriorObject final : public CalcObject<InteriorObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Interior";

    explicit InteriorObject(RangeAreas areas) : areas_(std::move(areas)) {}

    static const MemberTable<InteriorObject>& members();
    std::u16string place() const { return place_of(areas_); }
    void require_alive() const { areas_.sheet.require_alive(); }

  private:
    static constexpr std::int32_t white = 0xFFFFFF;

    Variant color() {
        return answer(shared_attribute<sal_Int32>(areas_, "CellBackColor"),
                      [](sal_Int32 colour) { return colour == no_colour ? white : swap_red_and_blue(colour); });
    }
    void set_color(std::int32_t color) { set_attribute(areas_, "CellBackColor", swap_red_and_blue(color)); }
    Variant color_index() {
        return answer(shared_attribute<sal_Int32>(areas_, "CellBackColor"), [](sal_Int32 colour) {
            return colour == no_colour ? numbers::colour_index::none : palette_index(colour);
        });
    }
    void set_color_index(std::int32_t index) {
        const bool none = index == numbers::colour_index::none || index == numbers::colour_index::automatic;
        set_attribute(areas_, "CellBackColor", none ? no_colour : palette_colour(index));
    }
    Object parent() { return make_range(areas_); }

    RangeAreas areas_;
};

const MemberTable<InteriorObject>& InteriorObject::members() {
    using I = InteriorObject;
    static const MemberTable<I> table({
        property<&I::color, &I::set_color>(u"Color"),
        property<&I::color_index, &I::set_color_index>(u"ColorIndex"),
        property<&I::parent>(u"Parent"),
    });
    return table;
}

}  // namespace

Object make_font(RangeAreas areas) {
    return make_object<FontObject>(std::move(areas));
}

Object make_interior(RangeAreas areas) {
    return make_object<InteriorObject>(std::move(areas));
}

}  // namespace qor::calc
