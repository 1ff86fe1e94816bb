#include "hosts/calc/formula/boolean_result.hpp"

#include <doctest/doctest.h>

#include <string>

#include "platform/text.hpp"

namespace qor::calc {

TEST_CASE("formulas that give a Boolean by themselves") {
    for (const char16_t* formula : {u"=A1>5", u"=A1<>B1", u"=1+2=3", u"=(A1>5)", u"=((A1=B1))", u"=AND(A1;B1)",
                                    u"=NOT(A1)", u"=TRUE()", u"=ISBLANK($Sheet1.A1)", u"{=A1:A3=B1:B3}",
                                    u"=\"a\"=\"b\"", u"=(A1)>(B1)", u"=$'a>b'.A1<=5", u"=AND(A1)=OR(B1)"}) {
        CAPTURE(to_utf8(formula));
        CHECK(gives_boolean(formula));
    }
}

TEST_CASE("formulas that may give something else") {
    for (const char16_t* formula :
         {u"=A1", u"=A1+1", u"=(A1>5)*1", u"=IF(A1>5;TRUE();FALSE())", u"=SUM(A1>5)", u"=--(A1>5)", u"=\"a=b\"",
          u"=$'a=b'.A1", u"=NOT(A1)+1", u"=AND(A1)&OR(B1)", u"=(A1)+(B1)", u"=", u"=(", u"=)", u"", u"A1>5",
          u"=MYAND(A1)", u"=AND", u"={1;2=3}"}) {
        CAPTURE(to_utf8(formula));
        CHECK_FALSE(gives_boolean(formula));
    }
}

}  // namespace qor::calc
