#include "hosts/calc/office/office_pipe.hpp"

#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <rtl/bootstrap.hxx>

#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

rtl::OUString text(std::string_view utf8) {
    return to_uno(from_utf8(utf8));
}

// The client's half of the bridge. It must know LibreOffice's types and services before anything else is done.
Context client_context(const std::filesystem::path& program) {
    static const Context context = [&] {
        rtl::Bootstrap::set("URE_BOOTSTRAP", text("vnd.sun.star.pathname:" + (program / "fundamentalrc").string()));
        return cppu::defaultBootstrap_InitialComponentContext();
    }();
    return context;
}

}  // namespace

Context office_at_pipe(const std::filesystem::path& program, const std::string& pipe_name) {
    const Ref resolver{css::bridge::UnoUrlResolver::create(client_context(program).reference())};
    try {
        return Context(Ref{resolver->resolve(text("uno:pipe,name=" + pipe_name + ";urp;StarOffice.ComponentContext"))});
    } catch (const css::connection::NoConnectException&) {
        return {};
    }
}

}  // namespace qor::calc
