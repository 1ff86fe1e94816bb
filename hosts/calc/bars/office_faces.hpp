#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>
#include <filesystem>

#include "platform/face_clipboard.hpp"

namespace qor::calc {

// Faces from the files NAME.svg of a folder. They do not go over the user's clipboard, which keeps what it holds.
class OfficeFaces final : public FaceClipboard {
  public:
    OfficeFaces(com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext> context,
                std::filesystem::path folder)
        : context_(std::move(context)), folder_(std::move(folder)) {}

    void put(std::u16string_view name) override;

  private:
    com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext> context_;
    std::filesystem::path folder_;
};

}  // namespace qor::calc
