#include <rapidcheck.h>
#include <com/sun/star/sheet/XNamedRanges.hpp>

#include <algorithm>
#include <set>

#include "functions/registry.hpp"
#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/uno/property.hpp"
#include "platform/text.hpp"
#include "tests/calc/cells/formula_corpus.hpp"
#include "tests/calc/cells/functions_of_excel.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/support/formula_grammar.hpp"

namespace qor::calc::tests {
namespace {

using Names = std::set<std::string>;

Names split(std::u16string_view text) {
    Names result;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find(u' ', start);
        result.insert(to_utf8(text.substr(start, end - start)));
        start = end + 1;
    }
    return result;
}

// A workbook with the sheets and names that the formulas speak of; answers its first sheet.
Object sheet_for_formulas(const Calc& calc) {
    const Object book = calc.add_book();
    const Object sheets = book.get(names::Worksheets);
    for (const char16_t* name :
         {u"my sheet", u"Second", u"Third", u"A1", u"2024", u"it's, so; 1.5", u"c.d", u"Übersicht"}) {
        sheets.call(names::Add, named(names::After, sheets.get(names::Item, sheets.get(names::Count))))
            .put(names::Name, name);
    }
    const Document document = Host(office_context()).documents().back();
    const auto defined = get_property<css::uno::Reference<css::sheet::XNamedRanges>>(document, "NamedRanges");
    defined->addNewByName("my_name", "$Sheet1.$K$1:$L$3", {}, 0);
    const Ref<css::container::XNameAccess> uno_sheets(Ref{document->getSheets()});
    const Ref<css::uno::XInterface> own(uno_sheets->getByName("my sheet"));
    const auto local = get_property<css::uno::Reference<css::sheet::XNamedRanges>>(own, "NamedRanges");
    local->addNewByName("my_cell", "$'my sheet'.$K$1", {}, 0);
    return sheets.get(names::Item, 1);
}

// What the cell says after the formula was entered; the error when it was refused or a function is not known.
std::string entered(const Object& cell, const std::u16string& formula) {
    if (const std::int32_t error = error_of([&] { cell.put(names::Formula, formula); })) {
        return "error " + std::to_string(error);
    }
    const Variant value = cell.get(names::Value);
    const auto* error = value.get_if<ErrorValue>();
    return utf8(cell.get(names::Formula)) + (error && error->code == 2029 ? " gives #NAME?" : "");
}

}  // namespace

TEST_CASE("the functions that Calc shares with Excel are known by name") {
    const Calc calc;
    calc.add_book();
    Names in_calc;
    for (const CorpusFunction& function : functions_shared_with_excel()) in_calc.insert(to_utf8(function.name));
    Names expected = split(functions_of_excel);
    expected.merge(Names{"CHISQDIST", "CHISQINV", "DDE"});  // Calc's own, though its files do not say so
    for (const Function& own : worksheet_functions()) expected.insert(to_utf8(to_upper(own.name)));
    for (const std::string& name : in_calc) {
        INFO(name);
        CHECK(expected.contains(name));
    }
    for (const std::string& name : expected) {
        INFO(name);
        CHECK(in_calc.contains(name));
    }
}

TEST_CASE("formulas of every function come back from Calc as they went") {
    const Calc calc;
    const Object cell = sheet_for_formulas(calc).get(names::Range, u"H50");
    std::size_t formulas = 0;
    std::size_t back = 0;
    for (const CorpusFunction& function : functions_shared_with_excel()) {
        for (const std::u16string& formula : corpus_formulas(function)) {
            ++formulas;
            const std::string result = entered(cell, formula);
            // Calc keeps the constants TRUE and FALSE as these functions, so their brackets are lost.
            if (function.name == u"TRUE" || function.name == u"FALSE") continue;
            ++back;
            CHECK(result == to_utf8(formula));
        }
    }
    MESSAGE(formulas << " formulas, " << back << " of them come back to the letter");
    CHECK(formulas >= 4000);
    CHECK(formulas - back == 8);
}

TEST_CASE("generated formulas come back from Calc as they went") {
    const Calc calc;
    const Object cell = sheet_for_formulas(calc).get(names::Range, u"H50");
    static constexpr std::array<std::u16string_view, 8> places{u"Third!", u"'my sheet'!",       u"'it''s, so; 1.5'!",
                                                               u"'A1'!",  u"'my sheet:Third'!", u"'2024'!",
                                                               u"c.d!",   u"Übersicht!"};
    support::FormulaGrammar grammar(places, 20240229);
    for (int i = 0; i < 500; ++i) {
        const std::u16string formula = grammar.formula();
        CHECK(entered(cell, formula) == to_utf8(formula));
    }
}

