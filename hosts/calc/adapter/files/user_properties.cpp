#include "hosts/calc/adapter/files/user_properties.hpp"

#include <algorithm>
#include <array>
#include <com/sun/star/beans/PropertyAttribute.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/document/XDocumentPropertiesSupplier.hpp>
#include <com/sun/star/util/Date.hpp>

#include "hosts/calc/adapter/ground/office_dates.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"

namespace qor::calc {
namespace {

// What file formats keep among the user's properties: built-in ones of Excel that the office lacks, and facts about the
// program that wrote the file.
constexpr std::array kept_by_formats{
    u"OOXMLCorePropertyCategory",
    u"OOXMLCorePropertyContentStatus",
    u"OOXMLCorePropertyContentType",
    u"AppVersion",
    u"Application",
    u"CharactersWithSpaces",
    u"Company",
    u"ContentType",
    u"DocSecurity",
    u"HyperlinkBase",
    u"HyperlinksChanged",
    u"LinksUpToDate",
    u"Manager",
    u"ScaleCrop",
    u"ShareDoc",
};
constexpr std::u16string_view kept_by_adapter = u"QORPlus";

bool is_of_user(std::u16string_view name) {
    return !name.starts_with(kept_by_adapter) && std::ranges::find(kept_by_formats, name) == kept_by_formats.end();
}

Variant from_office(const css::uno::Any& value) {
    rtl::OUString text;
    if (value >>= text) return from_uno(text);
    bool truth = false;
    if (value >>= truth) return truth;
    double number = 0;
    if (value >>= number) return number;
    css::util::DateTime time;
    if (value >>= time) {
        const auto date = date_of(time);
        return date ? Variant(*date) : Variant();
    }
    css::util::Date day;
    if (value >>= day) {
        const auto date = date_of({0, 0, 0, 0, day.Day, day.Month, day.Year, false});
        return date ? Variant(*date) : Variant();
    }
    return {};
}

// Of numbers the office takes doubles only.
css::uno::Any to_office(const Variant& value) {
    if (const auto* text = value.get_if<std::u16string>()) return css::uno::Any(to_uno(*text));
    if (const auto* truth = value.get_if<bool>()) return css::uno::Any(*truth);
    if (const auto* date = value.get_if<Date>()) return css::uno::Any(office_time(*date));
    return css::uno::Any(to_double(value));
}

}  // namespace

Ref<css::document::XDocumentProperties> document_properties(const Book& book) {
    return Ref<css::document::XDocumentPropertiesSupplier>(book.document)->getDocumentProperties();
}

UserProperties::UserProperties(const Book& book) : properties_(document_properties(book)->getUserDefinedProperties()) {}

std::vector<std::u16string> UserProperties::names() const {
    std::vector<std::u16string> result;
    for (const auto& property :
         Ref { Ref<css::beans::XPropertySet>(properties_)->getPropertySetInfo() } -> getProperties()) {
        if (is_of_user(view_of(property.Name))) result.push_back(from_uno(property.Name));
    }
    return result;
}

rtl::OUString UserProperties::spelled(std::u16string_view name) const {
    for (const auto& property :
         Ref { Ref<css::beans::XPropertySet>(properties_)->getPropertySetInfo() } -> getProperties()) {
        if (equal_ignoring_case(view_of(property.Name), name)) return property.Name;
    }
    return {};
}

bool UserProperties::has(std::u16string_view name) const {
    return !spelled(name).isEmpty();
}

Variant UserProperties::value(std::u16string_view name) const {
    const rtl::OUString own = spelled(name);
    if (own.isEmpty()) return {};
    return from_office(Ref<css::beans::XPropertySet>(properties_)->getPropertyValue(own));
}

void UserProperties::set_value(std::u16string_view name, const Variant& value) const {
    const rtl::OUString own = spelled(name);
    const css::uno::Any given = to_office(value);
    if (!own.isEmpty()) {
        const Ref<css::beans::XPropertySet> values(properties_);
        if (values->getPropertyValue(own).getValueType() == given.getValueType()) {
            values->setPropertyValue(own, given);
            return;
        }
        // The office keeps the kind of a property that it has.
        properties_->removeProperty(own);
    }
    properties_->addProperty(own.isEmpty() ? to_uno(name) : own, css::beans::PropertyAttribute::REMOVABLE, given);
}

void UserProperties::remove(std::u16string_view name) const {
    properties_->removeProperty(spelled(name));
}

}  // namespace qor::calc
