#include "hosts/calc/adapter/cells/rich_texts.hpp"

#include <algorithm>
#include <com/sun/star/beans/PropertyAttribute.hpp>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/text/ControlCharacter.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextField.hpp>
#include <limits>

#include "hosts/calc/adapter/ground/cell_query.hpp"
#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {
namespace {

using Enumerable = Ref<css::container::XEnumerationAccess>;

// The properties that can be written, of those that `wanted` tells by their names.
template <class Wanted>
PropertyValues properties_of(const Ref<css::uno::XInterface>& object, Wanted wanted) {
    const Ref<css::beans::XPropertySet> properties(object);
    std::vector<css::beans::PropertyValue> result;
    for (const css::beans::Property& property : Ref(properties->getPropertySetInfo())->getProperties()) {
        if (property.Attributes & css::beans::PropertyAttribute::READONLY || !wanted(property.Name)) continue;
        result.emplace_back(property.Name, 0, properties->getPropertyValue(property.Name),
                            css::beans::PropertyState_DIRECT_VALUE);
    }
    return {result.data(), static_cast<sal_Int32>(result.size())};
}

// Looks of characters. Those that only repeat a part of another would make it a different one when they are set.
bool is_look(const rtl::OUString& name) {
    if (name == "CharTransparence" || (name.startsWith("CharColor") && name != "CharColor")) return false;
    return name.startsWith("Char");
}

// The cursor takes sixteen bits at a time.
void go_right(const Ref<css::text::XTextCursor>& cursor, std::int32_t length, bool selects) {
    constexpr std::int32_t longest = std::numeric_limits<sal_Int16>::max();
    for (; length > 0; length -= longest) {
        cursor->goRight(static_cast<sal_Int16>(std::min(length, longest)), selects);
    }
}

rtl::OUString service_of(const Ref<css::text::XTextField>& field) {
    for (const rtl::OUString& name : Ref<css::lang::XServiceInfo>(field)->getSupportedServiceNames()) {
        if (name.startsWith("com.sun.star.text.textfield.") || name.startsWith("com.sun.star.text.TextField.")) {
            return name;
        }
    }
    throw Error(ErrorNumber::host_refused);
}

}  // namespace

RichTexts::RichTexts(const Sheet& sheet, const Cells& cells) : sheet_(sheet), cells_(cells) {
    const CellPlaces places = content_places(cells, css::sheet::CellFlags::FORMATTED);
    if (places.empty()) return;
    const Rectangle area = rectangle_of(cells);
    for (const css::table::CellRangeAddress& at : places) {
        for (std::int32_t row = at.StartRow - area.top; row <= at.EndRow - area.top; ++row) {
            for (std::int32_t column = at.StartColumn - area.left; column <= at.EndColumn - area.left; ++column) {
                const Ref<css::uno::XInterface> cell(Ref{cells->getCellByPosition(column, row)});
                texts_.push_back({column, row, paragraphs_of(cell)});
            }
        }
    }
}

RichTexts::Part RichTexts::part_of(const Ref<css::uno::XInterface>& portion) {
    Part part;
    const Ref<css::beans::XPropertyState> states(portion);
    part.looks = properties_of(portion, [&](const rtl::OUString& name) {
        return is_look(name) && states->getPropertyState(name) == css::beans::PropertyState_DIRECT_VALUE;
    });
    if (get_property<rtl::OUString>(portion, "TextPortionType") == "TextField") {
        const auto field = get_property<Ref<css::text::XTextField>>(portion, "TextField");
        part.field = service_of(field);
        part.settings = properties_of(Ref<css::uno::XInterface>(field), [](const rtl::OUString&) { return true; });
    } else {
        part.text = Ref<css::text::XTextRange>(portion)->getString();
    }
    return part;
}

std::vector<std::vector<RichTexts::Part>> RichTexts::paragraphs_of(const Ref<css::uno::XInterface>& cell) {
    std::vector<std::vector<Part>> result;
    const Ref paragraphs{Enumerable(cell)->createEnumeration()};
    while (paragraphs->hasMoreElements()) {
        result.emplace_back();
        const Ref portions{Enumerable(paragraphs->nextElement())->createEnumeration()};
        while (portions->hasMoreElements()) {
            result.back().push_back(part_of(Ref<css::uno::XInterface>(portions->nextElement())));
        }
    }
    return result;
}

void RichTexts::put_back() const {
    for (const Text& text : texts_) write(text);
}

// The characters first and then their looks, which what is added behind them would take over.
void RichTexts::write(const Text& text) const {
    const Ref<css::text::XText> cell(Ref{cells_->getCellByPosition(text.column, text.row)});
    cell->setString({});
    const Ref cursor{cell->createTextCursor()};
    const Ref<css::text::XTextRange> place(cursor);
    const Ref<css::lang::XMultiServiceFactory> factory(sheet_.book.document);
    for (std::size_t paragraph = 0; paragraph < text.paragraphs.size(); ++paragraph) {
        cursor->gotoEnd(false);
        if (paragraph > 0) {
            cell->insertControlCharacter(place.reference(), css::text::ControlCharacter::PARAGRAPH_BREAK, false);
        }
        for (const Part& part : text.paragraphs[paragraph]) {
            cursor->gotoEnd(false);
            if (part.field.isEmpty()) {
                cell->insertString(place.reference(), part.text, false);
                continue;
            }
            const Ref<css::text::XTextContent> field(Ref{factory->createInstance(part.field)});
            // Fields name properties, too, that only those of other kinds take.
            for (const css::beans::PropertyValue& setting : part.settings) {
                attempt([&] {
                    guarded(
                        [&] { Ref<css::beans::XPropertySet>(field)->setPropertyValue(setting.Name, setting.Value); });
                });
            }
            cell->insertTextContent(place.reference(), field.reference(), false);
        }
    }
    cursor->gotoStart(false);
    const Ref<css::beans::XPropertySet> looks(cursor);
    for (const std::vector<Part>& paragraph : text.paragraphs) {
        for (const Part& part : paragraph) {
            go_right(cursor, part.field.isEmpty() ? part.text.getLength() : 1, true);
            for (const css::beans::PropertyValue& look : part.looks) looks->setPropertyValue(look.Name, look.Value);
            cursor->collapseToEnd();
        }
        go_right(cursor, 1, false);  // over the paragraph's end
    }
}

}  // namespace qor::calc
