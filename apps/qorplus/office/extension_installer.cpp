#include "apps/qorplus/office/extension_installer.hpp"

#include <com/sun/star/beans/Optional.hpp>
#include <com/sun/star/deployment/ExtensionManager.hpp>
#include <com/sun/star/lang/IllegalArgumentException.hpp>
#include <com/sun/star/task/XInteractionApprove.hpp>
#include <com/sun/star/task/XInteractionHandler.hpp>
#include <com/sun/star/ucb/XCommandEnvironment.hpp>
#include <cppuhelper/implbase2.hxx>
#include <rtl/ref.hxx>

#include "hosts/calc/office/process/office_error.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/file_address.hpp"
#include "platform/files.hpp"

namespace qor::cli {
namespace {

namespace deployment = css::deployment;
namespace task = css::task;
namespace ucb = css::ucb;
namespace uno = css::uno;
using calc::Ref;

const rtl::OUString& identifier() {
    static const rtl::OUString text("com.ombrel.qorplus");
    return text;
}

const rtl::OUString& repository() {
    static const rtl::OUString text("user");
    return text;
}

// Says yes to what is asked: the user has asked for the change, and there may be an older version to replace.
class Approve final : public cppu::WeakImplHelper2<ucb::XCommandEnvironment, task::XInteractionHandler> {
  public:
    uno::Reference<task::XInteractionHandler> SAL_CALL getInteractionHandler() override { return this; }
    uno::Reference<ucb::XProgressHandler> SAL_CALL getProgressHandler() override { return {}; }
    void SAL_CALL handle(const uno::Reference<task::XInteractionRequest>& request) override {
        const Ref question{request};
        for (const auto& answer : question->getContinuations()) {
            if (const Ref<task::XInteractionApprove> approve{Ref{answer}}) return approve->select();
        }
    }
};

using Manager = Ref<deployment::XExtensionManager>;

Ref<deployment::XPackage> installed(const Manager& manager, const rtl::Reference<Approve>& environment) {
    try {
        return manager->getDeployedExtension(repository(), identifier(), rtl::OUString(), environment.get());
    } catch (const css::lang::IllegalArgumentException&) {
        return {};  // the answer for an extension that is not there
    }
}

}  // namespace

void add_extension(const calc::Context& context, const std::filesystem::path& package) {
    const Manager manager{deployment::ExtensionManager::get(context.reference())};
    const rtl::Reference<Approve> environment(new Approve);
    manager->addExtension(calc::to_uno(address_of_path(path_text(package))), {}, repository(),
                          manager->createAbortChannel(), environment.get());
    const Ref there = installed(manager, environment);
    if (!there) throw calc::OfficeError("LibreOffice has not kept the extension");
    const auto in_use = there->isRegistered(manager->createAbortChannel(), environment.get());
    if (!in_use.IsPresent || !in_use.Value.Value) throw calc::OfficeError("LibreOffice cannot use the extension");
}

bool remove_extension(const calc::Context& context) {
    const Manager manager{deployment::ExtensionManager::get(context.reference())};
    const rtl::Reference<Approve> environment(new Approve);
    if (!installed(manager, environment)) return false;
    manager->removeExtension(identifier(), rtl::OUString(), repository(), manager->createAbortChannel(),
                             environment.get());
    if (installed(manager, environment)) throw calc::OfficeError("LibreOffice has kept the extension");
    return true;
}

}  // namespace qor::cli
