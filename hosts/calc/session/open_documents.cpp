#include "hosts/calc/session/open_documents.hpp"

#include <com/sun/star/frame/Desktop.hpp>
#include <osl/file.hxx>

#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

namespace frame = com::sun::star::frame;
namespace uno = com::sun::star::uno;

rtl::OUString file_url(const std::filesystem::path& file) {
    rtl::OUString url;
    osl::FileBase::getFileURLFromSystemPath(to_uno(from_utf8(file.native())), url);
    return url;
}

}  // namespace

uno::Reference<frame::XModel> document_of(const uno::Reference<uno::XComponentContext>& context,
                                          const std::filesystem::path& file) {
    const rtl::OUString url = file_url(file);
    const auto components = frame::Desktop::create(context)->getComponents()->createEnumeration();
    while (components->hasMoreElements()) {
        const uno::Reference<frame::XModel> document(components->nextElement(), uno::UNO_QUERY);
        if (document.is() && document->getURL() == url) return document;
    }
    return {};
}

void move_document(const uno::Reference<frame::XModel>& document, const std::filesystem::path& file) {
    document->attachResource(file_url(file), document->getArgs());
}

}  // namespace qor::calc
