#pragma once

#include <com/sun/star/uno/XInterface.hpp>

namespace qor::calc {

// The job that LibreOffice starts for every document that it has loaded. It repairs the names of our functions.
com::sun::star::uno::Reference<com::sun::star::uno::XInterface> make_repair_job();

}  // namespace qor::calc
