#pragma once

#include <string_view>

namespace qor {

// The host's clipboard as far as faces go: a button of the host takes the face that was put there last.
class FaceClipboard {
  public:
    virtual ~FaceClipboard() = default;

    // Loads the face of that name and puts it on the clipboard. Raises 326 when there is none.
    virtual void put(std::u16string_view name) = 0;
};

}  // namespace qor
