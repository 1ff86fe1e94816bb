// The benchmarks of what a user sees, as a program that runs inside a LibreOffice with windows.
#include "bench/calc_window/cases.hpp"
#include "bench/ratio_report.hpp"
#include "tests/batch/batch_job.hpp"

namespace {

using Context = com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>;

int run(const Context& context, std::span<const char* const> arguments, std::ostream& report) {
    qor::bench::register_menu(context);
    qor::bench::register_dialogs(context);
    return qor::bench::run_with_ratios(arguments, report) ? 0 : 1;
}

}  // namespace

extern "C" SAL_DLLPUBLIC_EXPORT com::sun::star::uno::XInterface* qor_batch(
    com::sun::star::uno::XComponentContext* context, const com::sun::star::uno::Sequence<com::sun::star::uno::Any>&) {
    return qor::calc::make_batch_job(context, u"com.ombrel.qorplus.CalcBench", run);
}
