#include <algorithm>
#include <array>
#include <com/sun/star/table/BorderLineStyle.hpp>
#include <com/sun/star/table/TableBorder2.hpp>
#include <cstdlib>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/ground/range_address.hpp"
#include "hosts/calc/adapter/look/attributes.hpp"
#include "hosts/calc/adapter/look/colours.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {
namespace {

using css::table::BorderLine2;
using css::table::TableBorder2;

// One side of a range or one of the two lines across its cells: Excel's number and where the office keeps it.
struct Side {
    std::int32_t index;
    BorderLine2 TableBorder2::*line;
    sal_Bool TableBorder2::*valid;
    const char* attribute = nullptr;  // of the cells, for the lines across them
};
namespace border = numbers::border;
constexpr std::array sides{
    Side{border::left, &TableBorder2::LeftLine, &TableBorder2::IsLeftLineValid},
    Side{border::top, &TableBorder2::TopLine, &TableBorder2::IsTopLineValid},
    Side{border::bottom, &TableBorder2::BottomLine, &TableBorder2::IsBottomLineValid},
    Side{border::right, &TableBorder2::RightLine, &TableBorder2::IsRightLineValid},
    Side{border::inside_vertical, &TableBorder2::VerticalLine, &TableBorder2::IsVerticalLineValid},
    Side{border::inside_horizontal, &TableBorder2::HorizontalLine, &TableBorder2::IsHorizontalLineValid},
    Side{border::diagonal_down, nullptr, nullptr, "DiagonalTLBR2"},
    Side{border::diagonal_up, nullptr, nullptr, "DiagonalBLTR2"},
};

struct Style {
    std::int32_t excel;
    std::int16_t calc;
};
namespace line_style = numbers::line_style;
namespace office_style = css::table::BorderLineStyle;
constexpr std::array styles{
    Style{line_style::continuous, office_style::SOLID},
    Style{line_style::dashed, office_style::DASHED},
    Style{line_style::dotted, office_style::DOTTED},
    Style{line_style::doubled, office_style::DOUBLE},
    Style{line_style::doubled, office_style::DOUBLE_THIN},
    Style{line_style::dash_dot, office_style::DASH_DOT},
    Style{line_style::dash_dot_dot, office_style::DASH_DOT_DOT},
    Style{line_style::dashed, office_style::FINE_DASHED},
};

namespace line_weight = numbers::line_weight;
struct Weight {
    std::int32_t excel;
    std::uint32_t width;  // in hundredths of a millimetre
};
constexpr std::uint32_t thin_width = 26;
constexpr std::array weights{Weight{line_weight::hairline, 2}, Weight{line_weight::thin, thin_width},
                             Weight{line_weight::medium, 62}, Weight{line_weight::thick, 88}};

bool is_drawn(const BorderLine2& line) {
    return line.LineWidth > 0 || line.OuterLineWidth > 0;
}

std::uint32_t width_of(const BorderLine2& line) {
    return line.LineWidth > 0 ? line.LineWidth : static_cast<std::uint32_t>(line.OuterLineWidth);
}

void set_width(BorderLine2& line, std::uint32_t width) {
    line.LineWidth = width;
    line.OuterLineWidth = static_cast<std::int16_t>(width);
}

// One side of a range, or all of them.
class BorderObject final : public CalcObject<BorderObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Border";

    BorderObject(RangeAreas areas, std::optional<Side> side) : areas_(std::move(areas)), side_(side) {}

    static const MemberTable<BorderObject>& members();
    std::u16string place() const { return place_of(areas_); }
    void require_alive() const { areas_.sheet.require_alive(); }

  private:
    // What the sides agree in, Null where they differ.
    template <class Ask>
    Variant ask(Ask question) const {
        if (side_ && side_->attribute) {
            return answer(shared_attribute<BorderLine2>(areas_, side_->attribute), question);
        }
        const auto border = get_property<TableBorder2>(areas_.whole(), "TableBorder2");
        std::optional<std::int32_t> result;
        for (const Side& side : chosen()) {
            if (!(border.*side.valid)) return Null{};
            const std::int32_t one = question(border.*side.line);
            if (result && *result != one) return Null{};
            result = one;
        }
        return *result;
    }

