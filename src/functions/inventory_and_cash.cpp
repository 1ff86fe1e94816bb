#include "functions/families.hpp"

// How much to order at a time and how much cash to hold: the order quantity with its costs, and the two models of the
// cash balance that trade the cost of a transfer against the interest forgone.
namespace qor {

std::vector<FunctionDeclaration> inventory_and_cash_functions() {
    return {
        {.name = u"EOQ",
         .help_id = 100285,
         .description = u"Returns the Economic Order Quantity.",
         .parameters = {u"dUntDmnd", u"dOC", u"dEOQHC"},
         .formula = [](Checked dUntDmnd, Checked dOC,
                       Checked dEOQHC) { return power((2 * dUntDmnd * dOC) / dEOQHC, 0.5); },
         .examples = {{{1000, 10, 2}, 100.0}}},
        {.name = u"EOQHC",
         .help_id = 100290,
         .description = u"Returns the Economic Order Quantity - Total Holding Costs.",
         .parameters = {u"dEOQ", u"dEOQHCPU"},
         .formula = [](Checked dEOQ, Checked dEOQHCPU) { return (dEOQ / 2) * dEOQHCPU; },
         .examples = {{{100, 3}, 150.0}}},
        {.name = u"EOQHCPU",
         .help_id = 100295,
         .description = u"Returns the Economic Order Quantity - Holding Costs Per Unit.",
         .parameters = {u"dHC", u"dBgQty", u"dEdQty", u"dPrchPrc"},
         .formula = [](Checked dHC, Checked dBgQty, Checked dEdQty,
                       Checked dPrchPrc) { return (dHC / average(dBgQty, dEdQty)) * dPrchPrc; },
         .examples = {{{500, 100, 300, 8}, 20.0}}},
        {.name = u"EOQNO",
         .help_id = 100300,
         .description = u"Returns the Economic Order Quantity - Number of Orders.",
         .parameters = {u"dUntDmnd", u"dEOQ"},
         .formula = [](Checked dUntDmnd, Checked dEOQ) { return dUntDmnd / dEOQ; },
         .examples = {{{1000, 100}, 10.0}}},
        {.name = u"EOQOC",
         .help_id = 100305,
         .description = u"Returns the Economic Order Quantity - Ordering Costs.",
         .parameters = {u"dEOQNO", u"dOC"},
         .formula = [](Checked dEOQNO, Checked dOC) { return dEOQNO * dOC; },
         .examples = {{{10, 25}, 250.0}}},
        {.name = u"EOQRC",
         .help_id = 100310,
         .description = u"Returns the Economic Order Quantity - Relevant Costs.",
         .parameters = {u"dEOQHC", u"dEOQOC"},
         .formula = [](Checked dEOQHC, Checked dEOQOC) { return dEOQHC + dEOQOC; },
         .examples = {{{150, 250}, 400.0}}},
        {.name = u"EOQRP",
         .help_id = 100315,
         .description = u"Returns the Economic Order Quantity - Reorder Point.",
         .parameters = {u"dUntDmnd", u"dLdTm", u"dSftyStck"},
         .formula = [](Checked dUntDmnd, Checked dLdTm, Checked dSftyStck) { return dUntDmnd * dLdTm + dSftyStck; },
         .examples = {{{20, 5, 30}, 130.0}}},
        {.name = u"OTCBB",
         .help_id = 100795,
         .description = u"Returns the Target Cash Balance - Baumol.",
         .parameters = {u"dFCTrns", u"dCshRqrd", u"dNIR"},
         .formula = [](Checked dFCTrns, Checked dCshRqrd,
                       Checked dNIR) { return power((2 * dFCTrns * dCshRqrd) / dNIR, 0.5); },
         .examples = {{{10, 1000, 0.05}, 632.4555}}},
        {.name = u"OTCBMO",
         .help_id = 100800,
         .description = u"Returns the Target Cash Balance - Miller-Orr.",
         .parameters = {u"dFCTrns", u"dVarDlyCF", u"dNIR", u"dSftyCsh"},
         .formula =
             [](Checked dFCTrns, Checked dVarDlyCF, Checked dNIR, Checked dSftyCsh) {
                 constexpr double days_in_year = 365;
                 const Checked daily_rate = power(1 + dNIR, 1 / days_in_year) - 1;
                 return power((3 * dFCTrns * dVarDlyCF) / (daily_rate * 4), 1.0 / 3) + dSftyCsh;
             },
         .examples = {{{10, 100, 0.1, 5}, 147.141}}},
    };
}

}  // namespace qor
