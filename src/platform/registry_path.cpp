#include "platform/registry_path.hpp"

namespace qor {

std::u16string registry_path(std::u16string_view company, std::u16string_view title, std::u16string_view version,
                             std::u16string_view section) {
    std::u16string path = u"Software";
    for (const std::u16string_view part : {company, title, version}) path.append(u"\\").append(part);
    if (!section.empty()) path.append(u"\\").append(section);
    return path;
}

}  // namespace qor
