#include "hosts/calc/session/open_documents.hpp"

#include <com/sun/star/frame/Desktop.hpp>

#include "hosts/calc/uno/text.hpp"
#include "platform/file_address.hpp"
#include "platform/files.hpp"

namespace qor::calc {

Ref<css::frame::XModel> document_of(const Context& context, const std::filesystem::path& file) {
    const rtl::OUString address = to_uno(address_of_path(path_text(file)));
    const Ref desktop{css::frame::Desktop::create(context.reference())};
    const Ref all{desktop->getComponents()};
    const Ref components{all->createEnumeration()};
    while (components->hasMoreElements()) {
        Ref<css::frame::XModel> document(components->nextElement());
        if (document && document->getURL() == address) return document;
    }
    return {};
}

void move_document(const Ref<css::frame::XModel>& document, const std::filesystem::path& file) {
    document->attachResource(to_uno(address_of_path(path_text(file))), document->getArgs());
}

}  // namespace qor::calc
