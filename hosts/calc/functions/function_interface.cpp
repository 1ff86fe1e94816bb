#include "hosts/calc/functions/function_interface.hpp"

#include <com/sun/star/uno/XInterface.hpp>
#include <cppu/unotype.hxx>
#include <typelib/typedescription.hxx>
#include <vector>

#include "functions/registry.hpp"
#include "hosts/calc/uno/text.hpp"

namespace qor::calc {
namespace {

namespace uno = com::sun::star::uno;
using rtl::OUString;

template <class Description>
void register_and_keep(Description* description) {
    typelib_typedescription_register(reinterpret_cast<typelib_TypeDescription**>(&description));
    // The reference is not given back: the type system finds a description only as long as somebody holds it.
}

// Every argument comes as it is and may be left out: a number that Calc made of it would be an error value where it
// cannot be made.
void register_method(const Function& function, const OUString& method_name, sal_Int32 position) {
    const OUString any_name("any");
    const OUString runtime_exception("com.sun.star.uno.RuntimeException");
    std::vector<OUString> names;
    for (const auto& parameter : function.parameters) names.push_back(to_uno(parameter.name));
    std::vector<typelib_Parameter_Init> parameters;
    parameters.reserve(names.size());
    for (const OUString& name : names)
        parameters.push_back({typelib_TypeClass_ANY, any_name.pData, name.pData, true, false});
    rtl_uString* exceptions[] = {runtime_exception.pData};
    typelib_InterfaceMethodTypeDescription* method = nullptr;
    typelib_typedescription_newInterfaceMethod(&method, position, false, method_name.pData, typelib_TypeClass_ANY,
                                               any_name.pData, static_cast<sal_Int32>(parameters.size()),
                                               parameters.data(), 1, exceptions);
    register_and_keep(method);
}

uno::Type register_interface() {
    const OUString name("com.ombrel.qorplus.XFunctions");
    const auto functions = worksheet_functions();
    std::vector<OUString> method_names;
    std::vector<typelib_TypeDescriptionReference*> methods(functions.size(), nullptr);
    for (std::size_t place = 0; place < functions.size(); ++place) {
        method_names.push_back(name + "::" + to_uno(functions[place].name));
        typelib_typedescriptionreference_new(&methods[place], typelib_TypeClass_INTERFACE_METHOD,
                                             method_names[place].pData);
    }
    typelib_TypeDescriptionReference* bases[] = {cppu::UnoType<uno::XInterface>::get().getTypeLibType()};
    typelib_InterfaceTypeDescription* description = nullptr;
    typelib_typedescription_newMIInterface(&description, name.pData, 0, 0, 0, 0, 0, 1, bases,
                                           static_cast<sal_Int32>(methods.size()), methods.data());
    register_and_keep(description);
    for (std::size_t place = 0; place < functions.size(); ++place) {
        typelib_typedescriptionreference_release(methods[place]);
        register_method(functions[place], method_names[place], first_function_position + static_cast<sal_Int32>(place));
    }
    return uno::Type(uno::TypeClass_INTERFACE, name);
}

}  // namespace

const uno::Type& function_interface() {
    static const uno::Type interface = register_interface();
    return interface;
}

}  // namespace qor::calc
