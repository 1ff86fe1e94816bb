#include <doctest/doctest.h>

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/sheet/FunctionArgument.hpp>
#include <com/sun/star/sheet/FunctionCategory.hpp>
#include <map>

#include "functions/registry.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "tests/calc/support/fixture.hpp"

namespace qor::calc::tests {
namespace {

namespace sheet = com::sun::star::sheet;
namespace uno = com::sun::star::uno;
using rtl::OUString;
using Entry = uno::Sequence<com::sun::star::beans::PropertyValue>;

std::string utf8(const OUString& text) {
    return to_utf8(view_of(text));
}

template <class T>
T value_in(const Entry& entry, const char* name) {
    T result{};
    for (const auto& value : entry) {
        if (value.Name.equalsAscii(name)) value.Value >>= result;
    }
    return result;
}

std::string text_in(const Entry& entry, const char* name) {
    return utf8(value_in<OUString>(entry, name));
}

// The functions that Calc's wizard shows, by their names: its own, those of the add-ins that come with it, and ours.
const std::multimap<std::string, Entry>& wizard() {
    static const auto entries = [] {
        const uno::Reference<com::sun::star::container::XIndexAccess> all(
            office_context()->getServiceManager()->createInstanceWithContext("com.sun.star.sheet.FunctionDescriptions",
                                                                             office_context()),
            uno::UNO_QUERY_THROW);
        std::multimap<std::string, Entry> named;
        for (sal_Int32 place = 0; place < all->getCount(); ++place) {
            const auto entry = all->getByIndex(place).get<Entry>();
            named.emplace(text_in(entry, "Name"), entry);
        }
        return named;
    }();
    return entries;
}

// The name in the wizard, which shows all in capitals.
std::string shown_name(const Function& function) {
    const std::string name = to_utf8(to_upper(function.name));
    return name == "ISLEAPYEAR" ? "_XLL.ISLEAPYEAR" : name;
}

std::int32_t wizard_category(Category category) {
    using namespace com::sun::star::sheet::FunctionCategory;
    switch (category) {
        case Category::financial:
            return FINANCIAL;
        case Category::date_and_time:
            return DATETIME;
        case Category::text:
            return TEXT;
        case Category::logical:
            return LOGICAL;
        case Category::information:
            return INFORMATION;
    }
    return -1;
}

bool is_ours(const Entry& entry) {
    return std::ranges::any_of(worksheet_functions(), [&](const Function& function) {
        return text_in(entry, "Name") == shown_name(function) &&
               text_in(entry, "Description") == to_utf8(function.description);
    });
}

}  // namespace

TEST_CASE("the function wizard shows every function with its texts") {
    for (const Function& function : worksheet_functions()) {
        const std::string name = shown_name(function);
        CAPTURE(name);
        REQUIRE(wizard().count(name) == 1);
        const Entry& entry = wizard().find(name)->second;
        CHECK(text_in(entry, "Description") == to_utf8(function.description));
        CHECK(value_in<sal_Int32>(entry, "Category") == wizard_category(function.category));
        const auto arguments = value_in<uno::Sequence<sheet::FunctionArgument>>(entry, "Arguments");
        REQUIRE(static_cast<std::size_t>(arguments.getLength()) == function.parameters.size());
        for (std::size_t place = 0; place < function.parameters.size(); ++place) {
            const auto& argument = arguments[static_cast<sal_Int32>(place)];
            const Parameter& parameter = function.parameters[place];
            CHECK(utf8(argument.Name) == to_utf8(parameter.name));
            // Calc takes every argument of these functions for an optional one: the text says which are not.
            CHECK(utf8(argument.Description).ends_with("; required.") == !parameter.is_optional());
        }
    }
}

TEST_CASE("the wizard's texts of an argument") {
    struct Row {
        const char* function;
        sal_Int32 place;
        const char* name;
        const char* text;
    };
    for (const auto& [function, place, name, text] : {
             Row{"ARNS", 2, "dNetSales", "A number; required."},
             Row{"ARNS", 3, "lDecPlace", "A whole number; 4 if it is left out."},
             Row{"EPS", 2, "dPrfrdDiv", "A number; may be left out."},
             Row{"CONTAINS", 0, "sString", "A text; required."},
             Row{"CONTAINS", 4, "bCaseSens", "TRUE or FALSE; FALSE if it is left out."},
             Row{"EEOMONTH", 0, "vDt", "A value of any kind; required."},
             Row{"EEOMONTH", 2, "lNPrd", "A whole number; may be left out."},
             Row{"DRIVEINFO", 0, "lTypeInfo", "A whole number; required."},
         }) {
        CAPTURE(function);
        REQUIRE(wizard().count(function) == 1);
        const auto arguments =
            value_in<uno::Sequence<sheet::FunctionArgument>>(wizard().find(function)->second, "Arguments");
        REQUIRE(place < arguments.getLength());
        CHECK(utf8(arguments[place].Name) == name);
        CHECK(utf8(arguments[place].Description) == text);
    }
}

TEST_CASE("Calc and the add-ins that come with it have one of our names and no other") {
    std::vector<std::string> taken;
    std::size_t others = 0;
    for (const auto& [name, entry] : wizard()) {
        if (is_ours(entry)) continue;
        ++others;
        if (find_function(from_utf8(name))) taken.push_back(name);
    }
    CHECK(others > 500);
    CHECK(taken == std::vector<std::string>{"ISLEAPYEAR"});
}

}  // namespace qor::calc::tests
