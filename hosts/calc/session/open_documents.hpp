#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <filesystem>

#include "hosts/calc/uno/context.hpp"

namespace qor::calc {

// The open document of that file, empty when there is none.
Ref<css::frame::XModel> document_of(const Context& context, const std::filesystem::path& file);

// Tells the document that its file lies elsewhere now.
void move_document(const Ref<css::frame::XModel>& document, const std::filesystem::path& file);

}  // namespace qor::calc
