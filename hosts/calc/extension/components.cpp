#include <cppuhelper/weak.hxx>

#include "hosts/calc/companion/companion_service.hpp"
#include "hosts/calc/functions/add_in.hpp"
#include "hosts/calc/session/session_service.hpp"
#include "hosts/calc/uno/sanitizer.hpp"

// The constructors that the extension's list of components names.

namespace {

using com::sun::star::uno::Any;
using com::sun::star::uno::Reference;
using com::sun::star::uno::Sequence;
using com::sun::star::uno::XComponentContext;
using com::sun::star::uno::XInterface;
using qor::calc::Context;

Context in_office(XComponentContext* context) {
    return Reference<XComponentContext>(context);
}

XInterface* counted(const Reference<XInterface>& object) {
    object->acquire();
    return object.get();
}

}  // namespace

extern "C" SAL_DLLPUBLIC_EXPORT XInterface* qorplus_functions(XComponentContext* context, const Sequence<Any>&) {
    qor::calc::keep_sanitizer_in_this_process();
    return counted(qor::calc::function_add_in(in_office(context)));
}

extern "C" SAL_DLLPUBLIC_EXPORT XInterface* qorplus_session(XComponentContext* context, const Sequence<Any>&) {
    qor::calc::keep_sanitizer_in_this_process();
    return counted(qor::calc::make_session_service(in_office(context)));
}

extern "C" SAL_DLLPUBLIC_EXPORT XInterface* qorplus_companion(XComponentContext* context, const Sequence<Any>&) {
    qor::calc::keep_sanitizer_in_this_process();
    return counted(qor::calc::make_companion_service(in_office(context)));
}
