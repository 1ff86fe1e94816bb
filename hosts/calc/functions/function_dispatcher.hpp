#pragma once

#include <com/sun/star/uno/XInterface.hpp>

namespace qor::calc {

// Makes the function interface of `add_in`: one binary object that serves every method by its place in the table.
// It and the add-in hold each other, so both live until the process ends, as Calc keeps its add-ins anyway.
com::sun::star::uno::Reference<com::sun::star::uno::XInterface> make_function_dispatcher(
    com::sun::star::uno::XInterface* add_in);

}  // namespace qor::calc
