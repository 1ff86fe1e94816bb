#include "hosts/calc/uno/main_thread.hpp"

#include <unistd.h>

#include <com/sun/star/awt/AsyncCallback.hpp>
#include <com/sun/star/awt/XCallback.hpp>
#include <cppuhelper/implbase1.hxx>
#include <exception>
#include <future>
#include <rtl/ref.hxx>

#include "hosts/calc/uno/guarded.hpp"

namespace qor::calc {
namespace {

class Callback final : public cppu::WeakImplHelper1<css::awt::XCallback> {
  public:
    explicit Callback(const std::function<void()>& work) : work_(work) {}

    std::future<void> finished() { return finished_.get_future(); }

    void SAL_CALL notify(const css::uno::Any&) override {
        try {
            work_();
            finished_.set_value();
        } catch (...) {
            finished_.set_exception(std::current_exception());
        }
    }

  private:
    const std::function<void()>& work_;  // the caller waits, so it outlives the call
    std::promise<void> finished_;
};

class Posted final : public cppu::WeakImplHelper1<css::awt::XCallback> {
  public:
    explicit Posted(std::function<void()> work) : work_(std::move(work)) {}

    void SAL_CALL notify(const css::uno::Any&) override {
        attempt([&] { guarded(work_); });
    }

  private:
    std::function<void()> work_;
};

}  // namespace

bool on_main_thread() noexcept {
    return gettid() == getpid();
}

void post_to_main_thread(const Context& context, std::function<void()> work) {
    try {
        const Ref queue{css::awt::AsyncCallback::create(context.reference())};
        queue->addCallback(new Posted(std::move(work)), css::uno::Any());
    } catch (const css::uno::Exception&) {
        // The office ends, and its main thread is never free again.
    }
}

void run_on_main_thread(const Context& context, const std::function<void()>& work) {
    if (on_main_thread()) {
        work();
        return;
    }
    const rtl::Reference<Callback> callback(new Callback(work));
    std::future<void> finished = callback->finished();
    const Ref queue{css::awt::AsyncCallback::create(context.reference())};
    queue->addCallback(callback.get(), css::uno::Any());
    finished.get();
}

}  // namespace qor::calc
