#include "hosts/calc/bars/list_on_toolbar.hpp"

#include <algorithm>
#include <com/sun/star/awt/PosSize.hpp>
#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/VclWindowPeerAttribute.hpp>
#include <com/sun/star/awt/WindowAttribute.hpp>
#include <com/sun/star/awt/XListBox.hpp>
#include <com/sun/star/container/XSet.hpp>
#include <com/sun/star/frame/XStatusListener.hpp>
#include <com/sun/star/frame/XToolbarController.hpp>
#include <com/sun/star/frame/theToolbarControllerFactory.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/lang/XInitialization.hpp>
#include <com/sun/star/lang/XSingleComponentFactory.hpp>
#include <com/sun/star/util/XUpdatable.hpp>
#include <cppuhelper/factory.hxx>
#include <cppuhelper/implbase6.hxx>

#include "hosts/calc/bars/bars.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"

namespace qor::calc {
namespace {

using css::uno::Reference;
using css::uno::Sequence;
using rtl::OUString;

constexpr char service_name[] = "com.ombrel.qorplus.ToolbarList";
constexpr std::int32_t usual_width = 120;  // pixels, of a list that was given none
constexpr sal_Int16 lines_shown = 12;

class ListController final
    : public cppu::WeakImplHelper6<css::frame::XToolbarController, css::lang::XInitialization, css::util::XUpdatable,
                                   css::lang::XComponent, css::frame::XStatusListener, css::awt::XItemListener>,
      public ListOnToolbar {
  public:
    explicit ListController(Context context) : context_(std::move(context)) {}

    // What the office calls.
    void SAL_CALL initialize(const Sequence<css::uno::Any>& arguments) override {
        for (const css::uno::Any& argument : arguments) {
            css::beans::PropertyValue property;
            OUString text;
            if (!(argument >>= property) || property.Name != "CommandURL") continue;
            if (property.Value >>= text) command_ = from_uno(text);
        }
    }
    Reference<css::awt::XWindow> SAL_CALL createItemWindow(const Reference<css::awt::XWindow>& parent) override {
        Ref<css::awt::XWindow> window;
        attempt([&] { guarded([&] { window = make_list(parent); }); });
        return window.reference();
    }
    Reference<css::awt::XWindow> SAL_CALL createPopupWindow() override { return {}; }
    void SAL_CALL execute(sal_Int16) override {}
    void SAL_CALL click() override {}
    void SAL_CALL doubleClick() override {}
    void SAL_CALL update() override {}
    // The office takes nothing for a controller of a toolbar that does not listen for states.
    void SAL_CALL statusChanged(const css::frame::FeatureStateEvent&) override {}
    void SAL_CALL dispose() override {
        if (bars_) bars_->detach(*this);
        bars_.reset();
        list_ = {};
    }
    void SAL_CALL addEventListener(const Reference<css::lang::XEventListener>&) override {}
    void SAL_CALL removeEventListener(const Reference<css::lang::XEventListener>&) override {}
    void SAL_CALL itemStateChanged(const css::awt::ItemEvent& event) override {
        if (!filling_ && bars_) bars_->chosen(command_, event.Selected + 1);
    }
    void SAL_CALL disposing(const css::lang::EventObject&) override { dispose(); }

    std::u16string_view command() const override { return command_; }

    void fill(const Control& control) override {
        if (!list_) return;
        filling_ = true;  // a choice made here is reported like the user's
        Sequence<OUString> items(static_cast<sal_Int32>(control.items.size()));
        std::ranges::transform(control.items, items.getArray(), to_uno);
        if (list_->getItems() != items) {
            list_->removeItems(0, list_->getItemCount());
            list_->addItems(items, 0);
        }
        if (control.chosen > 0) {
            list_->selectItemPos(static_cast<sal_Int16>(control.chosen - 1), true);
        } else if (list_->getSelectedItemPos() >= 0) {
            list_->selectItemPos(list_->getSelectedItemPos(), false);
        }
        const Ref<css::awt::XWindow> window(list_);
        window->setEnable(control.enabled);
        const std::int32_t width = control.width > 0 ? control.width : usual_width;
        if (window->getPosSize().Width != width) {
            window->setPosSize(0, 0, width, 0, css::awt::PosSize::WIDTH);
        }
        filling_ = false;
    }

  private:
    Ref<css::awt::XWindow> make_list(const Ref<css::awt::XWindow>& parent) {
        using css::awt::VclWindowPeerAttribute::DROPDOWN;
        namespace attribute = css::awt::WindowAttribute;
        css::awt::WindowDescriptor description;
        description.Type = css::awt::WindowClass_SIMPLE;
        description.WindowServiceName = "listbox";
        description.Parent = Ref<css::awt::XWindowPeer>(parent).reference();
        description.ParentIndex = -1;
        const std::int32_t height = 28;  // of one line; the toolbar fits it in
        description.Bounds = {0, 0, usual_width, height};
        description.WindowAttributes = attribute::SHOW | attribute::BORDER | DROPDOWN;
        const Ref toolkit{css::awt::Toolkit::create(context_.reference())};
        list_ = Ref<css::awt::XListBox>(Ref{toolkit->createWindow(description)});
        list_->setDropDownLineCount(lines_shown);
        bars_ = Bars::of(context_);
        bars_->attach(*this);
        list_->addItemListener(this);
        return Ref<css::awt::XWindow>(list_);
    }

    Context context_;
    std::u16string command_;
    Ref<css::awt::XListBox> list_;
    std::shared_ptr<Bars> bars_;
    bool filling_ = false;
};

Reference<css::uno::XInterface> SAL_CALL make_controller(const Reference<css::uno::XComponentContext>& context) {
    return static_cast<cppu::OWeakObject*>(new ListController(context));
}

// The office makes controllers by the name of a service: ours is made known to it while it runs.
void offer_service(const Context& context) {
    const OUString name = OUString(service_name);
    const Ref<css::container::XSet> services(Ref{context->getServiceManager()});
    static bool offered = false;
    if (std::exchange(offered, true)) return;
    services->insert(
        css::uno::Any(cppu::createSingleComponentFactory(make_controller, name, sequence_of<OUString>({name}))));
}

}  // namespace

void register_list(const Context& context, const std::u16string& command) {
    offer_service(context);
    const Ref<css::frame::XUIControllerRegistration> controllers(
        Ref{css::frame::theToolbarControllerFactory::get(context.reference())});
    controllers->registerController(to_uno(command), {}, OUString(service_name));
}

void deregister_list(const Context& context, const std::u16string& command) {
    const Ref<css::frame::XUIControllerRegistration> controllers(
        Ref{css::frame::theToolbarControllerFactory::get(context.reference())});
    controllers->deregisterController(to_uno(command), {});
}

}  // namespace qor::calc
