#include "hosts/calc/adapter/ground/function_names.hpp"

#include <array>
#include <com/sun/star/sheet/FormulaLanguage.hpp>
#include <com/sun/star/sheet/FormulaOpCodeMapEntry.hpp>
#include <com/sun/star/sheet/XFormulaOpCodeMapper.hpp>
#include <limits>
#include <map>

#include "hosts/calc/formula/notation.hpp"
#include "hosts/calc/uno/service.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

// An operation by its code; the functions of add-ins share one code and are told apart by their own name.
using Operation = std::pair<sal_Int32, std::u16string>;
using NamesByOperation = std::multimap<Operation, std::u16string>;

bool is_function_name(std::u16string_view name) {
    return !name.empty() && (is_letter(name.front()) || name.front() == u'_');
}

NamesByOperation names_in(const Ref<css::sheet::XFormulaOpCodeMapper>& mapper, sal_Int32 language) {
    NamesByOperation result;
    constexpr sal_Int32 all_groups = std::numeric_limits<sal_Int32>::max();
    for (const auto& entry : mapper->getAvailableMappings(language, all_groups)) {
        if (!is_function_name(view_of(entry.Name))) continue;
        rtl::OUString add_in_name;
        entry.Token.Data >>= add_in_name;
        result.emplace(Operation{entry.Token.OpCode, from_uno(add_in_name)}, from_uno(entry.Name));
    }
    return result;
}

// In files newer functions carry prefixes that the user never sees.
std::u16string_view without_prefix(std::u16string_view name) {
    static constexpr std::array<std::u16string_view, 5> prefixes{
        u"_xlfn.ORG.LIBREOFFICE.", u"_xlfn.ORG.OPENOFFICE.", u"_xlfn.COM.MICROSOFT.", u"_xlfn.", u"ORG.OPENOFFICE."};
    for (const std::u16string_view prefix : prefixes) {
        if (name.starts_with(prefix)) return name.substr(prefix.size());
    }
    return name;
}

// Excel's own names come first: what only Calc has must not take one of them. The last ones are no user's.
enum class Origin : std::uint8_t { excel, calc, interface };

Origin origin_of(std::u16string_view file_name) {
    if (file_name.starts_with(u"COM.SUN.STAR.")) return Origin::interface;
    const bool own = file_name.starts_with(u"_xlfn.ORG.") || file_name.starts_with(u"ORG.OPENOFFICE.");
    return own ? Origin::calc : Origin::excel;
}

}  // namespace

FunctionNames function_names(const Document& any_document) {
    const auto mapper =
        create_in<css::sheet::XFormulaOpCodeMapper>(any_document, "com.sun.star.sheet.FormulaOpCodeMapper");
    const NamesByOperation calc_names = names_in(mapper, css::sheet::FormulaLanguage::ODF_11);
    const NamesByOperation file_names = names_in(mapper, css::sheet::FormulaLanguage::OOXML);

    FunctionNames names;
    for (const Origin origin : {Origin::excel, Origin::calc, Origin::interface}) {
        for (const auto& [operation, file_name] : file_names) {
            if (origin_of(file_name) != origin) continue;
            const auto calc_name = calc_names.find(operation);
            if (calc_name == calc_names.end()) continue;
            const std::u16string in_calc = to_upper(calc_name->second);
            const std::u16string in_excel = to_upper(without_prefix(file_name));
            if (origin != Origin::excel && names.calc_by_excel.contains(in_excel)) continue;
            names.excel_by_calc.try_emplace(in_calc, in_excel);
            const auto [reverse, added] = names.calc_by_excel.try_emplace(in_excel, in_calc);
            if (!added && in_calc == in_excel) reverse->second = in_calc;
        }
    }
    // The one that the office's table for files does not know.
    names.excel_by_calc[u"B"] = u"BINOM.DIST.RANGE";
    names.calc_by_excel[u"BINOM.DIST.RANGE"] = u"B";
    return names;
}

}  // namespace qor::calc
