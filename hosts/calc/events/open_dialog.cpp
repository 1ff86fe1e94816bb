#include "hosts/calc/events/open_dialog.hpp"

#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/util/URLTransformer.hpp>
#include <cppuhelper/implbase1.hxx>
#include <rtl/ref.hxx>

#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/ref.hpp"

namespace qor::calc {
namespace {

class StateReader final : public cppu::WeakImplHelper1<css::frame::XStatusListener> {
  public:
    bool enabled = true;

    void SAL_CALL statusChanged(const css::frame::FeatureStateEvent& state) override { enabled = state.IsEnabled; }
    void SAL_CALL disposing(const css::lang::EventObject&) override {}
};

bool can_quit(const Context& context) {
    const Ref desktop{css::frame::Desktop::create(context.reference())};
    const Ref<css::frame::XDispatchProvider> frame(Ref{desktop->getCurrentFrame()});
    if (!frame) return true;
    css::util::URL command;
    command.Complete = ".uno:Quit";
    const Ref addresses{css::util::URLTransformer::create(context.reference())};
    addresses->parseStrict(command);
    const Ref dispatch{frame->queryDispatch(command, {}, 0)};
    if (!dispatch) return true;
    const rtl::Reference<StateReader> reader(new StateReader);
    dispatch->addStatusListener(reader.get(), command);
    dispatch->removeStatusListener(reader.get(), command);
    return reader->enabled;
}

}  // namespace

// No interface says it, but the office switches one command off for exactly as long.
bool is_dialog_open(const Context& context) {
    bool open = false;
    attempt([&] { guarded([&] { open = !can_quit(context); }); });
    return open;
}

}  // namespace qor::calc
