#include <random>

#include "bench/walk/cell_walk.hpp"
#include "tests/calc/support/report_run.hpp"

namespace qor::calc::tests {
namespace {

using bench::WalkedSheet;

constexpr std::int32_t first_report_row = 5;  // the headings'

// Sheets with all that can stand in a cell, everywhere and in any look.
class Generator {
  public:
    explicit Generator(std::uint32_t seed) : random_(seed) {}

    void fill(const Object& book) {
        const Object sheet = book.get(names::Worksheets, 1);
        const std::int32_t left = 1 + below(3);
        const std::int32_t top = 1 + below(4);
        const std::int32_t columns = 1 + below(6);
        const std::int32_t rows = 1 + below(14);
        for (std::int32_t column = left; column < left + columns; ++column) {
            if (below(2) == 0) {
                sheet
                    .get(names::Range, sheet.get(names::Cells, top, column),
                         sheet.get(names::Cells, top + rows - 1, column))
                    .put(names::NumberFormat, format());
            }
            for (std::int32_t row = top; row < top + rows; ++row) fill_cell(sheet.get(names::Cells, row, column));
        }
        add_array(sheet, top + rows + 1, left);
        name(book, u"First", sheet.get(names::Cells, top, left));
        name(book, u"Again", sheet.get(names::Cells, top, left));
        name(book, u"Last", sheet.get(names::Cells, top + rows - 1, left + columns - 1));
        book.get(names::Names).call(names::Add, u"Sum", u"=1+2");
    }

  private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }

    const char16_t* format() {
        static constexpr const char16_t* formats[] = {u"General", u"0.00",      u"m/d/yyyy", u"m/d/yyyy h:mm", u"0%",
                                                      u"@",       u"$#,##0.00", u"#,##0",    u"d-mmm-yy"};
        return formats[below(9)];
    }

    Variant constant() {
        switch (below(6)) {
            case 0:
                return below(3) - 1;
            case 1:
                return below(100000) / 8.0;
            case 2:
                return below(2) == 0;
            case 3:
                return Date{30000 + below(20000) / 4.0};
            case 4:
                return Currency{std::int64_t{below(1000000)} * 10};
            default:
                return ErrorValue{2042};
        }
    }

    const char16_t* text() {
        static constexpr const char16_t* texts[] = {u"plain", u"'007",  u"'1/2/2000", u"'TRUE",
                                                    u"'5%",   u"'=1+2", u"'=not (",   u"''in quotes",
                                                    u"a\nb",  u"'#N/A", u"A5 & B",    u"e5"};
        return texts[below(12)];
    }

    const char16_t* formula() {
        static constexpr const char16_t* formulas[] = {u"=1+2",          u"=\"\"",  u"=1/0", u"=NA()",
                                                       u"=TRUE",         u"=\"x\"", u"=1=2", u"=DATE(2004,2,29)",
                                                       u"=\"1/2/2000\"", u"=ROW()"};
        return formulas[below(10)];
    }

    void fill_cell(const Object& cell) {
        switch (below(8)) {
            case 0:
                break;
            case 1:
            case 2:
                cell.put(names::Value, text());
                break;
            case 3:
            case 4:
                cell.put(names::Formula, formula());
                break;
            default:
                cell.put(names::Value, constant());
        }
        if (below(4) == 0) cell.put(names::NumberFormat, format());
        if (below(6) == 0) cell.call(MemberName(u"AddComment"), u"a note");
    }

    static void add_array(const Object& sheet, std::int32_t row, std::int32_t column) {
        sheet.get(names::Range, sheet.get(names::Cells, row, column), sheet.get(names::Cells, row + 1, column + 1))
            .put(names::FormulaArray, u"={1,2;3,4}*2");
    }

    static void name(const Object& book, const char16_t* text, const Variant& cell) {
        book.get(names::Names).call(names::Add, text, cell);
    }

    std::mt19937 random_;
};

void check_equal(const Object& report, const Object& walked) {
    const std::int32_t rows = *walked.get(names::UsedRange).get(names::Rows).get(names::Count).get_if<std::int32_t>();
    const auto part = [&](const Object& sheet) {
        return sheet.get(names::Range, sheet.get(names::Cells, first_report_row, 1),
                         sheet.get(names::Cells, first_report_row + rows, 15));
    };
    const Variant found = part(report);
    const Variant expected = part(walked);
    for (const MemberName& property : {names::Value, names::Formula}) {
        const Variant left = found.get(property);
        const Variant right = expected.get(property);
        REQUIRE(left.array()->size() == right.array()->size());
        for (std::size_t place = 0; place < left.array()->size(); ++place) {
            CAPTURE(place / 15);
            CAPTURE(place % 15);
            CHECK(left.array()->at(place) == right.array()->at(place));
        }
    }
    for (std::int32_t row = first_report_row + 1; row < first_report_row + rows; ++row) {
        for (std::int32_t column = 1; column <= 14; ++column) {
            CAPTURE(row);
            CAPTURE(column);
            const Variant left = report.get(names::Cells, row, column);
            const Variant right = walked.get(names::Cells, row, column);
            CAPTURE(right.get(names::Formula));
            CHECK(left.get(names::NumberFormat) == right.get(names::NumberFormat));
            CHECK(left.get(names::HorizontalAlignment) == right.get(names::HorizontalAlignment));
        }
    }
}

}  // namespace

TEST_CASE("the reports of cells on generated sheets are those of the walk from cell to cell") {
    struct Tool {
        const char16_t* command;
        void (*walk)(const Object&, const WalkedSheet&, const Object&);
    };
    std::size_t records = 0;
    const std::vector<Tool> tools{{u"UTCelInf", bench::walk_cell_information}, {u"UTDatRev", bench::walk_date_review}};
    for (const Tool& tool : tools) {
        for (std::uint32_t seed = 1; seed <= 25; ++seed) {
            CAPTURE(seed);
            ToolRun run;
            const Object book = run.add_book();
            Generator(seed).fill(book);
            const WalkedSheet source{*book.get(names::Name).get_if<std::u16string>(), u"Sheet1"};
            run.call(tool.command, report_on_all());
            const Object written = run.active_sheet();
            const Object walked = run.add_sheet();
            tool.walk(run.application, source, walked);
            check_equal(written, walked);
            records += static_cast<std::size_t>(
                           *walked.get(names::UsedRange).get(names::Rows).get(names::Count).get_if<std::int32_t>()) -
                       1;
        }
    }
    CHECK(records > 500);
    MESSAGE(records << " records compared");
}

}  // namespace qor::calc::tests
