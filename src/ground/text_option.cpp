#include "ground/text_option.hpp"

#include "ground/CReg.hpp"
#include "ground/MMain.hpp"

namespace qor {

std::u16string text_option(std::u16string_view name) {
    return CReg(environment().settings).GetSetting(RootKey::current_user, u"Options", name, u"");
}

}  // namespace qor
