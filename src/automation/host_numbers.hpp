#pragma once

#include <cstdint>
#include <type_traits>

// The numbers of the spreadsheet's object model that this product uses, each spelled once, as macro authors know them.
namespace qor {

// Kinds that the code tells apart.
enum class ArrangeStyle : std::int32_t { tiled = 1, cascade = 7, horizontal = -4128, vertical = -4166 };
enum class BarPosition : std::int32_t { left = 0, top = 1, right = 2, bottom = 3, floating = 4 };
enum class BarType : std::int32_t { toolbar = 0, menu_bar = 1 };
enum class ControlType : std::int32_t { button = 1, drop_down = 3, popup = 10 };
enum class PropertyKind : std::int32_t { whole_number = 1, boolean = 2, date = 3, text = 4, number = 5 };
enum class ReferenceKind : std::int32_t { absolute = 1, absolute_row = 2, absolute_column = 3, relative = 4 };
enum class ReferenceStyle : std::int32_t { letters = 1, row_column = -4150 };

// As it goes to the host and comes from there.
template <class Kind>
requires std::is_enum_v<Kind>
constexpr std::int32_t number_of(Kind kind) {
    return static_cast<std::int32_t>(kind);
}

// Numbers that are only handed on, compared and looked up in tables.
namespace numbers {

namespace alignment {
inline constexpr std::int32_t general = 1;
inline constexpr std::int32_t fill = 5;
inline constexpr std::int32_t centre_across_selection = 7;
inline constexpr std::int32_t centre = -4108;
inline constexpr std::int32_t justify = -4130;
inline constexpr std::int32_t left = -4131;
inline constexpr std::int32_t right = -4152;
}  // namespace alignment

// The row of a docked bar.
namespace bar_row {
inline constexpr std::int32_t any = -1;
}

namespace border {
inline constexpr std::int32_t diagonal_down = 5;
inline constexpr std::int32_t diagonal_up = 6;
inline constexpr std::int32_t left = 7;
inline constexpr std::int32_t top = 8;
inline constexpr std::int32_t bottom = 9;
inline constexpr std::int32_t right = 10;
inline constexpr std::int32_t inside_vertical = 11;
inline constexpr std::int32_t inside_horizontal = 12;
}  // namespace border

// The codes of the error values in cells.
namespace cell_error {
inline constexpr std::int32_t null = 2000;
inline constexpr std::int32_t division_by_zero = 2007;
inline constexpr std::int32_t value = 2015;
inline constexpr std::int32_t reference = 2023;
inline constexpr std::int32_t name = 2029;
inline constexpr std::int32_t number = 2036;
inline constexpr std::int32_t not_available = 2042;
}  // namespace cell_error

namespace colour_index {
inline constexpr std::int32_t automatic = -4105;
inline constexpr std::int32_t none = -4142;
}  // namespace colour_index

// How a conditional format compares a cell's value.
namespace comparison {
inline constexpr std::int32_t between = 1;
inline constexpr std::int32_t not_between = 2;
inline constexpr std::int32_t equal = 3;
inline constexpr std::int32_t not_equal = 4;
inline constexpr std::int32_t greater = 5;
inline constexpr std::int32_t less = 6;
inline constexpr std::int32_t greater_equal = 7;
inline constexpr std::int32_t less_equal = 8;
}  // namespace comparison

namespace condition_type {
inline constexpr std::int32_t cell_value = 1;  // the only one with a comparison
inline constexpr std::int32_t expression = 2;
inline constexpr std::int32_t colour_scale = 3;
inline constexpr std::int32_t data_bar = 4;
inline constexpr std::int32_t top = 5;
inline constexpr std::int32_t icon_set = 6;
inline constexpr std::int32_t unique = 8;
inline constexpr std::int32_t text = 9;
inline constexpr std::int32_t period = 11;
inline constexpr std::int32_t average = 12;
inline constexpr std::int32_t error = 16;
inline constexpr std::int32_t no_error = 17;
}  // namespace condition_type

// The host's own menus, and what every control has that is not the host's.
namespace control_id {
inline constexpr std::int32_t own = 1;
inline constexpr std::int32_t file_menu = 30002;
inline constexpr std::int32_t edit_menu = 30003;
inline constexpr std::int32_t view_menu = 30004;
inline constexpr std::int32_t insert_menu = 30005;
inline constexpr std::int32_t format_menu = 30006;
inline constexpr std::int32_t tools_menu = 30007;
inline constexpr std::int32_t window_menu = 30009;
inline constexpr std::int32_t help_menu = 30010;
inline constexpr std::int32_t data_menu = 30011;
}  // namespace control_id

namespace file_format {
inline constexpr std::int32_t symbolic_link = 2;
inline constexpr std::int32_t lotus_1 = 5;
inline constexpr std::int32_t comma_separated = 6;
inline constexpr std::int32_t dbase_2 = 7;
inline constexpr std::int32_t dbase_3 = 8;
inline constexpr std::int32_t data_interchange = 9;
inline constexpr std::int32_t dbase_4 = 11;
inline constexpr std::int32_t template_97 = 17;
inline constexpr std::int32_t add_in = 18;
inline constexpr std::int32_t text_windows = 20;
inline constexpr std::int32_t international_add_in = 26;
inline constexpr std::int32_t workbook_4 = 33;
inline constexpr std::int32_t text_printer = 36;
inline constexpr std::int32_t workbook_95 = 39;
inline constexpr std::int32_t workbook_95_and_97 = 43;
inline constexpr std::int32_t web_page = 44;
inline constexpr std::int32_t binary_workbook = 50;
inline constexpr std::int32_t workbook = 51;
inline constexpr std::int32_t workbook_with_macros = 52;
inline constexpr std::int32_t workbook_template = 54;
inline constexpr std::int32_t workbook_97 = 56;
inline constexpr std::int32_t open_document = 60;
inline constexpr std::int32_t comma_separated_unicode = 62;
inline constexpr std::int32_t normal_workbook = -4143;
inline constexpr std::int32_t text = -4158;

constexpr bool is_add_in(std::int32_t format) {
    return format == add_in || format == international_add_in;
}
}  // namespace file_format

// What InputBox asks for.
namespace input_type {
inline constexpr std::int32_t text = 2;
inline constexpr std::int32_t range = 8;
}  // namespace input_type

namespace line_style {
inline constexpr std::int32_t continuous = 1;
inline constexpr std::int32_t dash_dot = 4;
inline constexpr std::int32_t dash_dot_dot = 5;
inline constexpr std::int32_t dashed = -4115;
inline constexpr std::int32_t dotted = -4118;
inline constexpr std::int32_t doubled = -4119;
inline constexpr std::int32_t none = -4142;
}  // namespace line_style

namespace line_weight {
inline constexpr std::int32_t hairline = 1;
inline constexpr std::int32_t thin = 2;
inline constexpr std::int32_t thick = 4;
inline constexpr std::int32_t medium = -4138;
}  // namespace line_weight

// How Find searches.
namespace look_at {
inline constexpr std::int32_t whole = 1;
}
namespace look_in {
inline constexpr std::int32_t comments = -4144;
inline constexpr std::int32_t values = -4163;
}  // namespace look_in
namespace search_direction {
inline constexpr std::int32_t previous = 2;
}
namespace search_order {
inline constexpr std::int32_t by_rows = 1;
inline constexpr std::int32_t by_columns = 2;
}  // namespace search_order

namespace ole_type {
inline constexpr std::int32_t linked = 0;
inline constexpr std::int32_t embedded = 1;
}  // namespace ole_type

namespace paste {
inline constexpr std::int32_t all = -4104;
inline constexpr std::int32_t formats = -4122;
inline constexpr std::int32_t formulas = -4123;
inline constexpr std::int32_t comments = -4144;
inline constexpr std::int32_t values = -4163;
}  // namespace paste

namespace sheet_type {
inline constexpr std::int32_t worksheet = -4167;
}

// Where the neighbours of cells go.
namespace shift {
inline constexpr std::int32_t down = -4121;
inline constexpr std::int32_t to_left = -4159;
inline constexpr std::int32_t to_right = -4161;
inline constexpr std::int32_t up = -4162;
}  // namespace shift

namespace special_cells {
inline constexpr std::int32_t constants = 2;
inline constexpr std::int32_t blanks = 4;
inline constexpr std::int32_t last = 11;
inline constexpr std::int32_t visible = 12;
inline constexpr std::int32_t formulas = -4123;
inline constexpr std::int32_t comments = -4144;
}  // namespace special_cells

// What SpecialCells chooses among constants and formulas, added together.
namespace special_values {
inline constexpr std::int32_t numbers = 1;
inline constexpr std::int32_t texts = 2;
inline constexpr std::int32_t truths = 4;
inline constexpr std::int32_t errors = 16;
inline constexpr std::int32_t any = numbers | texts | truths | errors;
}  // namespace special_values

namespace underline {
inline constexpr std::int32_t single = 2;
inline constexpr std::int32_t doubled = -4119;
inline constexpr std::int32_t none = -4142;
}  // namespace underline

// Of a sheet.
namespace visibility {
inline constexpr std::int32_t visible = -1;
inline constexpr std::int32_t hidden = 0;
inline constexpr std::int32_t very_hidden = 2;
}  // namespace visibility

}  // namespace numbers
}  // namespace qor
