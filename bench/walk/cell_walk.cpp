#include "bench/walk/cell_walk.hpp"

#include <vector>

#include "automation/member_names.hpp"
#include "runtime/conversion.hpp"
#include "runtime/dates.hpp"
#include "runtime/value_tests.hpp"

namespace qor::bench {
namespace {

constexpr std::int32_t heading_row = 5;
constexpr std::int32_t align_left = -4131;

struct Cell {
    const WalkedSheet& source;
    Object from;
    Object to;

    Variant get(const MemberName& property) const { return from.get(property); }
    void write(const Variant& value) const { to.put(names::Value, value); }
    void write_text(const std::u16string& text) const { to.put(names::Value, u"'" + text); }
    bool is_date() const { return get(names::Value).is(Variant::Kind::date); }
};

struct Field {
    std::u16string_view heading;
    void (*write)(const Cell& cell);
};

void write_formula(const Cell& cell) {
    const bool formula = to_boolean(cell.get(names::HasFormula));
    if (formula && !to_boolean(cell.get(names::HasArray))) cell.write_text(to_text(cell.get(names::Formula)));
    if (formula && to_boolean(cell.get(names::HasArray))) {
        cell.write_text(u"{" + to_text(cell.get(names::Formula)) + u"}");
    }
}

void write_formula_as_it_begins(const Cell& cell) {
    if (to_text(cell.get(names::Formula)).starts_with(u'=')) cell.write_text(to_text(cell.get(names::Formula)));
}

void write_part_of_date(const Cell& cell, std::u16string_view interval) {
    if (cell.is_date()) {
        cell.write(date_part(interval, to_date(cell.get(names::Value))));
    } else {
        cell.write(0);
    }
}

const std::vector<Field> shared{
    {u"Workbook Name", [](const Cell& cell) { cell.write(cell.source.workbook_name); }},
    {u"Worksheet Name", [](const Cell& cell) { cell.write(cell.source.sheet_name); }},
    {u"Cell Address",
     [](const Cell& cell) {
         cell.write(
             cell.from.get(names::AddressLocal, named(names::RowAbsolute, false), named(names::ColumnAbsolute, false)));
     }},
    {u"Cell Row", [](const Cell& cell) { cell.write(cell.get(names::Row)); }},
    {u"Cell Column", [](const Cell& cell) { cell.write(cell.get(names::Column)); }},
    {u"Cell Name", [](const Cell& cell) { cell.write(cell.get(names::Name).get(names::Name)); }},
    {u"Cell Data Type", [](const Cell& cell) { cell.write(type_name(cell.get(names::Value))); }},
    {u"Cell Data Format", [](const Cell& cell) { cell.write_text(to_text(cell.get(names::NumberFormat))); }},
    {u"Cell Format Value",
     [](const Cell& cell) {
         attempt([&] { cell.to.put(names::NumberFormat, cell.get(names::NumberFormat)); });
         cell.write(cell.get(names::Value));
     }},
};

std::vector<Field> with_shared(std::vector<Field> own) {
    own.insert(own.begin(), shared.begin(), shared.end());
    return own;
}

const std::vector<Field> cell_information = with_shared({
    {u"Cell Formula", write_formula},
    {u"Cell Value", [](const Cell& cell) { cell.write_text(to_text(cell.get(names::Value))); }},
    {u"Cell Comments", [](const Cell& cell) { cell.write_text(to_text(cell.get(names::Comment).call(names::Text))); }},
});

const std::vector<Field> date_review = with_shared({
    {u"Cell Formula", write_formula_as_it_begins},
    {u"Cell Value",
     [](const Cell& cell) {
         if (cell.is_date()) {
             cell.write_text(to_text(to_long(cell.get(names::Value))));
         } else {
             cell.write(0);
         }
     }},
    {u"Cell Month", [](const Cell& cell) { write_part_of_date(cell, u"m"); }},
    {u"Cell Day", [](const Cell& cell) { write_part_of_date(cell, u"d"); }},
    {u"Cell Year", [](const Cell& cell) { write_part_of_date(cell, u"yyyy"); }},
});

template <class IsReported>
void walk(const Object& application, const WalkedSheet& source, const Object& report, const std::vector<Field>& fields,
          IsReported is_reported) {
    std::int32_t row = heading_row;
    const auto target = [&](std::size_t field) {
        return report.get(names::Cells, row, static_cast<std::int32_t>(field) + 1).object();
    };
    for (std::size_t field = 0; field < fields.size(); ++field) target(field).put(names::Value, fields[field].heading);
    const Object used = application.get(names::Workbooks, source.workbook_name)
                            .get(names::Worksheets, source.sheet_name)
                            .get(names::UsedRange);
    for (const Variant& cell : used.items()) {
        const Variant value = cell.get(names::Value);
        if (value.is_empty() || !is_reported(value)) continue;
        ++row;
        for (std::size_t field = 0; field < fields.size(); ++field) {
            const Object to = target(field);
            attempt([&] { to.put(names::HorizontalAlignment, align_left); });
            attempt([&] { fields[field].write({source, cell.object(), to}); });
        }
    }
}

}  // namespace

void walk_cell_information(const Object& application, const WalkedSheet& source, const Object& report) {
    walk(application, source, report, cell_information, [](const Variant&) { return true; });
}

void walk_date_review(const Object& application, const WalkedSheet& source, const Object& report) {
    walk(application, source, report, date_review, is_date);
}

}  // namespace qor::bench
