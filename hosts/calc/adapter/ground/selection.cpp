#include "hosts/calc/adapter/ground/selection.hpp"

#include <algorithm>
#include <com/sun/star/sheet/XSelectedSheetsSupplier.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>
#include <set>

#include "hosts/calc/adapter/ground/command.hpp"
#include "hosts/calc/uno/sequence.hpp"

namespace qor::calc {
namespace {

using Controller = Ref<css::frame::XController>;

// The numbers in a part of the view's state, such as "3/0/0"; large rows make the separator a plus sign.
std::vector<std::int32_t> numbers_in(std::u16string_view text) {
    std::vector<std::int32_t> result(1);
    for (const char16_t c : text) {
        if (c == u'/' || c == u'+') {
            result.push_back(0);
        } else if (c >= u'0' && c <= u'9') {
            result.back() = result.back() * 10 + (c - u'0');
        }
    }
    return result;
}

std::u16string_view field(std::u16string_view text, std::size_t place) {
    for (; place > 0; --place) text.remove_prefix(std::min(text.find(u';'), text.size() - 1) + 1);
    return text.substr(0, text.find(u';'));
}

}  // namespace

std::optional<RangeAreas> selected_areas(const Book& book, const Controller& controller) {
    const css::uno::Any selection = Ref<css::view::XSelectionSupplier>(controller)->getSelection();
    if (const Ref<css::sheet::XSheetCellRange> one{selection}) {
        return RangeAreas{{book, one->getSpreadsheet()}, {Cells(one)}};
    }
    const Ref<css::sheet::XSheetCellRanges> several(selection);
    if (!several) return {};
    std::optional<RangeAreas> result;
    const std::vector<Sheet> sheets = book.sheets();
    for (const css::table::CellRangeAddress& at : several->getRangeAddresses()) {
        if (!result) result = RangeAreas{sheets.at(static_cast<std::size_t>(at.Sheet)), {}};
        result->areas.push_back(cells_at(result->sheet, {at.StartColumn, at.StartRow, at.EndColumn, at.EndRow}));
    }
    return result;
}

// Of the cursor the office tells only in the text that it saves with the document: the second field is the number of
// the active sheet, the one for a sheet follows in its place from the fourth on and begins with column and row.
RangeAreas active_cell(const Book& book, const Controller& controller) {
    const auto state = value_of<rtl::OUString>(controller->getViewData());
    const std::u16string_view text = view_of(state);
    const auto active = static_cast<std::size_t>(numbers_in(field(text, 1)).front());
    const std::vector<std::int32_t> cursor = numbers_in(field(text, 3 + active));
    if (cursor.size() < 2) throw Error(ErrorNumber::host_refused);
    const Sheet sheet{book, Ref<css::sheet::XSpreadsheetView>(controller)->getActiveSheet()};
    return range_at(sheet, {cursor[0], cursor[1], cursor[0], cursor[1]});
}

void select(const RangeAreas& areas) {
    const Book& book = areas.sheet.book;
    const Ref controller{book.model()->getCurrentController()};
    activate_sheet(areas.sheet);
    const Ref<css::view::XSelectionSupplier> supplier(controller);
    if (!supplier->select(css::uno::Any(areas.whole().reference()))) throw Error(ErrorNumber::host_refused);
}

void select_sheets(const Book& book, std::vector<std::int32_t> indices, bool replace) {
    const Ref<css::sheet::XSelectedSheetsSupplier> view(Ref{book.model()->getCurrentController()});
    if (!replace) {
        const auto selected = view->getSelectedSheets();
        indices.insert(indices.begin(), selected.begin(), selected.end());
    }
    const std::vector<Sheet> sheets = book.sheets();
    for (const std::int32_t index : indices) {
        if (!get_property<bool>(sheets.at(static_cast<std::size_t>(index)).sheet, "IsVisible")) {
            throw Error(ErrorNumber::host_refused);
        }
    }
    const css::uno::Sequence<sal_Int32> tables(indices.data(), static_cast<sal_Int32>(indices.size()));
    run_command(book, ".uno:SelectTables", sequence_of({named_value("Tables", tables)}));
    const auto selected = view->getSelectedSheets();
    const std::set<std::int32_t> wanted(indices.begin(), indices.end());
    if (wanted != std::set<std::int32_t>(selected.begin(), selected.end())) throw Error(ErrorNumber::host_refused);
}

void activate_sheet(const Sheet& sheet) {
    const Ref<css::sheet::XSpreadsheetView> view(Ref{sheet.book.model()->getCurrentController()});
    const auto active_index = [&] { return Sheet{sheet.book, view->getActiveSheet()}.index(); };
    const std::int32_t index = sheet.index();
    if (active_index() == index) return;
    view->setActiveSheet(sheet.sheet.reference());
    if (active_index() != index) throw Error(ErrorNumber::host_refused);
}

}  // namespace qor::calc
