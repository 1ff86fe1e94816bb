#include "ground/boolean_option.hpp"

#include "ground/CReg.hpp"
#include "ground/MMain.hpp"
#include "runtime/conversion.hpp"

namespace qor {

bool boolean_option(std::u16string_view name, std::u16string_view default_text) {
    return to_boolean(CReg(environment().settings).GetSetting(RootKey::current_user, u"Options", name, default_text));
}

}  // namespace qor
