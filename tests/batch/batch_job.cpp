#include "tests/batch/batch_job.hpp"

#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/task/XJob.hpp>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>
#include <fstream>
#include <string>
#include <vector>

#include "hosts/calc/uno/main_thread.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sanitizer.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

using css::uno::Sequence;
using rtl::OUString;

std::string utf8(const OUString& text) {
    return to_utf8(view_of(text));
}

class BatchJob final : public cppu::WeakImplHelper2<css::task::XJob, css::lang::XServiceInfo> {
  public:
    BatchJob(css::uno::Reference<css::uno::XComponentContext> context, std::u16string_view service_name, Batch batch)
        : context_(std::move(context)), service_name_(to_uno(service_name)), batch_(batch) {}

    css::uno::Any SAL_CALL execute(const Sequence<css::beans::NamedValue>& arguments) override {
        std::string report;
        std::vector<std::string> passed;
        for (const auto& argument : arguments) {
            if (argument.Name == "report") report = utf8(value_of<OUString>(argument.Value));
            if (argument.Name != "arguments") continue;
            for (const OUString& text : value_of<Sequence<OUString>>(argument.Value)) passed.push_back(utf8(text));
        }
        std::vector<const char*> pointers;
        pointers.reserve(passed.size());
        for (const std::string& argument : passed) pointers.push_back(argument.c_str());
        std::ofstream out(report);
        keep_sanitizer_in_this_process();
        sal_Int32 exit_code = 0;
        run_on_main_thread(context_, [&] { exit_code = batch_(context_, pointers, out); });
        return css::uno::Any(exit_code);
    }

    OUString SAL_CALL getImplementationName() override { return service_name_; }
    sal_Bool SAL_CALL supportsService(const OUString& name) override { return cppu::supportsService(this, name); }
    Sequence<OUString> SAL_CALL getSupportedServiceNames() override { return sequence_of<OUString>({service_name_}); }

  private:
    css::uno::Reference<css::uno::XComponentContext> context_;
    OUString service_name_;
    Batch batch_;
};

}  // namespace

css::uno::XInterface* make_batch_job(const css::uno::Reference<css::uno::XComponentContext>& context,
                                     std::u16string_view service_name, Batch batch) {
    return cppu::acquire(new BatchJob(context, service_name, batch));
}

}  // namespace qor::calc