TEST_CASE("formulas of all shapes come back from Calc as they went") {
    const Calc calc;
    const Object cell = sheet_for_formulas(calc).get(names::Range, u"H50");
    for (const char16_t* formula : {u"=SUM(A:A)",
                                    u"=SUM($A:C)",
                                    u"=SUM(1:1)",
                                    u"=SUM($2:$3)",
                                    u"=SUM('my sheet'!A:B,Third!4:5)",
                                    u"=A:A 3:4",
                                    u"=Second!B:B Second!3:3",
                                    u"=A1:B5 B2:C3 B1:B9",
                                    u"=(A1,B2)",
                                    u"=SUM((A1:A2,C1,E1:F2))",
                                    u"=INDEX((A1:A2,B1:B2),1,1,2)",
                                    u"=SUM(A1:INDEX(A1:A9,3))",
                                    u"=SUM(OFFSET(A1,1,1):C9)",
                                    u"=IF(A1,,2)",
                                    u"=SUM(,1)",
                                    u"=IF(,,)",
                                    u"=--A1",
                                    u"=-A1^2",
                                    u"=2^-A1",
                                    u"=+A1",
                                    u"=A1%%",
                                    u"=-A1%",
                                    u"=50%",
                                    u"=1<>2",
                                    u"=A1>=B1",
                                    u"=A1&B1&\"\"",
                                    u"=\"\"",
                                    u"=\"say \"\"a\"\"\"",
                                    u"=\"#REF!\"",
                                    u"=\"a\nb\"",
                                    u"= A1 + B1",
                                    u"=SUM( A1 , B2 )",
                                    u"=( A1 )",
                                    u"=1.5E+20",
                                    u"=A1+\nB1",
                                    u"=1E+100",
                                    u"=0.5",
                                    u"=123456789012345",
                                    u"={1,2;3,4}",
                                    u"={TRUE,#N/A;\"a\",-0.5}",
                                    u"=SUM({1,2}*{3;4})",
                                    u"=my_name",
                                    u"=SUM(my_name)*2",
                                    u"='my sheet'!my_cell",
                                    u"='it''s, so; 1.5'!$A$1",
                                    u"=c.d!A1",
                                    u"='2024'!B2:C3",
                                    u"='A1'!A1",
                                    u"=Übersicht!A1",
                                    u"=SUM('my sheet:Third'!B2:C3)",
                                    u"=SUM(Sheet1:Third!$A$1)",
                                    u"=IF(AND(A1,NOT(B1)),TRUE,FALSE)",
                                    u"=#N/A+1",
                                    u"=IFERROR(#DIV/0!,#NULL!)",
                                    u"=SUM(#REF!)",
                                    u"=#REF!+1",
                                    u"=ERROR.TYPE(#VALUE!)",
                                    u"=no_such_name+1",
                                    u"=XFD1048576",
                                    u"=$XFD$1",
                                    u"=MONTHS(A1,B1,0)",
                                    u"=ISLEAPYEAR(A1)",
                                    u"=_XLL.ISLEAPYEAR(2000)",
                                    u"=ARNS(100,300,1000)",
                                    u"=BINOM.DIST.RANGE(60,0.75,48)",
                                    u"=DURATION(A1,B1,0.08,0.09,2,1)",
                                    u"=PDURATION(0.1,1,2)",
                                    u"=RRI(96,10000,11000)",
                                    u"=EFFECT(0.05,4)",
                                    u"=SKEW.P(A1:A3)"}) {
        cell.put(names::Formula, formula);
        CHECK(cell.get(names::Formula) == formula);
    }
}

TEST_CASE("formulas that Calc writes in another way than they were entered") {
    const Calc calc;
    const Object cell = sheet_for_formulas(calc).get(names::Range, u"H50");
    struct Case {
        const char16_t* entered;
        const char16_t* read;
    };
    for (const Case& one :
         {Case{u"=sum(a1:b2)", u"=SUM(A1:B2)"}, Case{u"=SUM(A1:A1048576)", u"=SUM(A:A)"},
          Case{u"=SUM(B2:A1)", u"=SUM(A1:B2)"}, Case{u"=TRUE()+1", u"=TRUE+1"}, Case{u"=A1  B1", u"=A1 B1"},
          Case{u"=third!a1", u"=Third!A1"}, Case{u"=MY_NAME", u"=my_name"}, Case{u"=1.50", u"=1.5"},
          Case{u"=1e5", u"=100000"}, Case{u"=1E-10", u"=0.0000000001"}, Case{u"=#REF!A1+1", u"=#REF!+1"}}) {
        cell.put(names::Formula, one.entered);
        CHECK(cell.get(names::Formula) == one.read);
    }
}

}  // namespace qor::calc::tests
