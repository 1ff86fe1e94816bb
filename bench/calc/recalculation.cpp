#include <benchmark/benchmark.h>

#include <com/sun/star/sheet/FillDirection.hpp>
#include <com/sun/star/sheet/XCalculatable.hpp>
#include <com/sun/star/sheet/XCellSeries.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCellRange.hpp>

#include "automation/member_names.hpp"
#include "bench/calc/cases.hpp"
#include "hosts/calc/adapter/application.hpp"
#include "hosts/calc/adapter/host.hpp"
#include "hosts/calc/uno/text.hpp"

namespace qor::bench {
namespace {

constexpr std::int32_t rows = 100'000;

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

// Calc's own way down a column: formula by formula the time would grow with the square of the rows.
void fill_column(const calc::Document& document, const char* formula) {
    using css::uno::UNO_QUERY_THROW;
    const css::uno::Reference<css::container::XIndexAccess> sheets(
        css::uno::Reference<css::sheet::XSpreadsheetDocument>(document.reference(), UNO_QUERY_THROW)->getSheets(),
        UNO_QUERY_THROW);
    const css::uno::Reference<css::table::XCellRange> sheet(sheets->getByIndex(0), UNO_QUERY_THROW);
    sheet->getCellByPosition(3, 0)->setFormula(rtl::OUString::createFromAscii(formula));
    const css::uno::Reference<css::sheet::XCellSeries> column(sheet->getCellRangeByPosition(3, 0, 3, rows - 1),
                                                              UNO_QUERY_THROW);
    column->fillAuto(css::sheet::FillDirection_TO_BOTTOM, 1);
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
    const auto enter = [&](const char* name, const char* formula) {
        benchmark::RegisterBenchmark(
            name, [context, formula](benchmark::State& state) { recalculate(state, context, formula); })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->Repetitions(7);
    };
    enter("recalculate 100,000/DOLLARDE(A1;16)", "=DOLLARDE(A1;16)");
    enter("recalculate 100,000/ARNS(A1;B1;C1)", "=ARNS(A1;B1;C1)");
    enter("recalculate 100,000/ROUND(AVERAGE(A1;B1)/C1;4)", "=ROUND(AVERAGE(A1;B1)/C1;4)");
}

}  // namespace qor::bench
