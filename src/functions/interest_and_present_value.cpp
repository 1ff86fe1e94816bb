#include <cmath>

#include "functions/families.hpp"

// Conversions of one rate of interest into another and what a stream of payments is worth today. Rates are fractions
// a year.
namespace qor {

std::vector<FunctionDeclaration> interest_and_present_value_functions() {
    return {
        // The growth factor: unlike EAIR it takes nothing off.
        {.name = u"CCR",
         .help_id = 100150,
         .description = u"Returns the Continuous Compounding Rate.",
         .parameters = {u"dNIR", {u"dYrs", 1}},
         .formula = [](Checked dNIR, Checked dYrs) { return power(std::exp(1.0), dNIR * dYrs); },
         .examples = {{{0.1}, 1.1052}, {{0.05}, 1.0513}, {{0.05, 2}, 1.1052}}},
        {.name = u"EAIR",
         .help_id = 100320,
         .description = u"Returns the Effective Annual Interest Rate.",
         .parameters = {u"dNIR", u"dFrq"},
         .formula = [](Checked dNIR, Checked dFrq) { return power(dNIR / dFrq + 1, dFrq) - 1; },
         .examples = {{{0.2, 2}, 0.21}, {{0.12, 12}, 0.1268}}},
        {.name = u"NIR",
         .help_id = 100560,
         .description = u"Returns the Nominal Interest Rate.",
         .parameters = {u"dRIR", u"dInfltnRat"},
         .formula = [](Checked dRIR, Checked dInfltnRat) { return (1 + dRIR) * (1 + dInfltnRat) - 1; },
         .examples = {{{0.03, 0.02}, 0.0506}}},
        {.name = u"RIR",
         .help_id = 100690,
         .description = u"Returns the Real Interest Rate Ratio.",
         .parameters = {u"dNIR", u"dInfltnRat"},
         .formula = [](Checked dNIR, Checked dInfltnRat) { return (1 + dNIR) / (1 + dInfltnRat) - 1; },
         .examples = {{{0.08, 0.05}, 0.0286}}},
        {.name = u"TCR",
         .help_id = 100810,
         .description = u"Returns the Trade Credit Rate.",
         .parameters = {u"dDisc", u"dDdLn", u"dND", u"lDaysInPrd"},
         .formula = [](Checked dDisc, Checked dDdLn, Checked dND,
                       std::int32_t lDaysInPrd) { return dDisc / ((dND - dDdLn) / lDaysInPrd); },
         .examples = {{{0.02, 10, 30, 365}, 0.365}}},
        {.name = u"PERP",
         .help_id = 100655,
         .description = u"Returns the Perpetuity.",
         .parameters = {u"dCsh", u"dNIR"},
         .formula = [](Checked dCsh, Checked dNIR) { return dCsh / dNIR; },
         .examples = {{{50, 0.08}, 625.0}}},
        {.name = u"PVGA",
         .help_id = 100660,
         .description = u"Returns the Present Value of Growing Annuity.",
         .parameters = {u"dCsh", u"dNIR", u"dGrwthRat", u"dFrq"},
         .formula =
             [](Checked dCsh, Checked dNIR, Checked dGrwthRat, Checked dFrq) {
                 const Checked perpetuity = 1 / (dNIR - dGrwthRat);
                 return (perpetuity - power((1 + dGrwthRat) / (1 + dNIR), dFrq) * perpetuity) * dCsh;
             },
         .examples = {{{100, 0.1, 0.05, 2}, 177.686}}},
        {.name = u"PVGP",
         .help_id = 100665,
         .description = u"Returns the Present Value of Growing Perpetuity.",
         .parameters = {u"dCsh", u"dNIR", u"dGrwthRat"},
         .formula = [](Checked dCsh, Checked dNIR, Checked dGrwthRat) { return dCsh / (dNIR - dGrwthRat); },
         .examples = {{{100, 0.1, 0.06}, 2500.0}}},
    };
}

}  // namespace qor