    template <class Change>
    void change(Change change_line) {
        before_formatting(areas_);
        if (side_ && side_->attribute) {
            auto line = get_property<BorderLine2>(areas_.whole(), side_->attribute);
            change_line(line);
            set_property(areas_.whole(), side_->attribute, line);
            return;
        }
        auto border = get_property<TableBorder2>(areas_.whole(), "TableBorder2");
        TableBorder2 changed;
        for (const Side& side : chosen()) {
            changed.*side.line = border.*side.line;
            changed.*side.valid = true;
            change_line(changed.*side.line);
        }
        set_property(areas_.whole(), "TableBorder2", changed);
    }

    std::vector<Side> chosen() const {
        if (side_) return {*side_};
        const Rectangle area = areas_.rectangle();
        std::vector<Side> result(sides.begin(), sides.begin() + 4);
        if (area.width() > 1) result.push_back(sides[4]);
        if (area.height() > 1) result.push_back(sides[5]);
        return result;
    }

    Variant line_style() {
        return ask([](const BorderLine2& line) {
            if (!is_drawn(line)) return line_style::none;
            const auto* row = std::ranges::find(styles, line.LineStyle, &Style::calc);
            return row == styles.end() ? line_style::continuous : row->excel;
        });
    }
    void set_line_style(std::int32_t style) {
        const auto* row = std::ranges::find(styles, style, &Style::excel);
        if (style != line_style::none && row == styles.end()) throw Error(ErrorNumber::host_refused);
        change([&](BorderLine2& line) {
            if (style == line_style::none) {
                line = BorderLine2();
                return;
            }
            if (!is_drawn(line)) set_width(line, thin_width);
            line.LineStyle = row->calc;
        });
    }
    Variant weight() {
        return ask([](const BorderLine2& line) {
            if (!is_drawn(line)) return line_weight::thin;
            const auto away = [&](const Weight& weight) {
                return std::abs(static_cast<std::int32_t>(weight.width) - static_cast<std::int32_t>(width_of(line)));
            };
            return std::ranges::min_element(weights, {}, away)->excel;
        });
    }
    void set_weight(std::int32_t weight) {
        const auto* row = std::ranges::find(weights, weight, &Weight::excel);
        if (row == weights.end()) throw Error(ErrorNumber::host_refused);
        change([&](BorderLine2& line) {
            if (!is_drawn(line)) line.LineStyle = office_style::SOLID;
            set_width(line, row->width);
        });
    }
    Variant color() {
        return ask([](const BorderLine2& line) { return swap_red_and_blue(line.Color); });
    }
    void set_color(std::int32_t color) {
        change([&](BorderLine2& line) { paint(line, swap_red_and_blue(color)); });
    }
    // The office keeps no automatic colour: black stands for it.
    Variant color_index() {
        return ask([](const BorderLine2& line) {
            if (!is_drawn(line)) return numbers::colour_index::none;
            return line.Color == 0 ? numbers::colour_index::automatic : palette_index(line.Color);
        });
    }
    void set_color_index(std::int32_t index) {
        const std::int32_t colour = index == numbers::colour_index::automatic ? 0 : palette_colour(index);
        change([&](BorderLine2& line) { paint(line, colour); });
    }
    static void paint(BorderLine2& line, std::int32_t colour) {
        if (!is_drawn(line)) set_width(line, thin_width);
        line.Color = colour;
    }

    Object item(std::int32_t index) {
        const auto* side = std::ranges::find(sides, index, &Side::index);
        if (side == sides.end()) throw Error(ErrorNumber::host_refused);
        return make_object<BorderObject>(areas_, *side);
    }
    Object parent() { return make_range(areas_); }

    RangeAreas areas_;
    std::optional<Side> side_;
};

const MemberTable<BorderObject>& BorderObject::members() {
    using B = BorderObject;
    static const MemberTable<B> table({
        property<&B::color, &B::set_color>(u"Color"),
        property<&B::color_index, &B::set_color_index>(u"ColorIndex"),
        property<&B::item>(u"Item", {u"Index"}),
        property<&B::line_style, &B::set_line_style>(u"LineStyle"),
        property<&B::parent>(u"Parent"),
        property<&B::weight, &B::set_weight>(u"Weight"),
    });
    return table;
}

}  // namespace

Object make_borders(RangeAreas areas) {
    return make_object<BorderObject>(std::move(areas), std::nullopt);
}

}  // namespace qor::calc
