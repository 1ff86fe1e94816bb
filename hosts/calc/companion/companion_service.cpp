#include "hosts/calc/companion/companion_service.hpp"

#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/TerminationVetoException.hpp>
#include <com/sun/star/frame/XTerminateListener.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/task/XJob.hpp>
#include <cppuhelper/implbase1.hxx>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/supportsservice.hxx>

#include "hosts/calc/companion/office_companion.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/main_thread.hpp"

namespace qor::calc {
namespace {

// The one of this process. Never destroyed: the office's libraries may be gone before ours.
OfficeCompanion*& running_companion() {
    static OfficeCompanion* companion = nullptr;
    return companion;
}

class EndOfOffice final : public cppu::WeakImplHelper1<css::frame::XTerminateListener> {
  public:
    explicit EndOfOffice(Context context) : context_(std::move(context)) {}

    void SAL_CALL queryTermination(const css::lang::EventObject&) override {
        bool may_end = true;
        on_main([&] {
            if (running_companion()) may_end = running_companion()->may_end();
        });
        if (!may_end) throw css::frame::TerminationVetoException();
    }
    void SAL_CALL notifyTermination(const css::lang::EventObject&) override {
        on_main([] {
            if (auto* companion = std::exchange(running_companion(), nullptr)) companion->stop();
        });
    }
    void SAL_CALL disposing(const css::lang::EventObject&) override {}

  private:
    // Another program's request comes on another thread.
    void on_main(const std::function<void()>& work) const {
        attempt([&] { guarded([&] { run_on_main_thread(context_, work); }); });
    }

    Context context_;
};

void start_companion(const Context& context) {
    if (running_companion()) return;
    // Before those of the bars and the events, which do not outlive their own end.
    const Ref desktop{css::frame::Desktop::create(context.reference())};
    desktop->addTerminateListener(new EndOfOffice(context));
    running_companion() = new OfficeCompanion(context);
    running_companion()->start();
}

class CompanionService final : public cppu::WeakImplHelper2<css::task::XJob, css::lang::XServiceInfo> {
  public:
    explicit CompanionService(Context context) : context_(std::move(context)) {}

    // The office waits for nothing here: the first window is to come at once.
    css::uno::Any SAL_CALL execute(const css::uno::Sequence<css::beans::NamedValue>&) override {
        post_to_main_thread(context_, [context = context_] { start_companion(context); });
        return {};
    }

    rtl::OUString SAL_CALL getImplementationName() override { return "com.ombrel.qorplus.Companion"; }
    sal_Bool SAL_CALL supportsService(const rtl::OUString& name) override { return cppu::supportsService(this, name); }
    css::uno::Sequence<rtl::OUString> SAL_CALL getSupportedServiceNames() override {
        const rtl::OUString service = getImplementationName();
        return {&service, 1};
    }

  private:
    Context context_;
};

}  // namespace

css::uno::Reference<css::uno::XInterface> make_companion_service(const Context& context) {
    return static_cast<cppu::OWeakObject*>(new CompanionService(context));
}

}  // namespace qor::calc
