#include "functions/families.hpp"

// Depreciation and benefit names that callers may bind to. No method stands behind them: they give 0 for any arguments.
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
                       const Variant&, const Variant&, const Variant&, Checked) { return Checked(0); }},
        {.name = u"SEC179",
         .parameters = {u"dTtlCov", u"dEEContribution", u"dYear", u"vBirthDate", u"vFromDate", u"vToDate"},
         .formula = [](Checked, Checked, Checked, const Variant&, const Variant&,
                       const Variant&) { return Checked(0); }},
    };
}

}  // namespace qor
