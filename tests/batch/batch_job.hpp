#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>
#include <functional>
#include <ostream>
#include <span>
#include <string_view>

namespace qor::calc {

// A program that runs inside the office: gets its arguments, writes its report, answers its exit code.
using Batch = int (*)(const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context,
                      std::span<const char* const> arguments, std::ostream& report);

// The batch as a service, a task.XJob that runs it on the office's main thread. execute() takes "arguments" and
// "report", the path of the file for the report. The caller owns the one reference that the result holds.
com::sun::star::uno::XInterface* make_batch_job(
    const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context,
    std::u16string_view service_name, Batch batch);

}  // namespace qor::calc
