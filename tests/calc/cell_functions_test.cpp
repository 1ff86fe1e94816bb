#include <doctest/doctest.h>

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/sheet/FunctionArgument.hpp>
#include <com/sun/star/sheet/FunctionCategory.hpp>
#include <com/sun/star/sheet/XArrayFormulaRange.hpp>
#include <com/sun/star/sheet/XFunctionDescriptions.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <map>

#include "functions/registry.hpp"
#include "hosts/calc/functions/parameter_type.hpp"
#include "hosts/calc/functions/wizard_text.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "tests/cli/calc_fixture.hpp"
#include "tests/cli/temporary_folder.hpp"

namespace qor::cli {
namespace {

namespace beans = com::sun::star::beans;
namespace sheet = com::sun::star::sheet;
namespace uno = com::sun::star::uno;
using rtl::OUString;

struct Case {
    const char* formula;
    const char* shown;
};

uno::Reference<uno::XInterface> create(const char* service) {
    return office().context()->getServiceManager()->createInstanceWithContext(OUString::createFromAscii(service),
                                                                              office().context());
}

std::string utf8(const OUString& text) {
    return to_utf8(calc::view_of(text));
}

OUString in_formula(const Variant& value) {
    if (value.is_missing()) return {};
    if (const auto* text = value.get_if<std::u16string>())
        return "\"" + calc::to_uno(*text).replaceAll("\"", "\"\"") + "\"";
    if (const auto* truth = value.get_if<bool>()) return *truth ? OUString("TRUE()") : OUString("FALSE()");
    if (const auto* date = value.get_if<Date>()) return OUString::number(date->serial);
    return OUString::number(to_double(value));
}

// What a cell shows that holds the value itself.
std::string shown_in_cell(const CalcDocument& book, const Variant& value) {
    if (const auto* text = value.get_if<std::u16string>()) return to_utf8(*text);
    if (value.is_empty()) return {};
    if (const auto* truth = value.get_if<bool>()) return *truth ? "1" : "0";
    const auto* date = value.get_if<Date>();
    book.cell("B1")->setValue(date ? date->serial : to_double(value));
    return book.shown("B1");
}

std::map<std::string, uno::Sequence<beans::PropertyValue>> wizard_entries() {
    const uno::Reference<com::sun::star::container::XIndexAccess> all(create("com.sun.star.sheet.FunctionDescriptions"),
                                                                      uno::UNO_QUERY_THROW);
    std::map<std::string, uno::Sequence<beans::PropertyValue>> entries;
    for (sal_Int32 place = 0; place < all->getCount(); ++place) {
        uno::Sequence<beans::PropertyValue> entry;
        all->getByIndex(place) >>= entry;
        for (const auto& value : entry) {
            if (value.Name == "Name") entries[utf8(value.Value.get<OUString>())] = entry;
        }
    }
    return entries;
}

template <class T>
T value_in(const uno::Sequence<beans::PropertyValue>& entry, const char* name) {
    T result{};
    for (const auto& value : entry) {
        if (value.Name.equalsAscii(name)) value.Value >>= result;
    }
    return result;
}

}  // namespace

TEST_CASE("a worksheet function computes in a cell") {
    CalcDocument book;
    book.enter("C1", "6");
    book.enter("C2", "3");
    book.enter("C3", "9");
    book.enter("D1", "=1/0");
    book.enter("D2", "'words");
    for (const Case& one : {
             Case{"=ARNS(100;300;1000)", "0.2"},
             Case{"=arns(100;300;1000)", "0.2"},
             Case{"=ARA(1;3)", "0.3333"},
             Case{"=ARA(1;3;1)", "0.3"},
             Case{"=ARA(5;2;0)", "2"},      // ties go to the even digit
             Case{"=ARA(7;2;0)", "4"},      //
             Case{"=ARA(1;3;)", "0.3333"},  // an empty argument is one that is left out
             Case{"=ARA(1;3;-1)", "0"},     // faults in the computation never show
             Case{"=ARA(1;0)", "0"},
             Case{"=ARA(B1;B2)", "0"},  // blank cells are 0
             Case{"=ARA(C1;C2)", "2"},
             Case{"=ARA(C1:C1;C2)", "2"},
             Case{"=ARA(C1;C2;B1)", "2"},
             Case{"=ARA(TRUE();2)", "0.5"},
             Case{"=SUM(ARA(C1;C2);1)", "3"},
             Case{"=ARA(D2;2)", "#VALUE!"},  // arguments that are none do show
             Case{"=ARA(\"words\";2)", "#VALUE!"},
             Case{"=ARA(5;2;\"words\")", "#VALUE!"},
             Case{"=ARA(5;2;C1:C2)", "#VALUE!"},
             Case{"=ARA(D1;2)", "#DIV/0!"},
             Case{"=ARA(5)", "Err:504"},
             Case{"=ARA(5;2;3;4)", "Err:504"},
         }) {
        CAPTURE(one.formula);
        book.enter("A1", one.formula);
        CHECK(book.shown("A1") == one.shown);
    }
}

TEST_CASE("a range as a number is the cell in line with the formula") {
    CalcDocument book;
    book.enter("C1", "6");
    book.enter("C2", "3");
    book.enter("A2", "=ARA(C1:C2;2)");
    CHECK(book.value("A2") == 1.5);
    book.enter("A3", "=ARA(C1:C2;2)");
    CHECK(book.shown("A3") == "#VALUE!");
    const uno::Reference<com::sun::star::container::XIndexAccess> sheets(book.document()->getSheets(),
                                                                         uno::UNO_QUERY_THROW);
    const uno::Reference<com::sun::star::table::XCellRange> first(sheets->getByIndex(0), uno::UNO_QUERY_THROW);
    uno::Reference<sheet::XArrayFormulaRange>(first->getCellRangeByName("A5:A6"), uno::UNO_QUERY_THROW)
        ->setArrayFormula("=ARA(C1:C2;2)");
    CHECK(book.value("A5") == 3);
    CHECK(book.value("A6") == 1.5);
}

TEST_CASE("every example of every function computes in a cell") {
    CalcDocument book;
    for (const Function& function : worksheet_functions()) {
        for (const Example& example : function.examples) {
            OUString formula = "=_xll." + calc::to_uno(function.name) + "(";
            for (std::size_t place = 0; place < example.arguments.size(); ++place)
                formula += (place > 0 ? OUString(";") : OUString()) + in_formula(example.arguments[place]);
            book.cell("A1")->setFormula(formula + ")");
            CAPTURE(utf8(formula));
            CHECK(book.cell("A1")->getError() == 0);
            CHECK(book.shown("A1") == shown_in_cell(book, example.result));
        }
    }
}

TEST_CASE("the function wizard knows every function and all its arguments") {
    const auto entries = wizard_entries();
    for (const Function& function : worksheet_functions()) {
        const std::string name = to_utf8(to_upper(calc::display_name(function)));  // so Calc shows all
        CAPTURE(name);
        const auto found = entries.find(name);
        REQUIRE(found != entries.end());
        CHECK(utf8(value_in<OUString>(found->second, "Description")) == to_utf8(function.description));
        const auto arguments = value_in<uno::Sequence<sheet::FunctionArgument>>(found->second, "Arguments");
        REQUIRE(static_cast<std::size_t>(arguments.getLength()) == function.parameters.size());
        for (std::size_t place = 0; place < function.parameters.size(); ++place) {
            const auto& argument = arguments[static_cast<sal_Int32>(place)];
            CHECK(utf8(argument.Name) == to_utf8(function.parameters[place].name));
            CHECK_FALSE(argument.Description.isEmpty());
            // Calc takes every argument for optional whose kind it leaves to the function.
            CHECK((argument.IsOptional != 0) == !calc::is_plain_number(function.parameters[place]));
        }
    }
    const auto& arns = entries.at("ARNS");
    CHECK(value_in<sal_Int32>(arns, "Category") == sheet::FunctionCategory::FINANCIAL);
    const auto arguments = value_in<uno::Sequence<sheet::FunctionArgument>>(arns, "Arguments");
    CHECK(utf8(arguments[2].Name) == "dNetSales");
    CHECK(utf8(arguments[2].Description) == "A number.");
    CHECK(utf8(arguments[3].Description) == "A whole number; 4 if it is left out.");
}

TEST_CASE("functions live on in a file and compute after it is loaded") {
    const TemporaryFolder folder;
    for (const char* name : {"book.ods", "book.xlsx", "book.xls"}) {
        CAPTURE(name);
        {
            CalcDocument book;
            book.enter("A1", "100");
            book.enter("A2", "300");
            book.enter("B1", "=ARNS(A1;A2;1000)");
            book.enter("B2", "=IF(ARA(A2;A1;0)=3;\"three\";\"other\")");
            book.store(folder.path() / name);
        }
        const CalcDocument book(folder.path() / name);
        CHECK(book.value("B1") == 0.2);
        book.enter("A1", "700");
        CHECK(book.value("B1") == 0.5);
        book.enter("A1", "100");
        book.calculate();
        CHECK(book.shown("B2") == "three");
        CHECK(book.value("B1") == 0.2);
    }
}

TEST_CASE("bare names in another program's file are repaired when it is loaded") {
    const CalcDocument book{std::filesystem::path(QOR_FOREIGN_WORKBOOK)};
    const uno::Reference<com::sun::star::util::XModifiable> modifiable(book.document(), uno::UNO_QUERY_THROW);
    CHECK_FALSE(modifiable->isModified() != 0);
    CHECK(book.value("D1") == 0.2);  // the stored result is 99
    book.enter("A1", "700");
    book.enter("A2", "7");
    book.enter("A4", "11");
    book.calculate();
    CHECK(book.value("C1") == 0.5);
    CHECK(book.value("C2") == 3.5);
    CHECK(book.value("C3") == 3.5);
    CHECK(book.value("C4") == 5.5);
    CHECK(book.shown("C5") == "#NAME?");
    CHECK(book.shown("C6") == "ARA(1,2)x");
}

TEST_CASE("a name that Calc has already goes on meaning Calc's function") {
    CalcDocument book;
    book.enter("A1", "=ISLEAPYEAR(DATE(2000;6;1))");
    CHECK(book.value("A1") == 1);
    book.enter("A1", "=ISLEAPYEAR(2000)");  // a day in June 1905
    CHECK(book.value("A1") == 0);
    book.enter("A2", "=_xll.ISLEAPYEAR(2000)");
    CHECK(book.value("A2") == 1);
    const TemporaryFolder folder;
    for (const char* name : {"book.ods", "book.xlsx"}) {
        CAPTURE(name);
        book.store(folder.path() / name);
        const CalcDocument again(folder.path() / name);
        again.calculate();
        CHECK(again.value("A1") == 0);
        CHECK(again.value("A2") == 1);
    }
}

}  // namespace qor::cli
