#pragma once

#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>

#include "hosts/calc/uno/context.hpp"
#include "hosts/calc/uno/ref.hpp"
#include "hosts/calc/uno/text.hpp"

namespace qor::calc {

// A new object of the office. Empty when there is no such service or it lacks the interface.
template <class Interface>
Ref<Interface> create_service(const Context& context, const char* name) {
    const Ref factory{context->getServiceManager()};
    return Ref<Interface>(
        Ref{factory->createInstanceWithContext(rtl::OUString::createFromAscii(name), context.reference())});
}

// A new object that belongs to a document.
template <class Interface, class Document>
Ref<Interface> create_in(const Ref<Document>& document, const char* name) {
    const Ref<css::lang::XMultiServiceFactory> factory(document);
    return Ref<Interface>(Ref{factory->createInstance(rtl::OUString::createFromAscii(name))});
}

}  // namespace qor::calc
