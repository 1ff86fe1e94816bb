#include "hosts/calc/session/scripted_user.hpp"

#include "platform/text.hpp"
#include "session/script_shape.hpp"

namespace qor::calc {

std::optional<std::u16string> ScriptedUser::file_to_save(FileDialog& dialog) {
    const auto file = screen_.pick_file(nullptr, dialog);
    if (!file) return {};
    return from_utf8(path_of(to_utf8(*file), folder_).native());
}

}  // namespace qor::calc
