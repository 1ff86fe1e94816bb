#include "hosts/calc/adapter/ground/defined_names.hpp"

#include <algorithm>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeReferrer.hpp>

#include "hosts/calc/adapter/ground/selection.hpp"
#include "hosts/calc/adapter/ground/write_guard.hpp"
#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

using Names = Ref<css::sheet::XNamedRanges>;

[[noreturn]] void refuse(std::u16string_view name, std::u16string_view reason) {
    throw Error(ErrorNumber::host_refused, {}, u"The name '" + std::u16string(name) + u"' " + std::u16string(reason));
}

Names names_of(const Ref<css::uno::XInterface>& owner) {
    return get_property<Names>(owner, "NamedRanges");
}
Names names_of(const Book& book) {
    return names_of(Ref<css::uno::XInterface>(book.document));
}
Names names_of(const Sheet& sheet) {
    return names_of(Ref<css::uno::XInterface>(sheet.sheet));
}

// The office keeps some names of its own among those of the user.
bool is_of_user(std::u16string_view name) {
    return !name.starts_with(u"_xlnm");
}

void add_all(std::vector<DefinedName>& result, const Book& book, const Names& names, const std::u16string& sheet) {
    for (const rtl::OUString& name : names->getElementNames()) {
        if (is_of_user(view_of(name))) {
            result.push_back({book, names, Ref<css::sheet::XNamedRange>(names->getByName(name)), sheet});
        }
    }
}

std::u16string calc_formula(const Book& book, std::u16string_view name, const std::u16string& formula) {
    if (!is_closed(formula)) refuse(name, u"cannot stand for that formula.");
    const std::u16string with_sign = formula.starts_with(u'=') ? formula : u"=" + formula;
    return book.host->translator().to_calc(with_sign).substr(1);
}

struct NameParts {
    std::u16string sheet;
    std::u16string name;
};

NameParts parts_of(std::u16string_view text) {
    const std::size_t mark = text.rfind(u'!');
    if (mark == std::u16string_view::npos) return {{}, std::u16string(text)};
    std::u16string sheet(text.substr(0, mark));
    std::size_t position = 0;
    if (sheet.starts_with(u'\'')) sheet = take_quoted(std::u16string(sheet), position);
    return {std::move(sheet), std::u16string(text.substr(mark + 1))};
}

std::optional<DefinedName> find_name(const Book& book, std::u16string_view text) {
    const NameParts wanted = parts_of(text);
    for (DefinedName& name : defined_names(book)) {
        const rtl::OUString own = name.range->getName();
        if (equal_ignoring_case(view_of(own), wanted.name) && equal_ignoring_case(name.sheet, wanted.sheet)) {
            return std::move(name);
        }
    }
    return {};
}

}  // namespace

std::u16string DefinedName::text() const {
    const rtl::OUString name = range->getName();
    if (!siblings->hasByName(name)) throw Error(ErrorNumber::host_refused);
    if (sheet.empty()) return from_uno(name);
    return (needs_quotes(sheet) ? in_quotes(sheet) : sheet) + u"!" + from_uno(name);
}

std::u16string DefinedName::refers_to() const {
    static_cast<void>(text());
    return book.host->translator().to_excel(u"=" + from_uno(range->getContent()));
}

void DefinedName::set_refers_to(const std::u16string& formula) const {
    const std::u16string content = calc_formula(book, text(), formula);
    before_change(book);
    range->setContent(to_uno(content));
}

RangeAreas DefinedName::cells() const {
    const std::u16string name = text();
    const Ref<css::sheet::XCellRangeReferrer> referrer(range);
    const Ref<css::table::XCellRange> found{referrer->getReferredCells()};
    // The office still answers some cells where they are gone.
    const bool gone = refers_to().find(u"#REF!") != std::u16string::npos;
    if (!found || gone) refuse(name, u"stands for no range.");
    const auto place = static_cast<std::size_t>(Ref<css::sheet::XCellRangeAddressable>(found)->getRangeAddress().Sheet);
    return {book.sheets().at(place), {found}};
}

void DefinedName::remove() const {
    static_cast<void>(text());
    before_change(book);
    siblings->removeByName(range->getName());
}

std::vector<DefinedName> defined_names(const Book& book) {
    std::vector<DefinedName> result;
    add_all(result, book, names_of(book), {});
    for (const Sheet& sheet : book.sheets()) add_all(result, book, names_of(sheet), sheet.name());
    const auto by_alphabet = [](const DefinedName& name) { return to_upper(view_of(name.range->getName())); };
    std::ranges::stable_sort(result, {}, by_alphabet);
    return result;
}

DefinedName defined_name(const Book& book, std::u16string_view text) {
    auto found = find_name(book, text);
    if (!found) refuse(text, u"is not defined.");
    return *std::move(found);
}

std::optional<DefinedName> name_of_cells(const RangeAreas& areas) {
    if (areas.areas.size() != 1) return {};
    const auto wanted = Ref<css::sheet::XCellRangeAddressable>(areas.areas.front())->getRangeAddress();
    for (DefinedName& name : defined_names(areas.sheet.book)) {
        const Ref<css::sheet::XCellRangeAddressable> cells(
            Ref{Ref<css::sheet::XCellRangeReferrer>(name.range)->getReferredCells()});
        const bool same = cells && cells->getRangeAddress() == wanted;
        // Names whose cells are gone still answer some.
        if (same && attempt([&] { static_cast<void>(name.cells()); }) == 0) return std::move(name);
    }
    return {};
}

DefinedName define_name(const Book& book, std::u16string_view text, const std::u16string& formula) {
    if (auto known = find_name(book, text)) {
        known->set_refers_to(formula);
        return *std::move(known);
    }
    const NameParts parts = parts_of(text);
    const Names names = parts.sheet.empty() ? names_of(book) : names_of(book.sheet(parts.sheet));
    const std::u16string content = calc_formula(book, text, formula);
    const RangeAreas base = active_cell(book, Ref{book.model()->getCurrentController()});
    const Rectangle cell = base.rectangle();
    const css::table::CellAddress place(static_cast<sal_Int16>(base.sheet.index()), cell.left, cell.top);
    before_change(book);
    const std::int32_t failed =
        attempt([&] { guarded([&] { names->addNewByName(to_uno(parts.name), to_uno(content), place, 0); }); });
    if (failed != 0) refuse(text, u"cannot be defined.");
    return defined_name(book, text);
}

}  // namespace qor::calc
