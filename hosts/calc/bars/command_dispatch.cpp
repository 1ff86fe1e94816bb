#include "hosts/calc/bars/command_dispatch.hpp"

#include <com/sun/star/frame/XDispatchProviderInterception.hpp>
#include <com/sun/star/frame/XDispatchProviderInterceptor.hpp>
#include <com/sun/star/frame/XInterceptorInfo.hpp>
#include <cppuhelper/implbase1.hxx>
#include <cppuhelper/implbase2.hxx>
#include <cppuhelper/weakref.hxx>

#include "hosts/calc/bars/bars.hpp"
#include "hosts/calc/uno/sequence.hpp"

namespace qor::calc {
namespace {

using css::frame::XDispatch;
using css::frame::XDispatchProvider;
using css::uno::Reference;
using css::uno::Sequence;
using rtl::OUString;

class CommandDispatch final : public cppu::WeakImplHelper1<XDispatch> {
  public:
    explicit CommandDispatch(std::weak_ptr<Bars> bars) : bars_(std::move(bars)) {}

    void SAL_CALL dispatch(const css::util::URL& url, const Sequence<css::beans::PropertyValue>&) override {
        if (const std::shared_ptr<Bars> bars = bars_.lock()) bars->clicked(view_of(url.Complete));
    }
    // A control that changes its state is drawn anew, and asks again then.
    void SAL_CALL addStatusListener(const Reference<css::frame::XStatusListener>& listener,
                                    const css::util::URL& url) override {
        const std::shared_ptr<Bars> bars = bars_.lock();
        css::frame::FeatureStateEvent state;
        state.Source = static_cast<cppu::OWeakObject*>(this);
        state.FeatureURL = url;
        state.IsEnabled = bars && bars->is_enabled(view_of(url.Complete));
        const Ref asking{listener};
        asking->statusChanged(state);
    }
    void SAL_CALL removeStatusListener(const Reference<css::frame::XStatusListener>&, const css::util::URL&) override {}

  private:
    std::weak_ptr<Bars> bars_;
};

class Interceptor final
    : public cppu::WeakImplHelper2<css::frame::XDispatchProviderInterceptor, css::frame::XInterceptorInfo> {
  public:
    explicit Interceptor(std::weak_ptr<Bars> bars) : dispatch_(new CommandDispatch(std::move(bars))) {}

    Reference<XDispatch> SAL_CALL queryDispatch(const css::util::URL& url, const OUString& target,
                                                sal_Int32 flags) override {
        if (view_of(url.Complete).starts_with(own_command_prefix)) return dispatch_;
        return next_ ? next_->queryDispatch(url, target, flags) : nullptr;
    }
    Sequence<Reference<XDispatch>> SAL_CALL
    queryDispatches(const Sequence<css::frame::DispatchDescriptor>& requests) override {
        Sequence<Reference<XDispatch>> result(requests.getLength());
        std::transform(requests.begin(), requests.end(), result.getArray(), [&](const auto& request) {
            return queryDispatch(request.FeatureURL, request.FrameName, request.SearchFlags);
        });
        return result;
    }
    Reference<XDispatchProvider> SAL_CALL getSlaveDispatchProvider() override { return next_.reference(); }
    void SAL_CALL setSlaveDispatchProvider(const Reference<XDispatchProvider>& next) override { next_ = next; }
    Reference<XDispatchProvider> SAL_CALL getMasterDispatchProvider() override { return previous_.reference(); }
    void SAL_CALL setMasterDispatchProvider(const Reference<XDispatchProvider>& previous) override {
        previous_ = previous;
    }
    // Only our commands come through here.
    Sequence<OUString> SAL_CALL getInterceptedURLs() override {
        return sequence_of<OUString>({to_uno(own_command_prefix) + "*"});
    }

  private:
    Reference<XDispatch> dispatch_;
    Ref<XDispatchProvider> next_;
    Ref<XDispatchProvider> previous_;
};

}  // namespace

void serve_commands(const Ref<css::frame::XFrame>& frame, const std::weak_ptr<Bars>& bars) {
    static std::vector<css::uno::WeakReference<css::frame::XFrame>> served;
    std::erase_if(served, [](const auto& one) { return !one.get().is(); });
    if (std::ranges::any_of(served, [&](const auto& one) { return one.get() == frame.reference(); })) return;
    served.emplace_back(frame.reference());
    Ref<css::frame::XDispatchProviderInterception>(frame)->registerDispatchProviderInterceptor(new Interceptor(bars));
}

}  // namespace qor::calc
