#include "hosts/calc/adapter/sheets/sheet_marks.hpp"

#include <com/sun/star/beans/PropertyAttribute.hpp>
#include <com/sun/star/beans/XPropertyContainer.hpp>
#include <com/sun/star/document/XDocumentPropertiesSupplier.hpp>
#include <map>

#include "hosts/calc/uno/property.hpp"

namespace qor::calc {
namespace {

constexpr const char* property_name = "QORPlusSheetMarks";

// In the text of the property one letter stands for each mark that is set.
constexpr char16_t very_hidden = u'v';
constexpr char16_t protection_known = u'p';
constexpr char16_t contents = u'c';
constexpr char16_t drawing_objects = u'd';
constexpr char16_t scenarios = u's';
constexpr char16_t transition_form_entry = u't';

using MarksByName = std::map<std::u16string, SheetMarks>;

Ref<css::beans::XPropertyContainer> user_properties(const Book& book) {
    const Ref properties{Ref<css::document::XDocumentPropertiesSupplier>(book.document)->getDocumentProperties()};
    return properties->getUserDefinedProperties();
}

bool is_stored(const Ref<css::beans::XPropertyContainer>& properties) {
    const Ref info{Ref<css::beans::XPropertySet>(properties)->getPropertySetInfo()};
    return info->hasPropertyByName(rtl::OUString::createFromAscii(property_name));
}

// The letters, and behind another slash the scroll area.
SheetMarks marks_from(std::u16string_view text) {
    const std::size_t slash = std::min(text.find(u'/'), text.size());
    const std::u16string_view letters = text.substr(0, slash);
    const auto has = [&](char16_t letter) { return letters.find(letter) != std::u16string_view::npos; };
    SheetMarks marks{.very_hidden = has(very_hidden),
                     .protection = {},
                     .transition_form_entry = has(transition_form_entry),
                     .scroll_area = std::u16string(text.substr(std::min(slash + 1, text.size())))};
    if (has(protection_known)) marks.protection = {has(contents), has(drawing_objects), has(scenarios)};
    return marks;
}

std::u16string text_of(const SheetMarks& marks) {
    std::u16string letters;
    if (marks.very_hidden) letters += very_hidden;
    if (marks.protection) {
        letters += protection_known;
        if (marks.protection->contents) letters += contents;
        if (marks.protection->drawing_objects) letters += drawing_objects;
        if (marks.protection->scenarios) letters += scenarios;
    }
    if (marks.transition_form_entry) letters += transition_form_entry;
    if (!marks.scroll_area.empty()) letters.append(u"/").append(marks.scroll_area);
    return letters;
}

// One line a sheet: its name, a slash, which no name can hold, and its marks.
MarksByName read_all(const Book& book) {
    MarksByName result;
    const auto properties = user_properties(book);
    if (!is_stored(properties)) return result;
    const auto stored = get_property<rtl::OUString>(properties, property_name);
    std::u16string_view text = view_of(stored);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(u'\n'), text.size());
        const std::u16string_view line = text.substr(0, end);
        const std::size_t slash = std::min(line.find(u'/'), line.size());
        result[std::u16string(line.substr(0, slash))] = marks_from(line.substr(std::min(slash + 1, line.size())));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result;
}

void write_all(const Book& book, const MarksByName& all) {
    std::u16string text;
    for (const auto& [name, marks] : all) {
        if (marks != SheetMarks{}) text.append(name).append(u"/").append(text_of(marks)).append(u"\n");
    }
    const auto properties = user_properties(book);
    if (is_stored(properties)) {
        set_property(properties, property_name, to_uno(text));
    } else if (!text.empty()) {
        properties->addProperty(rtl::OUString::createFromAscii(property_name), css::beans::PropertyAttribute::REMOVABLE,
                                css::uno::Any(to_uno(text)));
    }
}

}  // namespace

SheetMarks sheet_marks(const Sheet& sheet) {
    const MarksByName all = read_all(sheet.book);
    const auto found = all.find(sheet.name());
    return found == all.end() ? SheetMarks{} : found->second;
}

void set_sheet_marks(const Sheet& sheet, const SheetMarks& marks) {
    MarksByName all = read_all(sheet.book);
    SheetMarks& stored = all[sheet.name()];
    if (stored == marks) return;
    stored = marks;
    write_all(sheet.book, all);
}

void move_sheet_marks(const Book& book, const std::u16string& from, const std::u16string& to) {
    MarksByName all = read_all(book);
    if (auto moved = all.extract(from)) {
        moved.key() = to;
        all.insert(std::move(moved));
        write_all(book, all);
    }
}

void remove_sheet_marks(const Book& book, const std::u16string& name) {
    MarksByName all = read_all(book);
    if (all.erase(name) > 0) write_all(book, all);
}

}  // namespace qor::calc
