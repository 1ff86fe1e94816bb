// The test cases as a program that runs inside LibreOffice.
#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include "tests/batch/batch_job.hpp"
#include "tests/calc/support/fixture.hpp"

namespace {

using Context = com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>;

int run(const Context& context, std::span<const char* const> arguments, std::ostream& report) {
    doctest::Context cases(static_cast<int>(arguments.size()), arguments.data());
    cases.setCout(&report);
    qor::calc::tests::office_context() = context;
    const int exit_code = cases.run();
    qor::calc::tests::office_context().clear();
    return exit_code;
}

}  // namespace

extern "C" SAL_DLLPUBLIC_EXPORT com::sun::star::uno::XInterface* qor_batch(
    com::sun::star::uno::XComponentContext* context, const com::sun::star::uno::Sequence<com::sun::star::uno::Any>&) {
    return qor::calc::make_batch_job(context, u"com.ombrel.qorplus.CalcTests", run);
}
