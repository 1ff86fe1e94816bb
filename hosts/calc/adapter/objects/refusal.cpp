#include "hosts/calc/adapter/objects/refusal.hpp"

namespace qor::calc {

Error refusal(std::u16string_view type, std::u16string_view member, Access access, std::u16string_view place,
              std::u16string_view reason) {
    std::u16string text;
    const auto add = [&](auto... parts) { (text.append(parts), ...); };
    if (access == Access::call) {
        add(member, u" method of ", type, u" class failed");
    } else {
        add(access == Access::put ? u"Unable to set the " : u"Unable to get the ", member, u" property of the ", type,
            u" class");
    }
    if (!place.empty()) add(u" at ", place);
    add(u".");
    if (!reason.empty() && reason != standard_description(ErrorNumber::host_refused)) add(u" ", reason);
    return Error(ErrorNumber::host_refused, std::u16string(type), std::move(text));
}

}  // namespace qor::calc
