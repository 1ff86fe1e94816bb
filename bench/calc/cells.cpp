#include <benchmark/benchmark.h>

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/FillDirection.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellSeries.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <functional>

#include "automation/member_names.hpp"
#include "bench/calc/cases.hpp"
#include "hosts/calc/adapter/ground/host.hpp"
#include "hosts/calc/adapter/objects/application/application.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/running_command.hpp"

namespace qor::bench {
namespace {

using calc::Ref;
using Data = css::uno::Sequence<css::uno::Sequence<css::uno::Any>>;

constexpr std::int32_t many_rows = 20'000;  // of ten columns
constexpr std::int32_t long_column = 100'000;
constexpr std::int32_t few_cells = 20'000;
constexpr std::int32_t run_length = 100;

// A new workbook as the tools see it and as the office hands it out.
struct Bench {
    explicit Bench(const Context& context) : application(calc::make_application(context, nullptr)) {
        book = application.get(names::Workbooks).call(names::Add);
        sheet = book.get(names::Worksheets, 1);
        const calc::Document document = calc::Host(context).documents().back();
        raw =
            Ref<css::sheet::XSpreadsheet>(Ref<css::container::XIndexAccess>(Ref{document->getSheets()})->getByIndex(0));
    }
    ~Bench() {
        attempt([&] { book.call(names::Close, false); });
    }

    Object range(std::int32_t rows, std::int32_t columns) const {
        return sheet.get(names::Range, sheet.get(names::Cells, 1, 1), sheet.get(names::Cells, rows, columns));
    }
    auto raw_range(std::int32_t rows, std::int32_t columns) const {
        return Ref{raw->getCellRangeByPosition(0, 0, columns - 1, rows - 1)};
    }

