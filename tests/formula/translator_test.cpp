#include "hosts/calc/formula/translator.hpp"

#include <doctest/doctest.h>

#include "platform/text.hpp"

namespace {

using qor::calc::FormulaTranslator;
using qor::calc::FunctionNames;

const FormulaTranslator& translator() {
    static const FormulaTranslator built(FunctionNames{
        {{u"FORMULA", u"FORMULATEXT"},
         {u"CEILING.XCL", u"CEILING"},
         {u"COM.SUN.STAR.SHEET.ADDIN.ANALYSIS.GETCONVERT", u"CONVERT"}},
        {{u"FORMULATEXT", u"FORMULA"},
         {u"CEILING", u"CEILING.XCL"},
         {u"CONVERT", u"COM.SUN.STAR.SHEET.ADDIN.ANALYSIS.GETCONVERT"}},
    });
    return built;
}

std::string excel(std::u16string_view calc) {
    return qor::to_utf8(translator().to_excel(calc));
}

std::string calc(std::u16string_view excel_formula) {
    return qor::to_utf8(translator().to_calc(excel_formula, [](std::u16string_view book) -> std::u16string {
        return book == u"open.xlsx" ? u"file:///tables/open.xlsx" : u"";
    }));
}

}  // namespace

TEST_CASE("formulas that read alike in both notations") {
    for (const char16_t* formula : {u"=1+2*A1", u"=A1&\"a;b \"\"c\"\" , d\"", u"=-$A$1^2%", u"=SUM(A1:B2)", u"=PI()",
                                    u"=1.5E+20+.5", u"=A1<>B2", u"=my_name*2", u"=IF(A1>=2,#N/A,#DIV/0!)"}) {
        CAPTURE(qor::to_utf8(formula));
        if (std::u16string_view(formula).find(u',') == std::u16string_view::npos) {
            CHECK(excel(formula) == qor::to_utf8(formula));
        }
        CHECK(translator().to_excel(translator().to_calc(formula)) == formula);
    }
}

TEST_CASE("a formula of Calc in the notation of Excel") {
    CHECK(excel(u"=IF(A1>1;\"a;b\";2)") == "=IF(A1>1,\"a;b\",2)");
    CHECK(excel(u"=$Sheet1.A1") == "=Sheet1!A1");
    CHECK(excel(u"=Sheet1.$A$1") == "=Sheet1!$A$1");
    CHECK(excel(u"=$'my sheet'.B2*2") == "='my sheet'!B2*2");
    CHECK(excel(u"='Bob''s'.B2:C3") == "='Bob''s'!B2:C3");
    CHECK(excel(u"=SUM($Sheet1.A1:$Sheet3.B2)") == "=SUM(Sheet1:Sheet3!A1:B2)");
    CHECK(excel(u"=SUM($'a b'.A1:$Sheet3.A1)") == "=SUM('a b:Sheet3'!A1)");
    CHECK(excel(u"=SUM($Sheet1.A1:$Sheet1.B2)") == "=SUM(Sheet1!A1:B2)");
    CHECK(excel(u"={1;2|3;-4}") == "={1,2;3,-4}");
    CHECK(excel(u"={\"a|b\";TRUE|#N/A;\";\"}") == "={\"a|b\",TRUE;#N/A,\";\"}");
    CHECK(excel(u"=SUM((A1~B2:B3))") == "=SUM((A1,B2:B3))");
    CHECK(excel(u"=A1:B5!B2:C3") == "=A1:B5 B2:C3");
    CHECK(excel(u"='file:///data/my%20books/p.ods'#$Sheet1.A1") == "='/data/my books/[p.ods]Sheet1'!A1");
    CHECK(excel(u"='file:///data/p.ods'#$'it''s'.$A$1:$B$2") == "='/data/[p.ods]it''s'!$A$1:$B$2");
    CHECK(excel(u"='file:///data/p.ods'#total") == "='/data/p.ods'!total");
    CHECK(excel(u"=SUM(A1:A1048576)") == "=SUM(A:A)");
    CHECK(excel(u"=SUM($B$1:D$1048576)") == "=SUM($B:D)");
    CHECK(excel(u"=SUM(A3:XFD4)") == "=SUM(3:4)");
    CHECK(excel(u"=SUM($Sheet2.A:C)") == "=SUM(Sheet2!A:C)");
    CHECK(excel(u"=SUM($2:$3)") == "=SUM($2:$3)");
    CHECK(excel(u"=TRUE()") == "=TRUE");
    CHECK(excel(u"=IF(FALSE();1;2)") == "=IF(FALSE,1,2)");
    CHECK(excel(u"=FORMULA(A1)") == "=FORMULATEXT(A1)");
    CHECK(excel(u"=CEILING.XCL(2.5;1)") == "=CEILING(2.5,1)");
    CHECK(excel(u"=COM.SUN.STAR.SHEET.ADDIN.ANALYSIS.GETCONVERT(1;\"m\";\"ft\")") == "=CONVERT(1,\"m\",\"ft\")");
    CHECK(excel(u"=_xll.ARNS(1;2)") == "=ARNS(1,2)");
    CHECK(excel(u"=STDEV.S(A1:A3)") == "=STDEV.S(A1:A3)");
    CHECK(excel(u"=$Sheet2.rate*2") == "=Sheet2!rate*2");
    CHECK(excel(u"=my.name+1") == "=my.name+1");
    CHECK(excel(u"{=SUM(A1:A2*2)}") == "=SUM(A1:A2*2)");
    CHECK(excel(u"=SUM(Table1[[#This Row];[a]])") == "=SUM(Table1[[#This Row],[a]])");
    CHECK(excel(u"=SUM(Table1[[#All];['[a;b']]:[c]])") == "=SUM(Table1[[#All],['[a;b']]:[c]])");
    CHECK(excel(u"=1.5E+020+2E-010+1E+100+1E5") == "=1.5E+20+2E-10+1E+100+1E5");
    CHECK(excel(u"=$'2024'.A1+$'A1'.B2+$Übersicht.C3") == "='2024'!A1+'A1'!B2+Übersicht!C3");
}

