#include "functions/families.hpp"

// What is learnt by repeating a task, and how well people are found and kept.
namespace qor {

std::vector<FunctionDeclaration> workforce_functions() {
    return {
        // The index is what a doubling of the number of units leaves of a unit's time: 0.8 for an 80 percent curve.
        {.name = u"LR",
         .help_id = 100435,
         .description = u"Returns the Learning Rate.",
         .parameters = {u"dCumNoUntPrd", u"dTmFrstUnt", u"dLrngIndx"},
         .formula =
             [](Checked dCumNoUntPrd, Checked dTmFrstUnt, Checked dLrngIndx) {
                 return dTmFrstUnt * power(dCumNoUntPrd, natural_logarithm(dLrngIndx) / natural_logarithm(Checked(2)));
             },
         .examples = {{{8, 10, 0.8}, 5.12}}},
        {.name = u"HRA",
         .help_id = 120000,
         .description = u"Returns the employee candidate job acceptance rate.",
         .parameters = {u"dNoJbsOffrsAcptd", u"dNoJbsOffrsExtnd"},
         .formula = [](Checked dNoJbsOffrsAcptd,
                       Checked dNoJbsOffrsExtnd) { return dNoJbsOffrsAcptd / dNoJbsOffrsExtnd; },
         .examples = {{{40, 50}, 0.8}}},
        {.name = u"HRCPH",
         .help_id = 120005,
         .description = u"Returns the average costs per hire.",
         .parameters = {u"dHrngCst", u"dEmplyHrd"},
         .formula = [](Checked dHrngCst, Checked dEmplyHrd) { return dHrngCst / dEmplyHrd; },
         .examples = {{{9000, 6}, 1500.0}}},
        {.name = u"HRPM",
         .help_id = 120010,
         .description = u"Returns the number of entry level staff hired promoted to managers.",
         .parameters = {u"dELEmplyYrPrm", u"dELEmplyYr"},
         .formula = [](Checked dELEmplyYrPrm, Checked dELEmplyYr) { return dELEmplyYrPrm / dELEmplyYr; },
         .examples = {{{3, 12}, 0.25}}},
        // The description is that of HRPM, as it is registered.
        {.name = u"HRR",
         .help_id = 120015,
         .description = u"Returns the number of entry level staff hired promoted to managers.",
         .parameters = {u"dEmplyHrdStill", u"dEmplyHrd"},
         .formula = [](Checked dEmplyHrdStill, Checked dEmplyHrd) { return dEmplyHrdStill / dEmplyHrd; },
         .examples = {{{18, 24}, 0.75}}},
    };
}

}  // namespace qor
