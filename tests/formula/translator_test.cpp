#include "hosts/calc/formula/translator.hpp"

#include <doctest/doctest.h>

#include <string>
#include <vector>

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

// What stands in the one notation and what in the other.
struct Translation {
    std::u16string_view formula;
    std::string translated;
};

void check_to_excel(const std::vector<Translation>& rows) {
    for (const Translation& row : rows) {
        CAPTURE(qor::to_utf8(row.formula));
        CHECK(qor::to_utf8(translator().to_excel(row.formula)) == row.translated);
    }
}

void check_to_calc(const std::vector<Translation>& rows) {
    const auto address = [](std::u16string_view book) -> std::u16string {
        return book == u"open.xlsx" ? u"file:///tables/open.xlsx" : u"";
    };
    for (const Translation& row : rows) {
        CAPTURE(qor::to_utf8(row.formula));
        CHECK(qor::to_utf8(translator().to_calc(row.formula, address)) == row.translated);
    }
}

}  // namespace

TEST_CASE("formulas that read alike in both notations") {
    for (const char16_t* formula : {u"=1+2*A1", u"=A1&\"a;b \"\"c\"\" , d\"", u"=-$A$1^2%", u"=SUM(A1:B2)", u"=PI()",
                                    u"=1.5E+20+.5", u"=A1<>B2", u"=my_name*2", u"=IF(A1>=2,#N/A,#DIV/0!)"}) {
        CAPTURE(qor::to_utf8(formula));
        if (std::u16string_view(formula).find(u',') == std::u16string_view::npos) {
            CHECK(translator().to_excel(formula) == formula);
        }
        CHECK(translator().to_excel(translator().to_calc(formula)) == formula);
    }
}

TEST_CASE("a formula of Calc in the notation of Excel") {
    check_to_excel({
        {u"=IF(A1>1;\"a;b\";2)", "=IF(A1>1,\"a;b\",2)"},
        {u"=$Sheet1.A1", "=Sheet1!A1"},
        {u"=Sheet1.$A$1", "=Sheet1!$A$1"},
        {u"=$'my sheet'.B2*2", "='my sheet'!B2*2"},
        {u"='Bob''s'.B2:C3", "='Bob''s'!B2:C3"},
        {u"=SUM($Sheet1.A1:$Sheet3.B2)", "=SUM(Sheet1:Sheet3!A1:B2)"},
        {u"=SUM($'a b'.A1:$Sheet3.A1)", "=SUM('a b:Sheet3'!A1)"},
        {u"=SUM($Sheet1.A1:$Sheet1.B2)", "=SUM(Sheet1!A1:B2)"},
        {u"={1;2|3;-4}", "={1,2;3,-4}"},
        {u"={\"a|b\";TRUE|#N/A;\";\"}", "={\"a|b\",TRUE;#N/A,\";\"}"},
        {u"=SUM((A1~B2:B3))", "=SUM((A1,B2:B3))"},
        {u"=A1:B5!B2:C3", "=A1:B5 B2:C3"},
        {u"='file:///data/my%20books/p.ods'#$Sheet1.A1", "='/data/my books/[p.ods]Sheet1'!A1"},
        {u"='file:///data/p.ods'#$'it''s'.$A$1:$B$2", "='/data/[p.ods]it''s'!$A$1:$B$2"},
        {u"='file:///data/p.ods'#total", "='/data/p.ods'!total"},
        {u"=SUM(A1:A1048576)", "=SUM(A:A)"},
        {u"=SUM($B$1:D$1048576)", "=SUM($B:D)"},
        {u"=SUM(A3:XFD4)", "=SUM(3:4)"},
        {u"=SUM($Sheet2.A:C)", "=SUM(Sheet2!A:C)"},
        {u"=SUM($2:$3)", "=SUM($2:$3)"},
        {u"=TRUE()", "=TRUE"},
        {u"=IF(FALSE();1;2)", "=IF(FALSE,1,2)"},
        {u"=FORMULA(A1)", "=FORMULATEXT(A1)"},
        {u"=CEILING.XCL(2.5;1)", "=CEILING(2.5,1)"},
        {u"=COM.SUN.STAR.SHEET.ADDIN.ANALYSIS.GETCONVERT(1;\"m\";\"ft\")", "=CONVERT(1,\"m\",\"ft\")"},
        {u"=_xll.ARNS(1;2)", "=ARNS(1,2)"},
        {u"=STDEV.S(A1:A3)", "=STDEV.S(A1:A3)"},
        {u"=$Sheet2.rate*2", "=Sheet2!rate*2"},
        {u"=my.name+1", "=my.name+1"},
        {u"{=SUM(A1:A2*2)}", "=SUM(A1:A2*2)"},
        {u"=SUM(Table1[[#This Row];[a]])", "=SUM(Table1[[#This Row],[a]])"},
        {u"=SUM(Table1[[#All];['[a;b']]:[c]])", "=SUM(Table1[[#All],['[a;b']]:[c]])"},
        {u"=1.5E+020+2E-010+1E+100+1E5", "=1.5E+20+2E-10+1E+100+1E5"},
        {u"=$'2024'.A1+$'A1'.B2+$Übersicht.C3", "='2024'!A1+'A1'!B2+Übersicht!C3"},
    });
}

