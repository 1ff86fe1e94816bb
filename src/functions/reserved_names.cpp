#include "functions/families.hpp"
#include "functions/number_words.hpp"

// Names that callers may bind to. No method stands behind those of depreciation and benefits: they give 0 for any
// arguments.
namespace qor {

std::vector<FunctionDeclaration> reserved_name_functions() {
    return {
        {.name = u"MACRS",
         .parameters = {u"dMeth",
                        u"dPercent",
                        u"dConvention",
                        u"dLife",
                        u"dCosts",
                        u"dSec179",
                        u"dBusPerc",
                        u"dDeprPeriod",
                        u"vInService",
                        u"vOutService",
                        u"vFiscalYrEnd",
                        {u"vShortYrBeg", Missing{}},
                        {u"dDepRecMethSTYr", Missing{}}},
         .formula = [](Checked, Checked, Checked, Checked, Checked, Checked, Checked, Checked, const Variant&,
                       const Variant&, const Variant&, const Variant&, Checked) { return Checked(0); },
         .examples = {{{1, 1, 1, 5, 10000, 0, 1, 2, u"1/1/2001", u"", u"12/31/2001"}, 0.0}}},
        {.name = u"SEC179",
         .parameters = {u"dTtlCov", u"dEEContribution", u"dYear", u"vBirthDate", u"vFromDate", u"vToDate"},
         .formula = [](Checked, Checked, Checked, const Variant&, const Variant&,
                       const Variant&) { return Checked(0); },
         .examples = {{{1000, 50, 2004, u"2/3/1960", u"1/1/2004", u"12/31/2004"}, 0.0}}},
        // The words of a number up to 999; as a member of CCom it knows them from the first NUMBERTOWORDS on only.
        {.name = u"HundredsTensUnits",
         .parameters = {u"TestValue", {u"UseAnd", Missing{}}},
         .formula = [](std::int32_t TestValue,
                       bool& UseAnd) { return hundreds_tens_units(number_words(), to_integer(TestValue), UseAnd); },
         .examples = {{{21}, u"Twenty One "}, {{100, true}, u"One Hundred and "}, {{0}, u""}}},
    };
}

}  // namespace qor
