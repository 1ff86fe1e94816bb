#include "hosts/calc/adapter/sheets/sheet_list.hpp"

#include <algorithm>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <set>

#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/adapter/sheets/sheet_marks.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

std::set<std::u16string> names_in_capitals(const Book& book) {
    std::set<std::u16string> names;
    for (const rtl::OUString& name : Ref(book.document->getSheets())->getElementNames()) {
        names.insert(to_upper(view_of(name)));
    }
    return names;
}

std::u16string unused_name(const std::set<std::u16string>& taken) {
    for (std::size_t number = taken.size() + 1;; ++number) {
        const std::string digits = std::to_string(number);
        std::u16string name = u"Sheet" + std::u16string(digits.begin(), digits.end());
        if (!taken.contains(to_upper(name))) return name;
    }
}

void remove_from_book(const Sheet& sheet) {
    const std::u16string name = sheet.name();
    Ref(sheet.book.document->getSheets())->removeByName(to_uno(name));
    remove_sheet_marks(sheet.book, name);
}

}  // namespace

Sheet sheet_at(const Book& book, std::int32_t place) {
    const Ref<css::container::XIndexAccess> sheets(Ref{book.document->getSheets()});
    if (place < 0 || place >= sheets->getCount()) throw Error(ErrorNumber::subscript_out_of_range);
    return {book, Ref<css::sheet::XSpreadsheet>(sheets->getByIndex(place))};
}

// The office itself would let programs do it.
void before_structure_change(const Book& book) {
    if (Ref<css::util::XProtectable>(book.document)->isProtected()) {
        throw Error(ErrorNumber::host_refused, {}, u"Workbook is protected and cannot be changed.");
    }
    before_change(book);
}

Sheet insert_sheets(const Book& book, std::int32_t place, std::int32_t count) {
    if (count < 1) throw Error(ErrorNumber::host_refused);
    before_structure_change(book);
    std::set<std::u16string> taken = names_in_capitals(book);
    const Ref sheets{book.document->getSheets()};
    std::u16string name;
    // The last one inserted comes to stand first.
    for (std::int32_t i = 0; i < count; ++i) {
        name = unused_name(taken);
        taken.insert(to_upper(name));
        sheets->insertNewByName(to_uno(name), static_cast<sal_Int16>(place));
    }
    Sheet first = book.sheet(name);
    if (has_visible_window(book.document)) activate_sheet(first);
    return first;
}

void rename_sheet(const Sheet& sheet, std::u16string_view name) {
    constexpr std::size_t longest_name = 31;
    const auto refused = [] {
        throw Error(ErrorNumber::host_refused, {},
                    u"While renaming a sheet, an invalid name was given, or one that another sheet has.");
    };
    if (name.empty() || name.size() > longest_name) refused();
    if (name.find_first_of(u":\\/?*[]") != std::u16string_view::npos) refused();
    if (name.front() == u'\'' || name.back() == u'\'') refused();
    if (equal_ignoring_case(name, u"History")) refused();  // Excel keeps it for its list of changes
    const std::u16string old_name = sheet.name();
    if (old_name == name) return;
    if (!equal_ignoring_case(old_name, name) && names_in_capitals(sheet.book).contains(to_upper(name))) refused();
    before_structure_change(sheet.book);
    Ref<css::container::XNamed>(sheet.sheet)->setName(to_uno(name));
    if (sheet.name() != name) refused();
    move_sheet_marks(sheet.book, old_name, std::u16string(name));
}

void require_other_visible_sheet(const Sheet& sheet) {
    const std::vector<Sheet> all = sheet.book.sheets();
    const auto visible =
        std::ranges::count_if(all, [](const Sheet& each) { return get_property<bool>(each.sheet, "IsVisible"); });
    if (visible > 1 || !get_property<bool>(sheet.sheet, "IsVisible")) return;
    throw Error(ErrorNumber::host_refused, {}, u"A workbook must contain at least one visible worksheet.");
}

void delete_sheet(const Sheet& sheet) {
    require_other_visible_sheet(sheet);
    before_structure_change(sheet.book);
    remove_from_book(sheet);
}

}  // namespace qor::calc
