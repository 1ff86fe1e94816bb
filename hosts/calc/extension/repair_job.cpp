#include "hosts/calc/extension/repair_job.hpp"

#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/task/XJob.hpp>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>

#include "hosts/calc/functions/repair.hpp"

namespace qor::calc {
namespace {

namespace beans = com::sun::star::beans;
namespace lang = com::sun::star::lang;
namespace task = com::sun::star::task;
namespace uno = com::sun::star::uno;
using rtl::OUString;
using NamedValues = uno::Sequence<beans::NamedValue>;

uno::Any value_in(const NamedValues& values, const char* name) {
    for (const beans::NamedValue& value : values) {
        if (value.Name.equalsAscii(name)) return value.Value;
    }
    return {};
}

class RepairJob final : public cppu::WeakImplHelper2<task::XJob, lang::XServiceInfo> {
  public:
    uno::Any SAL_CALL execute(const NamedValues& arguments) override {
        NamedValues environment;
        value_in(arguments, "Environment") >>= environment;
        repair_function_names(uno::Reference<uno::XInterface>(value_in(environment, "Model"), uno::UNO_QUERY));
        return {};
    }

    OUString SAL_CALL getImplementationName() override { return "com.ombrel.qorplus.RepairJob"; }
    sal_Bool SAL_CALL supportsService(const OUString& name) override { return cppu::supportsService(this, name); }
    uno::Sequence<OUString> SAL_CALL getSupportedServiceNames() override {
        const OUString service = getImplementationName();
        return {&service, 1};
    }
};

}  // namespace

uno::Reference<uno::XInterface> make_repair_job() {
    return static_cast<cppu::OWeakObject*>(new RepairJob);
}

}  // namespace qor::calc
