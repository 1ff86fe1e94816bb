#include "apps/qorplus/office/extension_installer.hpp"

#include <com/sun/star/beans/Optional.hpp>
#include <com/sun/star/deployment/ExtensionManager.hpp>
#include <com/sun/star/lang/IllegalArgumentException.hpp>
#include <com/sun/star/task/XInteractionApprove.hpp>
#include <com/sun/star/task/XInteractionHandler.hpp>
#include <com/sun/star/ucb/XCommandEnvironment.hpp>
#include <cppuhelper/implbase2.hxx>
#include <osl/file.hxx>

#include "hosts/calc/office/process/office_error.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"

namespace qor::cli {
namespace {

namespace deployment = com::sun::star::deployment;
namespace task = com::sun::star::task;
namespace ucb = com::sun::star::ucb;
namespace uno = com::sun::star::uno;

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
        for (const auto& answer : request->getContinuations()) {
            const uno::Reference<task::XInteractionApprove> approve(answer, uno::UNO_QUERY);
            if (approve.is()) return approve->select();
        }
    }
};

uno::Reference<deployment::XPackage> installed(const uno::Reference<deployment::XExtensionManager>& manager,
                                               const uno::Reference<ucb::XCommandEnvironment>& environment) {
    try {
        return manager->getDeployedExtension(repository(), identifier(), rtl::OUString(), environment);
    } catch (const com::sun::star::lang::IllegalArgumentException&) {
        return {};  // the answer for an extension that is not there
    }
}

}  // namespace

void add_extension(const uno::Reference<uno::XComponentContext>& context, const std::filesystem::path& package) {
    const auto manager = deployment::ExtensionManager::get(context);
    const uno::Reference<ucb::XCommandEnvironment> environment(new Approve);
    rtl::OUString url;
    osl::FileBase::getFileURLFromSystemPath(calc::to_uno(from_utf8(package.native())), url);
    manager->addExtension(url, {}, repository(), manager->createAbortChannel(), environment);
    const auto there = installed(manager, environment);
    if (!there.is()) throw calc::OfficeError("LibreOffice has not kept the extension");
    const auto in_use = there->isRegistered(manager->createAbortChannel(), environment);
    if (!in_use.IsPresent || !in_use.Value.Value) throw calc::OfficeError("LibreOffice cannot use the extension");
}

bool remove_extension(const uno::Reference<uno::XComponentContext>& context) {
    const auto manager = deployment::ExtensionManager::get(context);
    const uno::Reference<ucb::XCommandEnvironment> environment(new Approve);
    if (!installed(manager, environment).is()) return false;
    manager->removeExtension(identifier(), rtl::OUString(), repository(), manager->createAbortChannel(), environment);
    if (installed(manager, environment).is()) throw calc::OfficeError("LibreOffice has kept the extension");
    return true;
}

}  // namespace qor::cli
