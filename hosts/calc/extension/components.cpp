#include <com/sun/star/uno/XComponentContext.hpp>
#include <cppuhelper/weak.hxx>

#include "hosts/calc/functions/add_in.hpp"
#include "hosts/calc/session/session_service.hpp"

// The constructors that the extension's list of components names.

namespace {

using com::sun::star::uno::Any;
using com::sun::star::uno::Reference;
using com::sun::star::uno::Sequence;
using com::sun::star::uno::XComponentContext;
using com::sun::star::uno::XInterface;

XInterface* counted(const Reference<XInterface>& object) {
    object->acquire();
    return object.get();
}

}  // namespace

extern "C" SAL_DLLPUBLIC_EXPORT XInterface* qorplus_functions(XComponentContext* context, const Sequence<Any>&) {
    return counted(qor::calc::function_add_in(context));
}

extern "C" SAL_DLLPUBLIC_EXPORT XInterface* qorplus_session(XComponentContext* context, const Sequence<Any>&) {
    return counted(qor::calc::make_session_service(context));
}
