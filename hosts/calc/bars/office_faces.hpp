#pragma once

#include "hosts/calc/uno/context.hpp"
#include "platform/face_clipboard.hpp"

namespace qor::calc {

// The faces in the resources. They do not go over the user's clipboard, which keeps what it holds.
class OfficeFaces final : public FaceClipboard {
  public:
    explicit OfficeFaces(Context context) : context_(std::move(context)) {}

    void put(std::u16string_view name) override;

  private:
    Context context_;
};

}  // namespace qor::calc
