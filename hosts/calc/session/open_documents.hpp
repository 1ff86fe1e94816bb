#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <filesystem>

namespace qor::calc {

// The open document of that file, empty when there is none.
com::sun::star::uno::Reference<com::sun::star::frame::XModel> document_of(
    const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context,
    const std::filesystem::path& file);

// Tells the document that its file lies elsewhere now.
void move_document(const com::sun::star::uno::Reference<com::sun::star::frame::XModel>& document,
                   const std::filesystem::path& file);

}  // namespace qor::calc
