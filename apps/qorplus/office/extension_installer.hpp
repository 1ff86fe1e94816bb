#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>
#include <filesystem>

namespace qor::cli {

// Adds the extension to the user's LibreOffice, in place of an earlier one, and looks that it is there and in use.
// Raises OfficeError when it is not.
void add_extension(const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context,
                   const std::filesystem::path& package);

// False if it was not there.
bool remove_extension(const com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& context);

}  // namespace qor::cli