TEST_CASE("references that have been deleted") {
    CHECK(excel(u"=#REF!") == "=#REF!");
    CHECK(excel(u"=B#REF!+1") == "=#REF!+1");
    CHECK(excel(u"=#REF!5") == "=#REF!");
    CHECK(excel(u"=$#REF!$5*2") == "=#REF!*2");
    CHECK(excel(u"=SUM(A1:B#REF!)") == "=SUM(#REF!)");
    CHECK(excel(u"=$Sheet1.#REF!#REF!") == "=Sheet1!#REF!");
    CHECK(excel(u"=#REF!.A1") == "=#REF!A1");
    CHECK(excel(u"=$#REF!.$A$1:$B$2") == "=#REF!$A$1:$B$2");
    CHECK(calc(u"=#REF!A1+1") == "=#REF!+1");
    CHECK(calc(u"=Sheet1!#REF!") == "=#REF!");
}

TEST_CASE("a formula of Excel in the notation of Calc") {
    CHECK(calc(u"=IF(A1>1,\"a,b\",2)") == "=IF(A1>1;\"a,b\";2)");
    CHECK(calc(u"=Sheet1!A1") == "=$Sheet1.A1");
    CHECK(calc(u"='my sheet'!B2:C3*2") == "=$'my sheet'.B2:C3*2");
    CHECK(calc(u"=SUM(Sheet1:Sheet3!A1)") == "=SUM($Sheet1.A1:$Sheet3.A1)");
    CHECK(calc(u"=SUM('a b:Sheet3'!A1:B2)") == "=SUM($'a b'.A1:$Sheet3.B2)");
    CHECK(calc(u"={1,2;3,-4}") == "={1;2|3;-4}");
    CHECK(calc(u"=IF(A1,{TRUE,1},TRUE)") == "=IF(A1;{TRUE;1};TRUE())");
    CHECK(calc(u"=SUM((A1,B2:B3),C1)") == "=SUM((A1~B2:B3);C1)");
    CHECK(calc(u"=A1:B5 B2:C3") == "=A1:B5!B2:C3");
    CHECK(calc(u"=A1 + B1") == "=A1 + B1");
    CHECK(calc(u"='/data/my books/[p.ods]Sheet1'!A1") == "='file:///data/my%20books/p.ods'#$Sheet1.A1");
    CHECK(calc(u"=[open.xlsx]Sheet1!$A$1") == "='file:///tables/open.xlsx'#$Sheet1.$A$1");
    CHECK(calc(u"=[closed.xlsx]Sheet1!$A$1*2") == "=#REF!*2");
    CHECK(calc(u"='/data/p.ods'!total") == "='file:///data/p.ods'#total");
    CHECK(calc(u"=SUM(A:A)+SUM(1:2)") == "=SUM(A:A)+SUM(1:2)");
    CHECK(calc(u"=IF(TRUE,FALSE,true())") == "=IF(TRUE();FALSE();true())");
    CHECK(calc(u"=CONVERT(1,\"m\",\"ft\")") == "=COM.SUN.STAR.SHEET.ADDIN.ANALYSIS.GETCONVERT(1;\"m\";\"ft\")");
    CHECK(calc(u"=SUM(Table1[[#All],['[a,b']]:[c]])") == "=SUM(Table1[[#All];['[a,b']]:[c]])");
    CHECK(calc(u"=A:A 3:4") == "=A:A!3:4");
    CHECK(calc(u"=IF(A1 , 3,4)") == "=IF(A1 ; 3;4)");
    CHECK(calc(u"='2024'!A1+'A1'!B2+'c.d'!C3+Übersicht!D4") == "=$'2024'.A1+$'A1'.B2+$'c.d'.C3+$Übersicht.D4");
    CHECK(calc(u"=open.xlsx!total") == "='file:///tables/open.xlsx'#total");
    CHECK(calc(u"=Sheet2!rate*rate") == "=$Sheet2.rate*rate");
    CHECK(calc(u"=SUM(Table1[[#This Row],[a]])") == "=SUM(Table1[[#This Row];[a]])");
    CHECK(calc(u"=COUNTA(Table1[#Headers])") == "=COUNTA(Table1[[#Headers]])");
    CHECK(calc(u"=COUNTA(Table1[[#Headers]])") == "=COUNTA(Table1[[#Headers]])");
    CHECK(excel(u"=COUNTA(Table1[[#Headers]])") == "=COUNTA(Table1[#Headers])");
    CHECK(excel(u"=COUNTA(Table1[[#All];[a]])+Table1[[#Totals]]") == "=COUNTA(Table1[[#All],[a]])+Table1[#Totals]");
    CHECK(excel(u"=Table1[[#") == "=Table1[[#");
}
