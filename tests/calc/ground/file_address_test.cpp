#include "platform/file_address.hpp"

#include <osl/file.hxx>

#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {

TEST_CASE("the address of a file is what the office writes") {
    std::u16string every_character = u"/";
    for (char16_t unit = 1; unit < 0x180; ++unit) every_character += unit;
    for (const std::u16string& path :
         {every_character, std::u16string(u"/"), std::u16string(u"//my books///gr\u00F6\u00DFer \u20AC \U0001F600.ods"),
          std::u16string(u"/100%25/../~/a%"), std::u16string(u"my books/plan;1.ods"), std::u16string(u"../a/./b/")}) {
        CAPTURE(to_utf8(path));
        rtl::OUString address;
        REQUIRE(osl::FileBase::getFileURLFromSystemPath(to_uno(path), address) == osl::FileBase::E_None);
        CHECK(to_utf8(address_of_path(path)) == to_utf8(view_of(address)));
        rtl::OUString back;
        REQUIRE(osl::FileBase::getSystemPathFromFileURL(address, back) == osl::FileBase::E_None);
        CHECK(to_utf8(path_of_address(view_of(address))) == to_utf8(view_of(back)));
    }
}

}  // namespace qor::calc::tests
