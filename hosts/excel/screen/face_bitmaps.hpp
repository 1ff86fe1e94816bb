#pragma once

#include "platform/face_clipboard.hpp"

namespace qor::excel {

// Faces as device-independent bitmaps on the system's clipboard.
class FaceBitmaps final : public FaceClipboard {
  public:
    void put(std::u16string_view name) override;
};

}  // namespace qor::excel