TEST_CASE("references that have been deleted") {
    check_to_excel({
        {u"=#REF!", "=#REF!"},
        {u"=B#REF!+1", "=#REF!+1"},
        {u"=#REF!5", "=#REF!"},
        {u"=$#REF!$5*2", "=#REF!*2"},
        {u"=SUM(A1:B#REF!)", "=SUM(#REF!)"},
        {u"=$Sheet1.#REF!#REF!", "=Sheet1!#REF!"},
        {u"=#REF!.A1", "=#REF!A1"},
        {u"=$#REF!.$A$1:$B$2", "=#REF!$A$1:$B$2"},
    });
    check_to_calc({
        {u"=#REF!A1+1", "=#REF!+1"},
        {u"=Sheet1!#REF!", "=#REF!"},
    });
}

TEST_CASE("a formula of Excel in the notation of Calc") {
    check_to_calc({
        {u"=IF(A1>1,\"a,b\",2)", "=IF(A1>1;\"a,b\";2)"},
        {u"=Sheet1!A1", "=$Sheet1.A1"},
        {u"='my sheet'!B2:C3*2", "=$'my sheet'.B2:C3*2"},
        {u"=SUM(Sheet1:Sheet3!A1)", "=SUM($Sheet1.A1:$Sheet3.A1)"},
        {u"=SUM('a b:Sheet3'!A1:B2)", "=SUM($'a b'.A1:$Sheet3.B2)"},
        {u"={1,2;3,-4}", "={1;2|3;-4}"},
        {u"=IF(A1,{TRUE,1},TRUE)", "=IF(A1;{TRUE;1};TRUE())"},
        {u"=SUM((A1,B2:B3),C1)", "=SUM((A1~B2:B3);C1)"},
        {u"=A1:B5 B2:C3", "=A1:B5!B2:C3"},
        {u"=A1 + B1", "=A1 + B1"},
        {u"='/data/my books/[p.ods]Sheet1'!A1", "='file:///data/my%20books/p.ods'#$Sheet1.A1"},
        {u"=[open.xlsx]Sheet1!$A$1", "='file:///tables/open.xlsx'#$Sheet1.$A$1"},
        {u"=[closed.xlsx]Sheet1!$A$1*2", "=#REF!*2"},
        {u"='/data/p.ods'!total", "='file:///data/p.ods'#total"},
        {u"=SUM(A:A)+SUM(1:2)", "=SUM(A:A)+SUM(1:2)"},
        {u"=IF(TRUE,FALSE,true())", "=IF(TRUE();FALSE();true())"},
        {u"=CONVERT(1,\"m\",\"ft\")", "=COM.SUN.STAR.SHEET.ADDIN.ANALYSIS.GETCONVERT(1;\"m\";\"ft\")"},
        {u"=SUM(Table1[[#All],['[a,b']]:[c]])", "=SUM(Table1[[#All];['[a,b']]:[c]])"},
        {u"=A:A 3:4", "=A:A!3:4"},
        {u"=IF(A1 , 3,4)", "=IF(A1 ; 3;4)"},
        {u"='2024'!A1+'A1'!B2+'c.d'!C3+Übersicht!D4", "=$'2024'.A1+$'A1'.B2+$'c.d'.C3+$Übersicht.D4"},
        {u"=open.xlsx!total", "='file:///tables/open.xlsx'#total"},
        {u"=Sheet2!rate*rate", "=$Sheet2.rate*rate"},
        {u"=SUM(Table1[[#This Row],[a]])", "=SUM(Table1[[#This Row];[a]])"},
        {u"=COUNTA(Table1[#Headers])", "=COUNTA(Table1[[#Headers]])"},
        {u"=COUNTA(Table1[[#Headers]])", "=COUNTA(Table1[[#Headers]])"},
    });
    check_to_excel({
        {u"=COUNTA(Table1[[#Headers]])", "=COUNTA(Table1[#Headers])"},
        {u"=COUNTA(Table1[[#All];[a]])+Table1[[#Totals]]", "=COUNTA(Table1[[#All],[a]])+Table1[#Totals]"},
        {u"=Table1[[#", "=Table1[[#"},
    });
}
