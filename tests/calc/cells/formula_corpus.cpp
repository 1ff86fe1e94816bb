#include "tests/calc/cells/formula_corpus.hpp"

#include <algorithm>
#include <array>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/FormulaLanguage.hpp>
#include <com/sun/star/sheet/FormulaOpCodeMapEntry.hpp>
#include <com/sun/star/sheet/FunctionArgument.hpp>
#include <com/sun/star/sheet/XFormulaOpCodeMapper.hpp>
#include <limits>
#include <map>
#include <span>

#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/service.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

using Operation = std::pair<sal_Int32, std::u16string>;

std::multimap<Operation, std::u16string> names_in(sal_Int32 language) {
    const Document document = Host(office_context()).documents().back();
    const auto mapper = create_in<css::sheet::XFormulaOpCodeMapper>(document, "com.sun.star.sheet.FormulaOpCodeMapper");
    std::multimap<Operation, std::u16string> result;
    for (const auto& entry : mapper->getAvailableMappings(language, std::numeric_limits<sal_Int32>::max())) {
        rtl::OUString add_in;
        entry.Token.Data >>= add_in;
        result.emplace(Operation{entry.Token.OpCode, from_uno(add_in)}, from_uno(entry.Name));
    }
    return result;
}

// The name in Excel of what a file calls so; empty if that is Calc's own.
std::u16string name_in_excel(std::u16string_view file_name) {
    if (file_name == u"B") return u"BINOM.DIST.RANGE";  // files of Calc do not say so
    for (const std::u16string_view own : {u"_xlfn.ORG.", u"ORG.OPENOFFICE.", u"COM.SUN.STAR."}) {
        if (file_name.starts_with(own)) return {};
    }
    for (const std::u16string_view prefix : {u"_xlfn.COM.MICROSOFT.", u"_xlfn.", u"_XLL."}) {
        if (file_name.starts_with(prefix)) return std::u16string(file_name.substr(prefix.size()));
    }
    return std::u16string(file_name);
}

std::u16string call(std::u16string_view name, std::size_t count, std::span<const std::u16string_view> arguments) {
    std::u16string text(name);
    text += u'(';
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0) text += u',';
        text += arguments[i % arguments.size()];
    }
    text += u')';
    return text;
}

}  // namespace

std::vector<CorpusFunction> functions_shared_with_excel() {
    const auto english = names_in(css::sheet::FormulaLanguage::ENGLISH);
    const auto in_files = names_in(css::sheet::FormulaLanguage::OOXML);
    std::map<std::u16string, Operation> operations;
    for (const auto& [operation, name] : english) operations.emplace(name, operation);
    for (const auto& [operation, name] : in_files) operations.emplace(name_in_excel(name), operation);

    std::map<std::u16string, CorpusFunction> result;
    const auto described =
        create_service<css::container::XIndexAccess>(office_context(), "com.sun.star.sheet.FunctionDescriptions");
    for (sal_Int32 i = 0, count = described->getCount(); i < count; ++i) {
        rtl::OUString name;
        css::uno::Sequence<css::sheet::FunctionArgument> arguments;
        for (const auto& property : value_of<PropertyValues>(described->getByIndex(i))) {
            if (property.Name == "Name") property.Value >>= name;
            if (property.Name == "Arguments") property.Value >>= arguments;
        }
        const auto operation = operations.find(from_uno(name));
        if (operation == operations.end()) continue;
        const auto required =
            std::ranges::count(arguments, false, [](const auto& one) { return bool(one.IsOptional); });
        const auto [first, last] = in_files.equal_range(operation->second);
        for (const auto& entry : std::ranges::subrange(first, last)) {
            const std::u16string in_excel = name_in_excel(entry.second);
            if (in_excel.empty()) continue;
            result.try_emplace(in_excel, CorpusFunction{in_excel, static_cast<std::size_t>(required),
                                                        static_cast<std::size_t>(arguments.getLength())});
        }
    }
    std::vector<CorpusFunction> functions;
    for (auto& [name, function] : result) functions.push_back(std::move(function));
    return functions;
}

std::vector<std::u16string> corpus_formulas(const CorpusFunction& function) {
    using Arguments = std::array<std::u16string_view, 6>;
    static constexpr Arguments cells{u"A1", u"$B2", u"C$3", u"$D$4", u"XFD1048576", u"AA10"};
    static constexpr Arguments ranges{u"A1:B3", u"$C$1:D$4", u"B7:$B9", u"my_name", u"E5:$F6", u"G$8:G$9"};
    static constexpr Arguments sheets{u"'my sheet'!A1:B2",   u"Third!$C4",    u"'my sheet:Third'!$A$1",
                                      u"'my sheet'!my_cell", u"'A1'!$C$3:C5", u"'2024'!D4"};
    static constexpr Arguments constants{u"1", u"\"a,b;\"\"c\"\" {|}\"", u"TRUE", u"-2.5", u"#N/A", u"1.5E+20"};
    static constexpr Arguments arrays{
        u"{1,2;3,4}", u"{\"x;y\",\"|\",TRUE}", u"{-1.5;FALSE}", u"{\"\",#N/A;1,\"'\"}", u"{#DIV/0!}", u"{1}"};
    static constexpr Arguments nested{u"SUM(A1:A3,C1)", u"IF(A1>1,-B2%,\"x\")", u"(A1,B2:B3)",
                                      u"A1:B5 B2:C3",   u"-(A1+2)^2",           u"INDEX(A1:A9,3):B2"};
    const std::size_t least = function.required;
    const std::size_t most = std::max(function.described, least);
    if (most == 0) {
        const std::u16string alone = function.name + u"()";
        return {u"=" + alone, u"=-" + alone + u"%", u"=IF(" + alone + u">=A1," + alone + u",\"\")", u"=A1&" + alone};
    }
    const std::u16string simple = call(function.name, std::max<std::size_t>(least, 1), cells);
    return {u"=" + simple,
            u"=" + call(function.name, most, ranges),
            u"=" + call(function.name, most, sheets) + u"+1",
            u"=" + call(function.name, std::max<std::size_t>(least, 1), constants),
            u"=" + call(function.name, most, arrays),
            u"=2*" + call(function.name, most, nested),
            u"=IF(" + simple + u"<>0," + simple + u"," + call(function.name, most, constants) + u")&\"\""};
}

}  // namespace qor::calc::tests
