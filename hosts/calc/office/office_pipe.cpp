#include "hosts/calc/office/office_pipe.hpp"

#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <rtl/bootstrap.hxx>

#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

namespace uno = com::sun::star::uno;

rtl::OUString text(std::string_view utf8) {
    return to_uno(from_utf8(utf8));
}

// The client's half of the bridge. It must know LibreOffice's types and services before anything else is done.
uno::Reference<uno::XComponentContext> client_context(const std::filesystem::path& program) {
    static const uno::Reference<uno::XComponentContext> context = [&] {
        rtl::Bootstrap::set("URE_BOOTSTRAP", text("vnd.sun.star.pathname:" + (program / "fundamentalrc").string()));
        return cppu::defaultBootstrap_InitialComponentContext();
    }();
    return context;
}

}  // namespace

uno::Reference<uno::XComponentContext> office_at_pipe(const std::filesystem::path& program,
                                                      const std::string& pipe_name) {
    const auto resolver = com::sun::star::bridge::UnoUrlResolver::create(client_context(program));
    try {
        return {resolver->resolve(text("uno:pipe,name=" + pipe_name + ";urp;StarOffice.ComponentContext")),
                uno::UNO_QUERY};
    } catch (const com::sun::star::connection::NoConnectException&) {
        return {};
    }
}

}  // namespace qor::calc
