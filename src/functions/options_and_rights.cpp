#include "functions/families.hpp"

// What the right to buy or sell a share at a fixed price is worth if it is used now. Out of the money it is negative.
namespace qor {

std::vector<FunctionDeclaration> option_and_right_functions() {
    return {
        {.name = u"VOC",
         .help_id = 100820,
         .description = u"Returns the Value of Call.",
         .parameters = {u"dMVPShr", u"dExrcsPShr", u"dNoShrs"},
         .formula = [](Checked dMVPShr, Checked dExrcsPShr,
                       Checked dNoShrs) { return (dMVPShr - dExrcsPShr) * dNoShrs; },
         .examples = {{{50, 45, 100}, 500.0}, {{10, 12, 100}, -200.0}}},
        {.name = u"VOP",
         .help_id = 100825,
         .description = u"Returns the Value of Put.",
         .parameters = {u"dMVPShr", u"dExrcsPShr", u"dNoShrs"},
         .formula = [](Checked dMVPShr, Checked dExrcsPShr,
                       Checked dNoShrs) { return (dExrcsPShr - dMVPShr) * dNoShrs; },
         .examples = {{{45, 50, 100}, 500.0}, {{12, 10, 100}, -200.0}}},
        {.name = u"VOSR",
         .help_id = 100830,
         .description = u"Returns the Value of Stock Right.",
         .parameters = {u"dMVPShr", u"dSubPrcNewStck", u"dNRRPNewStck"},
         .formula = [](Checked dMVPShr, Checked dSubPrcNewStck,
                       Checked dNRRPNewStck) { return (dMVPShr - dSubPrcNewStck) / dNRRPNewStck; },
         .examples = {{{50, 42, 4}, 2.0}}},
        {.name = u"VOW",
         .help_id = 100835,
         .description = u"Returns the Value of Warrant.",
         .parameters = {u"dMVPShr", u"dExrcsPShr", u"dShrsPrchsWWrnt"},
         .formula = [](Checked dMVPShr, Checked dExrcsPShr,
                       Checked dShrsPrchsWWrnt) { return (dMVPShr - dExrcsPShr) * dShrsPrchsWWrnt; },
         .examples = {{{30, 24, 5}, 30.0}}},
    };
}

}  // namespace qor