    Object application;
    Object book;
    Object sheet;
    Ref<css::sheet::XSpreadsheet> raw;
};

// Half numbers and half texts.
Array mixed_values() {
    Array values = Array::table(many_rows, 10);
    for (std::size_t place = 0; place < values.size(); ++place) {
        values.at(place) = place % 2 ? Variant(static_cast<double>(place)) : Variant(u"text of a cell");
    }
    return values;
}

Data mixed_data() {
    Data data(many_rows);
    auto* rows = data.getArray();
    for (std::int32_t row = 0; row < many_rows; ++row) {
        rows[row].realloc(10);
        css::uno::Any* cells = rows[row].getArray();
        for (std::int32_t column = 0; column < 10; ++column) {
            cells[column] =
                column % 2 ? css::uno::Any(double{10} * row + column) : css::uno::Any(rtl::OUString("text of a cell"));
        }
    }
    return data;
}

void fill_raw(const Bench& bench) {
    Ref<css::sheet::XCellRangeData>(bench.raw_range(many_rows, 10))->setDataArray(mixed_data());
}

// Relative formulas down column B, which a user would get by dragging the first one.
Array column_of_formulas() {
    Array formulas = Array::table(long_column, 1);
    for (std::int32_t row = 0; row < long_column; ++row) {
        std::u16string text = u"=A";
        for (const char c : std::to_string(row + 1)) text += static_cast<char16_t>(c);
        formulas.at(static_cast<std::size_t>(row)) = text + u"*2";
    }
    return formulas;
}

Object column_b(const Bench& bench) {
    return bench.sheet.get(names::Range, u"B1:B100000");
}

// Ten rows in bold, ten rows not.
void mix_looks(const Bench& bench) {
    for (std::int32_t row = 0; row < long_column; row += 20) {
        calc::set_property(Ref{bench.raw->getCellRangeByPosition(1, row, 1, row + 9)}, "CharWeight", 150.0F);
    }
}

using Work = std::function<void(const Bench&)>;

// Times the work alone; what is to be there before is made anew for each run.
void enter(const Context& context, const char* name, Work work, Work before = {}) {
    benchmark::RegisterBenchmark(name,
                                 [=](benchmark::State& state) {
                                     const Bench bench(context);
                                     if (before) before(bench);
                                     const std::uint64_t calls = calc::host_calls;
                                     for (auto _ : state) work(bench);
                                     state.counters["host calls"] = static_cast<double>(calc::host_calls - calls);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(5);
}

}  // namespace

void register_cells(const Context& context) {
    const auto add = [&](const char* name, Work work, Work before = {}) { enter(context, name, work, before); };
    add(
        "read 200,000 values/the office's array",
        [](const Bench& bench) {
            benchmark::DoNotOptimize(Ref<css::sheet::XCellRangeData>(bench.raw_range(many_rows, 10))->getDataArray());
        },
        fill_raw);
    add(
        "read 200,000 values/Value",
        [](const Bench& bench) { benchmark::DoNotOptimize(bench.range(many_rows, 10).get(names::Value)); }, fill_raw);
    add(
        "read 200,000 formulas/the office's array",
        [](const Bench& bench) {
            benchmark::DoNotOptimize(
                Ref<css::sheet::XCellRangeFormula>(bench.raw_range(many_rows, 10))->getFormulaArray());
        },
        fill_raw);
    add(
        "read 200,000 formulas/Formula",
        [](const Bench& bench) { benchmark::DoNotOptimize(bench.range(many_rows, 10).get(names::Formula)); }, fill_raw);
    add("write 200,000 values/the office's array", fill_raw);
    add("write 200,000 values/Value",
        [](const Bench& bench) { bench.range(many_rows, 10).put(names::Value, mixed_values()); });
    add("write 200,000 values over as many/the office's array", fill_raw, fill_raw);
    add(
        "write 200,000 values over as many/Value",
        [](const Bench& bench) { bench.range(many_rows, 10).put(names::Value, mixed_values()); }, fill_raw);
    add(
        "read 20,000 cells one by one/the office's cells",
        [](const Bench& bench) {
            for (std::int32_t row = 0; row < few_cells; ++row) {
                benchmark::DoNotOptimize(Ref { bench.raw->getCellByPosition(1, row) } -> getValue());
            }
        },
        fill_raw);
    add(
        "read 20,000 cells one by one/the office's cells with their formats",
        [](const Bench& bench) {
            for (std::int32_t row = 0; row < few_cells; ++row) {
                const Ref cell{bench.raw->getCellByPosition(1, row)};
                benchmark::DoNotOptimize(cell->getType());
                benchmark::DoNotOptimize(cell->getValue());
                benchmark::DoNotOptimize(calc::get_property<std::int32_t>(cell, "NumberFormat"));
            }
        },
        fill_raw);
    add(
        "read 20,000 cells one by one/Value2",
        [](const Bench& bench) {
            const calc::RunningCommand command;  // as the tools read
            for (std::int32_t row = 1; row <= few_cells; ++row) {
                benchmark::DoNotOptimize(bench.sheet.get(names::Cells, row, 2).get(names::Value2));
            }
        },
        fill_raw);
    add(
        "read 20,000 cells one by one/Value",
        [](const Bench& bench) {
            const calc::RunningCommand command;  // as the tools read
            for (std::int32_t row = 1; row <= few_cells; ++row) {
                benchmark::DoNotOptimize(bench.sheet.get(names::Cells, row, 2).get(names::Value));
            }
        },
        fill_raw);
    add("write 20,000 cells one by one/the office's cells", [](const Bench& bench) {
        for (std::int32_t row = 0; row < few_cells; ++row) Ref {
                bench.raw->getCellByPosition(1, row)
                } -> setValue(row);
    });
    add("write 20,000 cells one by one/Value", [](const Bench& bench) {
        for (std::int32_t row = 1; row <= few_cells; ++row) {
            bench.sheet.get(names::Cells, row, 2).put(names::Value, static_cast<double>(row));
        }
    });
    add("100,000 formulas down a column/the office's filling", [](const Bench& bench) {
        Ref {
            bench.raw->getCellByPosition(1, 0)
            } -> setFormula("=A1*2");
        const Ref<css::sheet::XCellSeries> column(Ref{bench.raw->getCellRangeByPosition(1, 0, 1, long_column - 1)});
        column->fillAuto(css::sheet::FillDirection_TO_BOTTOM, 1);
    });
    add("100,000 formulas down a column/an array",
        [](const Bench& bench) { column_b(bench).put(names::Formula, column_of_formulas()); });
    add("100,000 formulas down a column/one formula",
        [](const Bench& bench) { column_b(bench).put(names::Formula, u"=A1*2"); });
    add(
        "100,000 formulas down a column/one over mixed looks",
        [](const Bench& bench) { column_b(bench).put(names::Formula, u"=A1*2"); }, mix_looks);
    add(
        "100,000 formulas down a column/an array over mixed looks",
        [](const Bench& bench) { column_b(bench).put(names::Formula, column_of_formulas()); }, mix_looks);
    add("colour 100,000 cells in runs of 100/the office's ranges", [](const Bench& bench) {
        for (std::int32_t row = 0; row < long_column; row += 2 * run_length) {
            calc::set_property(Ref{bench.raw->getCellRangeByPosition(1, row, 1, row + run_length - 1)}, "CellBackColor",
                               std::int32_t{0xFFCC00});
        }
    });
    add("colour 100,000 cells in runs of 100/Interior.Color", [](const Bench& bench) {
        for (std::int32_t row = 1; row <= long_column; row += 2 * run_length) {
            const Object run = bench.sheet.get(names::Range, bench.sheet.get(names::Cells, row, 2),
                                               bench.sheet.get(names::Cells, row + run_length - 1, 2));
            run.get(names::Interior).put(names::Color, 0x00CCFF);
        }
    });
}

}  // namespace qor::bench
