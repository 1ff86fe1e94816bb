#include <benchmark/benchmark.h>

#include <com/sun/star/sheet/FillDirection.hpp>
#include <com/sun/star/sheet/XCalculatable.hpp>
#include <com/sun/star/sheet/XCellSeries.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/text/XText.hpp>

#include "automation/member_names.hpp"
#include "bench/calc/cases.hpp"
#include "functions/registry.hpp"
#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/adapter/objects/application/application.hpp"
#include "hosts/calc/uno/text.hpp"

namespace qor::bench {
namespace {

constexpr std::int32_t rows = 100'000;
constexpr std::int32_t library_column = 20;  // behind every argument

Object book_with_numbers(const Object& application) {
    Object book = application.get(names::Workbooks).call(names::Add);
    Array numbers = Array::table(rows, 3);
    for (std::size_t row = 0; row < rows; ++row) {
        numbers.at(row, 0) = 100.0 + static_cast<double>(row % 97);
        numbers.at(row, 1) = 300.0 + static_cast<double>(row % 89);
        numbers.at(row, 2) = 1000.0 + static_cast<double>(row % 83);
    }
    book.get(names::Worksheets, 1).get(names::Range, u"A1:C100000").put(names::Value, std::move(numbers));
    return book;
}

css::uno::Reference<css::table::XCellRange> first_sheet(const calc::Document& document) {
    using css::uno::UNO_QUERY_THROW;
    const css::uno::Reference<css::container::XIndexAccess> sheets(
        css::uno::Reference<css::sheet::XSpreadsheetDocument>(document.reference(), UNO_QUERY_THROW)->getSheets(),
        UNO_QUERY_THROW);
    return {sheets->getByIndex(0), UNO_QUERY_THROW};
}

// Calc's own way down a column: formula by formula the time would grow with the square of the rows.
void fill_column(const calc::Document& document, const char* formula) {
    const css::uno::Reference<css::table::XCellRange> sheet = first_sheet(document);
    sheet->getCellByPosition(3, 0)->setFormula(rtl::OUString::createFromAscii(formula));
    const css::uno::Reference<css::sheet::XCellSeries> column(sheet->getCellRangeByPosition(3, 0, 3, rows - 1),
                                                              css::uno::UNO_QUERY_THROW);
    column->fillAuto(css::sheet::FillDirection_TO_BOTTOM, 1);
}

// A row a call: the functions in turn, with the arguments of their first example in the columns from A on.
void enter_library(const css::uno::Reference<css::table::XCellRange>& sheet) {
    for (sal_Int32 row = 0; row < rows; ++row) {
        const Function& function = worksheet_functions()[static_cast<std::size_t>(row) % worksheet_functions().size()];
        const std::vector<Variant>& arguments = function.examples.front().arguments;
        rtl::OUString formula = "=_xll." + calc::to_uno(function.name) + "(";
        for (sal_Int32 column = 0; column < static_cast<sal_Int32>(arguments.size()); ++column) {
            const Variant& argument = arguments[static_cast<std::size_t>(column)];
            const auto cell = sheet->getCellByPosition(column, row);
            if (const auto* text = argument.get_if<std::u16string>())
                css::uno::Reference<css::text::XText>(cell, css::uno::UNO_QUERY_THROW)->setString(calc::to_uno(*text));
            else
                cell->setValue(to_double(argument));
            formula += (column > 0 ? rtl::OUString(";") : rtl::OUString()) +
                       rtl::OUString(static_cast<sal_Unicode>(u'A' + column)) + rtl::OUString::number(row + 1);
        }
        sheet->getCellByPosition(library_column, row)->setFormula(formula + ")");
    }
}

void recalculate_library(benchmark::State& state, const Context& context) {
    const Object application = calc::make_application(context, nullptr);
    const Object book = application.get(names::Workbooks).call(names::Add);
    const calc::Document document = calc::Host(context).documents().back();
    const css::uno::Reference<css::sheet::XCalculatable> calculation(document.reference(), css::uno::UNO_QUERY_THROW);
    calculation->enableAutomaticCalculation(false);
    enter_library(first_sheet(document));
    for (auto _ : state) calculation->calculateAll();
    book.call(names::Close, false);
}

void recalculate(benchmark::State& state, const Context& context, const char* formula) {
    const Object application = calc::make_application(context, nullptr);
    const Object book = book_with_numbers(application);
    const calc::Document document = calc::Host(context).documents().back();
    fill_column(document, formula);
    const Variant last = book.get(names::Worksheets, 1).get(names::Range, u"D100000").get(names::Value);
    if (!last.get_if<double>() || *last.get_if<double>() == 0) state.SkipWithError("the formula does not compute");
    const css::uno::Reference<css::sheet::XCalculatable> calculation(document.reference(), css::uno::UNO_QUERY_THROW);
    for (auto _ : state) calculation->calculateAll();
    book.call(names::Close, false);
}

}  // namespace

void register_recalculation(const Context& context) {
    const auto enter = [](const char* name, auto work) {
        benchmark::RegisterBenchmark(name, work)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(5);
    };
    const auto enter_formula = [&](const char* name, const char* formula) {
        enter(name, [context, formula](benchmark::State& state) { recalculate(state, context, formula); });
    };
    enter_formula("recalculate 100,000/DOLLARDE(A1;16)", "=DOLLARDE(A1;16)");
    enter_formula("recalculate 100,000/ARNS(A1;B1;C1)", "=ARNS(A1;B1;C1)");
    enter_formula("recalculate 100,000/ROUND(AVERAGE(A1;B1)/C1;4)", "=ROUND(AVERAGE(A1;B1)/C1;4)");
    enter("recalculate 100,000/the whole library, a function a row",
          [context](benchmark::State& state) { recalculate_library(state, context); });
    enter_formula("move 100,000 dates/EDATE(C1;1)", "=EDATE(C1;1)");
    enter_formula("move 100,000 dates/EDATEADD(\"m\";1;C1)", "=EDATEADD(\"m\";1;C1)");
    enter_formula("end 100,000 months/EOMONTH(C1;1)", "=EOMONTH(C1;1)");
    enter_formula("end 100,000 months/EEOMONTH(C1;0;1)", "=EEOMONTH(C1;0;1)");
}

}  // namespace qor::bench
