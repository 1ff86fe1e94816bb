#pragma once

#include "hosts/calc/adapter/ground/range_address.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {

// Excel's Range: cells, rows or columns of one sheet in one or more rectangles.
class RangeObject final : public CalcObject<RangeObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"Range";

    explicit RangeObject(RangeAreas areas) : areas_(std::move(areas)) {}

    static const MemberTable<RangeObject>& members();

    const RangeAreas& areas() const noexcept { return areas_; }
    std::u16string place() const { return place_of(areas_); }
    void require_alive() const { areas_.sheet.require_alive(); }
    std::vector<Variant> elements() const;

  private:
    // Place and parts (range.cpp, range_parts.cpp).
    std::int32_t count();
    std::int32_t row();
    std::int32_t column();
    std::u16string address(std::optional<bool> row_fixed, std::optional<bool> column_fixed,
                           std::optional<std::int32_t> style, std::optional<bool> external, const Variant& relative_to);
    Object item(const Variant& first, const Variant& second);
    Object cells(const Variant& row, const Variant& column);
    Object strips(RangeUnit unit, const Variant& index);
    Object rows(const Variant& index);
    Object columns(const Variant& index);
    Object range(const Variant& first, const Variant& last);
    Object part_areas(const Variant& index);
    Object entire_row();
    Object entire_column();
    Object name();
    void set_name(const std::u16string& name);
    Object worksheet();
    Object application();
    void select();
    void activate();

    // Finding cells (range_search.cpp).
    Object special_cells(std::int32_t type, std::optional<std::int32_t> value);
    Object find(const std::u16string& what, const Variant& after, std::optional<std::int32_t> look_in,
                std::optional<std::int32_t> look_at, std::optional<std::int32_t> order,
                std::optional<std::int32_t> direction, std::optional<bool> match_case);

    // Moving cells (range_moves.cpp).
    void insert(std::optional<std::int32_t> shift);
    void remove(std::optional<std::int32_t> shift);
    void copy(const Variant& destination);
    void paste_special(std::optional<std::int32_t> what);

    // What the cells hold (range_contents.cpp).
    Variant value();
    Variant value2();
    Variant formula();
    Variant formula_array();
    Variant has_formula();
    Variant has_array();
    Variant text();
    void set_value(const Variant& value);
    void set_formula_array(const std::u16string& formula);
    void clear();
    void clear_contents();
    Object comment();
    Object add_comment(std::optional<std::u16string> text);
    Object hyperlinks();
    Object format_conditions(const Variant& index);
    bool check_spelling();

    // How they look (range_look.cpp).
    Variant number_format();
    void set_number_format(const Variant& format);
    Variant horizontal_alignment();
    void set_horizontal_alignment(std::int32_t alignment);
    Variant wrap_text();
    void set_wrap_text(bool wrap);
    Variant locked();
    void set_locked(bool locked);
    Variant formula_hidden();
    void set_formula_hidden(bool hidden);
    Variant merge_cells();
    Variant column_width();
    void set_column_width(double characters);
    Variant row_height();
    void set_row_height(double points);
    Variant hidden();
    void set_hidden(bool hidden);
    Object font();
    Object interior();
    Variant borders(const Variant& index);

    RangeAreas areas_;
};

// The cell in that row and that column, counted from 1 from the corner of `within`; a column may be named by letters.
Rectangle cell_named(const Variant& row, const Variant& column, const Rectangle& within);

// The areas of a range that is given as an argument; raises 1004 when it is none.
const RangeAreas& areas_of(const Variant& value);

}  // namespace qor::calc
