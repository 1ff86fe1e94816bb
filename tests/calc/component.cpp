// The test cases as a service of LibreOffice, run on its main thread.
#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/task/XJob.hpp>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>
#include <fstream>
#include <vector>

#include "hosts/calc/uno/main_thread.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "platform/text.hpp"
#include "tests/calc/fixture.hpp"

namespace {

using css::uno::Sequence;
using rtl::OUString;

// execute() takes "report", the path of the file for doctest's report, and "arguments", those of doctest; it answers
// doctest's exit code.
class CalcTests final : public cppu::WeakImplHelper2<css::task::XJob, css::lang::XServiceInfo> {
  public:
    explicit CalcTests(css::uno::Reference<css::uno::XComponentContext> context) : context_(std::move(context)) {}

    css::uno::Any SAL_CALL execute(const Sequence<css::beans::NamedValue>& arguments) override {
        std::string report;
        std::vector<std::string> passed;
        for (const auto& argument : arguments) {
            if (argument.Name == "report") report = utf8(qor::calc::value_of<OUString>(argument.Value));
            if (argument.Name != "arguments") continue;
            for (const OUString& text : qor::calc::value_of<Sequence<OUString>>(argument.Value)) {
                passed.push_back(utf8(text));
            }
        }
        sal_Int32 exit_code = 0;
        qor::calc::run_on_main_thread(context_, [&] { exit_code = run(report, passed); });
        return css::uno::Any(exit_code);
    }

    OUString SAL_CALL getImplementationName() override { return "com.ombrel.qorplus.CalcTests"; }
    sal_Bool SAL_CALL supportsService(const OUString& name) override { return cppu::supportsService(this, name); }
    Sequence<OUString> SAL_CALL getSupportedServiceNames() override {
        return qor::calc::sequence_of<OUString>({"com.ombrel.qorplus.CalcTests"});
    }

  private:
    static std::string utf8(const OUString& text) { return qor::to_utf8(qor::calc::view_of(text)); }

    int run(const std::string& report, const std::vector<std::string>& arguments) {
        std::vector<const char*> pointers;
        for (const std::string& argument : arguments) pointers.push_back(argument.c_str());
        std::ofstream out(report);
        doctest::Context cases(static_cast<int>(pointers.size()), pointers.data());
        cases.setCout(&out);
        qor::calc::tests::office_context() = context_;
        const int exit_code = cases.run();
        qor::calc::tests::office_context().clear();
        return exit_code;
    }

    css::uno::Reference<css::uno::XComponentContext> context_;
};

}  // namespace

extern "C" SAL_DLLPUBLIC_EXPORT css::uno::XInterface* qor_calc_tests(css::uno::XComponentContext* context,
                                                                     const Sequence<css::uno::Any>&) {
    return cppu::acquire(new CalcTests(context));
}
