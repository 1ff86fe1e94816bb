#pragma once

#include <random>
#include <span>
#include <string>

#include "hosts/calc/formula/notation.hpp"

// Random formulas of Excel, in the spelling that reading them back gives. None is a constant alone.
namespace qor::support {

class FormulaGrammar {
  public:
    // `places` are what stands in front of references to other sheets, "Sheet2!" or "'my sheet'!".
    FormulaGrammar(std::span<const std::u16string_view> places, std::uint32_t seed) : places_(places), random_(seed) {}

    std::u16string formula() { return u"=" + part(1 + below(3)); }

  private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }

    static std::u16string decimal(int number) {
        const std::string digits = std::to_string(number);
        return {digits.begin(), digits.end()};
    }
    std::u16string cell() {
        const std::u16string letters = calc::column_letters(below(200));
        return std::u16string(below(2) ? u"$" : u"") + letters + (below(2) ? u"$" : u"") + decimal(below(5000) + 1);
    }
    // From the top left corner to the bottom right one, as the hosts put it.
    std::u16string area() {
        const int left = below(200);
        const int top = below(5000);
        const calc::Corner first{left, top, below(2) > 0, below(2) > 0};
        const calc::Corner last{left + below(20), top + 1 + below(20), below(2) > 0, below(2) > 0};
        return calc::range_text(first, last);
    }
    std::u16string place() {
        return std::u16string(places_[static_cast<std::size_t>(below(static_cast<int>(places_.size())))]);
    }

    std::u16string leaf() {
        switch (below(8)) {
            case 0:
                return cell();
            case 1:
                return area();
            case 2:
                return place() + cell();
            case 3:
                return place() + area();
            case 4:
                return decimal(below(1000)) + (below(2) ? u".25" : u"");
            case 5:
                return below(2) ? u"\"a,b;\"\"c\"\"!\"" : u"\"'Sheet1'!A1\"";
            case 6:
                return below(2) ? u"TRUE" : u"#N/A";
            default:
                return below(2) ? u"my_name" : u"{1,-2;\"x\",TRUE}";
        }
    }

    std::u16string part(int depth) {
        if (depth == 0) return leaf();
        const auto inner = [&] { return part(depth - 1); };
        switch (below(9)) {
            case 0:
                return inner() + u"+" + inner();
            case 1:
                return u"(" + inner() + u")&" + inner();
            case 2:
                return u"IF(" + inner() + u"," + inner() + u"," + inner() + u")";
            case 3:
                return u"FORMULATEXT(" + cell() + u")";
            case 4:
                return u"SUM((" + area() + u"," + cell() + u")," + inner() + u")";
            case 5:
                return u"CEILING(" + inner() + u",$A:$C " + area() + u")";
            case 6:
                return u"-(" + inner() + u")%<>" + inner();
            case 7:
                return u"IF(" + inner() + u",," + inner() + u")";
            default:
                return u"MAX( " + inner() + u" , " + inner() + u")^2";
        }
    }

    std::span<const std::u16string_view> places_;
    std::mt19937 random_;
};

}  // namespace qor::support
