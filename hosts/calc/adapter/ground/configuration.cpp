#include "hosts/calc/adapter/ground/configuration.hpp"

#include <com/sun/star/configuration/theDefaultProvider.hpp>
#include <com/sun/star/container/XNameReplace.hpp>
#include <com/sun/star/util/XChangesBatch.hpp>

#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"

namespace qor::calc {

Configuration::Configuration(const Context& context, std::u16string_view node) {
    const Ref provider{css::configuration::theDefaultProvider::get(context.reference())};
    node_ = Ref<css::container::XNameAccess>(Ref{provider->createInstanceWithArguments(
        "com.sun.star.configuration.ConfigurationUpdateAccess",
        sequence_of<css::uno::Any>({css::uno::Any(named_value("nodepath", to_uno(node)))}))});
}

css::uno::Any Configuration::value(const char* name) const {
    return node_->getByName(rtl::OUString::createFromAscii(name));
}

std::u16string Configuration::text(const char* name) const {
    rtl::OUString text;
    value(name) >>= text;
    return from_uno(text);
}

void Configuration::set_value(const char* name, const css::uno::Any& value) const {
    Ref<css::container::XNameReplace>(node_)->replaceByName(rtl::OUString::createFromAscii(name), value);
    commit();
}

void Configuration::commit() const {
    Ref<css::util::XChangesBatch>(node_)->commitChanges();
}

}  // namespace qor::calc
