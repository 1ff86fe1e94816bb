#pragma once

#include <com/sun/star/table/CellAddress.hpp>

#include "automation/member_names.hpp"
#include "automation/variant.hpp"
#include "hosts/calc/adapter/ground/book.hpp"
#include "hosts/calc/adapter/ground/defined_names.hpp"
#include "hosts/calc/adapter/ground/range_areas.hpp"

// How the objects of the model make one another.
namespace qor::calc {

Object make_workbooks(HostPointer host);
Object make_workbook(Book book);
Object make_window(Book book, Ref<css::frame::XController> controller);
// The windows of one workbook, or of all when it is empty.
Object make_windows(HostPointer host, std::optional<Book> book);
// All sheets of a workbook, or the ones given.
Object make_sheets(Book book);
Object make_sheets(Book book, std::vector<Sheet> chosen);
Object make_worksheet(Sheet sheet);
// The sheet of a worksheet that is given as an argument; raises 1004 when it is none.
const Sheet& sheet_of(const Variant& value);
Object make_range(RangeAreas areas);
Object make_areas(RangeAreas areas);
Object make_font(RangeAreas areas);
Object make_interior(RangeAreas areas);
Object make_borders(RangeAreas areas);
Object make_comment(Sheet sheet, css::table::CellAddress cell);
Object make_comments(Sheet sheet);
Object make_hyperlinks(RangeAreas areas);
Object make_format_conditions(RangeAreas areas);
Object make_shapes(Sheet sheet);
Object make_chart_objects(Sheet sheet);
Object make_ole_objects(Sheet sheet);
Object make_command_bars(HostPointer host);
Object make_worksheet_function(HostPointer host);
Object make_recent_files(HostPointer host);
Object make_companion_book(HostPointer host);
Object make_name(DefinedName name);
Object make_names(Book book);
Object make_built_in_properties(Book book);
Object make_custom_properties(Book book);

// The application, or the property of it that most objects repeat.
Object make_application(HostPointer host);

// What the user has selected in this window; Nothing when it is no range of cells.
Object selection_of(const Book& book, const Ref<css::frame::XController>& controller);
// The chart whose object is selected in the workbook's current window; Nothing when none is.
Object active_chart_of(const Book& book);
Object active_cell_of(const Book& book, const Ref<css::frame::XController>& controller);

}  // namespace qor::calc
