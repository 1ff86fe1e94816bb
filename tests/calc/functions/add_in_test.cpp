#include <doctest/doctest.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <com/sun/star/util/XModifiable.hpp>

#include "functions/registry.hpp"
#include "hosts/calc/uno/text.hpp"
#include "platform/text.hpp"
#include "runtime/conversion.hpp"
#include "tests/calc/support/fixture.hpp"
#include "tests/calc_document/calc_document.hpp"
#include "tests/support/temporary_folder.hpp"

namespace qor::calc::tests {
namespace {

namespace uno = com::sun::star::uno;
using rtl::OUString;

struct Case {
    std::string formula;
    std::string shown;
};

std::string utf8(const OUString& text) {
    return to_utf8(view_of(text));
}

OUString in_formula(const Variant& value) {
    if (value.is_missing()) return {};
    if (const auto* text = value.get_if<std::u16string>()) return "\"" + to_uno(*text).replaceAll("\"", "\"\"") + "\"";
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

}  // namespace

TEST_CASE("a worksheet function computes in a cell") {
    const CalcDocument book(office_context());
    book.enter("C1", "6");
    book.enter("C2", "3");
    for (const Case& one : std::vector<Case>{
             {"=ARNS(100;300;1000)", "0.2"},
             {"=arns(100;300;1000)", "0.2"},
             {"=ARA(1;3)", "0.3333"},
             {"=ARA(1;3;1)", "0.3"},
             {"=ARA(5;2;0)", "2"},  // ties go to the even digit
             {"=ARA(7;2;0)", "4"},
             {"=ARA(1;3;)", "0.3333"},  // an empty argument is one that is left out
             {"=ARA(1;3;-1)", "0"},     // faults in the computation never show
             {"=ARA(1;0)", "0"},
             {"=ARA(C1;C2)", "2"},
             {"=SUM(ARA(C1;C2);1)", "3"},
         }) {
        CAPTURE(one.formula);
        book.enter("A1", one.formula.c_str());
        CHECK(book.shown("A1") == one.shown);
    }
}

TEST_CASE("every example of every function computes in a cell") {
    CalcDocument book(office_context());
    for (const Function& function : worksheet_functions()) {
        for (const Example& example : function.examples) {
            OUString formula = "=_xll." + to_uno(function.name) + "(";
            for (std::size_t place = 0; place < example.arguments.size(); ++place)
                formula += (place > 0 ? OUString(";") : OUString()) + in_formula(example.arguments[place]);
            book.cell("A1")->setFormula(formula + ")");
            CAPTURE(utf8(formula));
            CHECK(book.cell("A1")->getError() == 0);
            CHECK(book.shown("A1") == shown_in_cell(book, example.result));
        }
    }
}

TEST_CASE("functions live on in a file and compute after it is loaded") {
    const test::TemporaryFolder folder;
    for (const char* name : {"book.ods", "book.xlsx", "book.xls"}) {
        CAPTURE(name);
        {
            CalcDocument book(office_context());
            book.enter("A1", "100");
            book.enter("A2", "300");
            book.enter("B1", "=ARNS(A1;A2;1000)");
            book.enter("B2", "=IF(ARA(A2;A1;0)=3;\"three\";\"other\")");
            book.store(folder.path / name);
        }
        const CalcDocument book(office_context(), folder.path / name);
        CHECK(book.value("B1") == 0.2);
        book.enter("A1", "700");
        CHECK(book.value("B1") == 0.5);
        book.enter("A1", "100");
        book.calculate_all();
        CHECK(book.shown("B2") == "three");
        CHECK(book.value("B1") == 0.2);
    }
}

TEST_CASE("bare names in another program's file are repaired when it is loaded") {
    const CalcDocument book(office_context(), QOR_FOREIGN_WORKBOOK);
    const uno::Reference<com::sun::star::util::XModifiable> modifiable(book.document(), uno::UNO_QUERY_THROW);
    CHECK_FALSE(modifiable->isModified() != 0);
    CHECK(book.value("D1") == 0.2);  // the stored result is 99
    book.enter("A1", "700");
    book.enter("A2", "7");
    book.enter("A4", "11");
    book.calculate_all();
    CHECK(book.value("C1") == 0.5);
    CHECK(book.value("C2") == 3.5);
    CHECK(book.value("C3") == 24.5);
    CHECK(book.value("C4") == 38.5);
    CHECK(book.shown("C5") == "#NAME?");
    CHECK(book.shown("C6") == "ARA(1,2)x");
}

TEST_CASE("a name that Calc has already goes on meaning Calc's function") {
    CalcDocument book(office_context());
    book.enter("A1", "=ISLEAPYEAR(DATE(2000;6;1))");
    CHECK(book.value("A1") == 1);
    book.enter("A1", "=ISLEAPYEAR(2000)");  // a day in June 1905
    CHECK(book.value("A1") == 0);
    book.enter("A2", "=_xll.ISLEAPYEAR(2000)");
    CHECK(book.value("A2") == 1);
    const test::TemporaryFolder folder;
    for (const char* name : {"book.ods", "book.xlsx", "book.xls"}) {
        CAPTURE(name);
        book.store(folder.path / name);
        const CalcDocument again(office_context(), folder.path / name);
        again.calculate_all();
        CHECK(again.value("A1") == 0);
        CHECK(again.value("A2") == 1);
    }
}

TEST_CASE("a drive is asked again by a hard recalculation only") {
    const CalcDocument book(office_context());
    book.enter("A1", "=DRIVEINFO(3;\"C\")");  // the free space of the root file system
    const std::string before = book.shown("A1");
    // On the root file system wherever /tmp may be.
    std::string file_name = "/var/tmp/qor-test-XXXXXX";
    const int file = ::mkstemp(file_name.data());
    REQUIRE(file >= 0);
    ::unlink(file_name.c_str());
    REQUIRE(::posix_fallocate(file, 0, 1 << 26) == 0);
    book.enter("B1", "1");
    book.calculate();
    CHECK(book.shown("A1") == before);
    book.calculate_all();
    CHECK(book.shown("A1") != before);
    ::close(file);
}

}  // namespace qor::calc::tests
