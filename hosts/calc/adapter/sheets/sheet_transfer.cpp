#include "hosts/calc/adapter/sheets/sheet_transfer.hpp"

#include <algorithm>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/sheet/XSpreadsheets2.hpp>

#include "hosts/calc/adapter/files/documents.hpp"
#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/ground/undo_step.hpp"
#include "hosts/calc/adapter/sheets/sheet_list.hpp"
#include "hosts/calc/adapter/sheets/sheet_marks.hpp"
#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

constexpr const char* visible_property = "IsVisible";

bool has_sheet(const Book& book, std::u16string_view name) {
    return attempt([&] { static_cast<void>(book.sheet(name)); }) == 0;
}

// "Name (2)", or the next number that is free; a number that the name has already is counted on.
std::u16string copy_name(const Book& book, const std::u16string& name) {
    constexpr std::size_t longest_name = 31;
    std::u16string base = name;
    int number = 2;
    if (const std::size_t open = name.rfind(u" ("); name.ends_with(u')') && open != std::u16string::npos && open > 0) {
        const std::u16string digits = name.substr(open + 2, name.size() - open - 3);
        constexpr std::size_t most_digits = 6;
        if (!digits.empty() && digits.size() <= most_digits && std::ranges::all_of(digits, is_digit)) {
            base = name.substr(0, open);
            number = std::stoi(to_utf8(digits)) + 1;
        }
    }
    for (;; ++number) {
        const std::u16string ending = u" (" + from_utf8(std::to_string(number)) + u")";
        std::u16string candidate = base.substr(0, longest_name - ending.size()) + ending;
        if (!has_sheet(book, candidate)) return candidate;
    }
}

void set_name(const Sheet& sheet, const std::u16string& name) {
    Ref<css::container::XNamed>(sheet.sheet)->setName(to_uno(name));
}

void bring_to_front(const Sheet& sheet) {
    if (!get_property<bool>(sheet.sheet, visible_property)) return;
    sheet.book.host->activate(sheet.book.document);
    activate_sheet(sheet);
}

Sheet copy_inside(const Sheet& sheet, std::int32_t index) {
    const Book& book = sheet.book;
    const std::u16string name = copy_name(book, sheet.name());
    Ref(book.document->getSheets())->copyByName(to_uno(sheet.name()), to_uno(name), static_cast<sal_Int16>(index));
    Sheet copy = book.sheet(name);
    set_property(copy.sheet, visible_property, get_property<bool>(sheet.sheet, visible_property));
    return copy;
}

Sheet import(const Sheet& sheet, const SheetPlace& place) {
    const std::u16string name = sheet.name();
    const std::u16string wanted = has_sheet(place.book, name) ? copy_name(place.book, name) : name;
    const Ref<css::sheet::XSpreadsheets2> sheets(Ref{place.book.document->getSheets()});
    UndoStep::note_unrecorded_change(place.book.document);
    const sal_Int32 index = sheets->importSheet(sheet.book.document.reference(), to_uno(name), place.index);
    Sheet copy = sheet_at(place.book, index);
    if (copy.name() != wanted) set_name(copy, wanted);
    set_property(copy.sheet, visible_property, get_property<bool>(sheet.sheet, visible_property));
    return copy;
}

// The sheets that a new workbook starts with are in the way of the name, so they go first.
Sheet import_into_new_book(const Sheet& sheet) {
    const Book book = add_book(sheet.book.host);
    const std::vector<Sheet> first_ones = book.sheets();
    Sheet copy = import(sheet, {book, 0});
    set_property(copy.sheet, visible_property, true);
    for (const Sheet& other : first_ones) delete_sheet(other);
    set_name(copy, sheet.name());
    return copy;
}

Sheet import_with_marks(const Sheet& sheet, const std::optional<SheetPlace>& place) {
    if (place) before_structure_change(place->book);
    Sheet copy = place ? import(sheet, *place) : import_into_new_book(sheet);
    set_sheet_marks(copy, sheet_marks(sheet));
    return copy;
}

}  // namespace

void copy_sheet(const Sheet& sheet, const std::optional<SheetPlace>& place) {
    const UndoStep step(u"Copy Sheet");
    if (!place || !(place->book.document == sheet.book.document)) {
        bring_to_front(import_with_marks(sheet, place));
        return;
    }
    before_structure_change(sheet.book);
    const Sheet copy = copy_inside(sheet, place->index);
    set_sheet_marks(copy, sheet_marks(sheet));
    bring_to_front(copy);
}

void move_sheet(const Sheet& sheet, const std::optional<SheetPlace>& place) {
    const UndoStep step(u"Move Sheet");
    before_structure_change(sheet.book);
    if (!place || !(place->book.document == sheet.book.document)) {
        require_other_visible_sheet(sheet);
        const Sheet moved = import_with_marks(sheet, place);
        delete_sheet(sheet);
        bring_to_front(moved);
        return;
    }
    const std::u16string name = sheet.name();
    Ref(sheet.book.document->getSheets())->moveByName(to_uno(name), static_cast<sal_Int16>(place->index));
    bring_to_front(sheet.book.sheet(name));
}

}  // namespace qor::calc
