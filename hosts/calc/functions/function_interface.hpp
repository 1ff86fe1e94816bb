#pragma once

#include <com/sun/star/uno/Type.hxx>

namespace qor::calc {

// The worksheet functions as one UNO interface: a method a function, in the order of the table, under the function's
// own name. Its description is made from the table at the first call and stays registered.
const com::sun::star::uno::Type& function_interface();

// Methods stand behind those that every interface has.
constexpr int first_function_position = 3;

}  // namespace qor::calc
