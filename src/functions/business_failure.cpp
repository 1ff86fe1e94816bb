#include "functions/families.hpp"

// Weighted sums of ratios that tell a sound business from a failing one. The fourth ratio of each has the liabilities
// as its base, the others the assets.
namespace qor {

std::vector<FunctionDeclaration> business_failure_functions() {
    return {
        {.name = u"AMBFIPRIVOM",
         .help_id = 100060,
         .description =
             u"Returns the Altman's Measure for Business Failure Index for Private Owned Manufactures Ratio.",
         .parameters = {u"dWCapital", u"dRE", u"dAst", u"dLiab", u"dEBIT", u"dNetSales", u"dEqty"},
         .formula =
             [](Checked dWCapital, Checked dRE, Checked dAst, Checked dLiab, Checked dEBIT, Checked dNetSales,
                Checked dEqty) {
                 return 0.717 * (dWCapital / dAst) + 0.847 * (dRE / dAst) + 3.107 * (dEBIT / dAst) +
                        0.42 * (dEqty / dLiab) + 0.998 * (dNetSales / dAst);
             },
         .examples = {{{100, 200, 1000, 400, 300, 2000, 600}, 3.7992}}},
        {.name = u"AMBFIPRIVON",
         .help_id = 100065,
         .description =
             u"Returns the Altman's Measure for Business Failure Index For Private Owned Nonmanufactures Ratio.",
         .parameters = {u"dWCapital", u"dRE", u"dAst", u"dLiab", u"dEBIT", u"dEqty"},
         .formula =
             [](Checked dWCapital, Checked dRE, Checked dAst, Checked dLiab, Checked dEBIT, Checked dEqty) {
                 return 6.56 * (dWCapital / dAst) + 3.26 * (dRE / dAst) + 6.72 * (dEBIT / dAst) +
                        1.05 * (dEqty / dLiab);
             },
         .examples = {{{100, 200, 1000, 400, 300, 600}, 4.899}}},
        {.name = u"AMBFIPUBOM",
         .help_id = 100070,
         .description = u"Returns the Altman's Measure for Business Failure Index for Public Owned Manufactures Ratio.",
         .parameters = {u"dWCapital", u"dRE", u"dAst", u"dLiab", u"dEBIT", u"dNetSales", u"dMVEqty"},
         .formula =
             [](Checked dWCapital, Checked dRE, Checked dAst, Checked dLiab, Checked dEBIT, Checked dNetSales,
                Checked dMVEqty) {
                 return 1.2 * (dWCapital / dAst) + 1.4 * (dRE / dAst) + 3.3 * (dEBIT / dAst) + 0.6 * (dMVEqty / dLiab) +
                        1 * (dNetSales / dAst);
             },
         .examples = {{{100, 200, 1000, 400, 300, 2000, 800}, 4.59}}},
    };
}

}  // namespace qor
