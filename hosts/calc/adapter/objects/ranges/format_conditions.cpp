#include <algorithm>
#include <array>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/ConditionEntryType.hpp>
#include <com/sun/star/sheet/ConditionFormatOperator.hpp>
#include <com/sun/star/sheet/FormulaToken.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XConditionEntry.hpp>
#include <com/sun/star/sheet/XConditionalFormat.hpp>
#include <com/sun/star/sheet/XConditionalFormats.hpp>
#include <com/sun/star/sheet/XFormulaParser.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>

#include "automation/host_numbers.hpp"
#include "hosts/calc/adapter/objects/collection.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/service.hpp"

namespace qor::calc {
namespace {

namespace entry_type = css::sheet::ConditionEntryType;
namespace calc_operator = css::sheet::ConditionFormatOperator;
using Entry = Ref<css::sheet::XConditionEntry>;

namespace condition = numbers::condition_type;
namespace comparison = numbers::comparison;

struct Kind {
    std::int32_t calc;
    std::int32_t type;       // as Excel numbers it
    std::int32_t excel = 0;  // the operator, for a cell's value
};
constexpr std::array conditions{
    Kind{calc_operator::BETWEEN, condition::cell_value, comparison::between},
    Kind{calc_operator::NOT_BETWEEN, condition::cell_value, comparison::not_between},
    Kind{calc_operator::EQUAL, condition::cell_value, comparison::equal},
    Kind{calc_operator::NOT_EQUAL, condition::cell_value, comparison::not_equal},
    Kind{calc_operator::GREATER, condition::cell_value, comparison::greater},
    Kind{calc_operator::LESS, condition::cell_value, comparison::less},
    Kind{calc_operator::GREATER_EQUAL, condition::cell_value, comparison::greater_equal},
    Kind{calc_operator::LESS_EQUAL, condition::cell_value, comparison::less_equal},
    Kind{calc_operator::EXPRESSION, condition::expression},
    Kind{calc_operator::DUPLICATE, condition::unique},
    Kind{calc_operator::UNIQUE, condition::unique},
    Kind{calc_operator::TOP_N_ELEMENTS, condition::top},
    Kind{calc_operator::BOTTOM_N_ELEMENTS, condition::top},
    Kind{calc_operator::TOP_N_PERCENT, condition::top},
    Kind{calc_operator::BOTTOM_N_PERCENT, condition::top},
    Kind{calc_operator::ABOVE_AVERAGE, condition::average},
    Kind{calc_operator::BELOW_AVERAGE, condition::average},
    Kind{calc_operator::ABOVE_EQUAL_AVERAGE, condition::average},
    Kind{calc_operator::BELOW_EQUAL_AVERAGE, condition::average},
    Kind{calc_operator::ERROR, condition::error},
    Kind{calc_operator::NO_ERROR, condition::no_error},
    Kind{calc_operator::BEGINS_WITH, condition::text},
    Kind{calc_operator::ENDS_WITH, condition::text},
    Kind{calc_operator::CONTAINS, condition::text},
    Kind{calc_operator::NOT_CONTAINS, condition::text},
};
// Conditions that are no comparison.
constexpr std::array pictures{
    Kind{entry_type::COLORSCALE, condition::colour_scale}, Kind{entry_type::DATABAR, condition::data_bar},
    Kind{entry_type::ICONSET, condition::icon_set}, Kind{entry_type::DATE, condition::period}};

// A condition for the cell, and where its formulas are written for.
struct Condition {
    Entry entry;
    css::table::CellAddress written_for;
};

Kind kind_of(const Entry& entry) {
    const sal_Int32 type = entry->getType();
    if (type != entry_type::CONDITION) return *std::ranges::find(pictures, type, &Kind::calc);
    const auto* kind = std::ranges::find(conditions, get_property<sal_Int32>(entry, "Operator"), &Kind::calc);
    if (kind == conditions.end()) throw Error(ErrorNumber::host_refused);
    return *kind;
}

std::vector<Condition> conditions_of(const Sheet& sheet, const Rectangle& cell) {
    const auto all = get_property<Ref<css::sheet::XConditionalFormats>>(sheet.sheet, "ConditionalFormats");
    std::vector<std::pair<sal_Int32, Condition>> found;
    for (const auto& one : all->getConditionalFormats()) {
        const Ref format{one};
        const auto ranges = get_property<Ref<css::sheet::XSheetCellRanges>>(format, "Range");
        const auto places = ranges->getRangeAddresses();
        const bool holds_cell = std::ranges::any_of(places, [&](const css::table::CellRangeAddress& at) {
            return Rectangle{at.StartColumn, at.StartRow, at.EndColumn, at.EndRow}.contains(cell);
        });
        if (!holds_cell) continue;
        css::table::CellAddress corner{places[0].Sheet, places[0].StartColumn, places[0].StartRow};
        for (const css::table::CellRangeAddress& at : places) {
            corner.Column = std::min(corner.Column, at.StartColumn);
            corner.Row = std::min(corner.Row, at.StartRow);
        }
        const auto id = get_property<sal_Int32>(format, "ID");
        const Ref<css::container::XIndexAccess> entries(format);
        const sal_Int32 count = entries->getCount();
        found.reserve(found.size() + static_cast<std::size_t>(count));
        for (sal_Int32 i = 0; i < count; ++i) {
            found.push_back({id, {Entry(entries->getByIndex(i)), corner}});
        }
    }
    std::ranges::stable_sort(found, {}, [](const auto& one) { return one.first; });
    std::vector<Condition> result;
    result.reserve(found.size());
    for (auto& [id, condition] : found) result.push_back(std::move(condition));
    return result;
}

// Parsed where it was written for in the user's own notation, and printed as the cell sees it in Calc's English one.
std::u16string as_seen_from(const Book& book, const rtl::OUString& formula, const css::table::CellAddress& written_for,
                            const css::table::CellAddress& cell) {
    const auto parser = create_in<css::sheet::XFormulaParser>(book.document, "com.sun.star.sheet.FormulaParser");
    set_property(parser, "CompileEnglish", false);
    const auto tokens = parser->parseFormula(formula, written_for);
    set_property(parser, "CompileEnglish", true);
    return u"=" + from_uno(parser->printFormula(tokens, cell));
}

class FormatCondition final : public OwnedObject<FormatCondition, RangeAreas> {
  public:
    static constexpr std::u16string_view name_of_type = u"FormatCondition";

    FormatCondition(RangeAreas cell, Condition condition)
        : OwnedObject(std::move(cell)), condition_(std::move(condition)) {}

    static const MemberTable<FormatCondition>& members() {
        using F = FormatCondition;
        static const MemberTable<F> table(rows_with({
            property<&F::first_formula>(u"Formula1"),
            property<&F::second_formula>(u"Formula2"),
            property<&F::comparison>(u"Operator"),
            property<&F::type>(u"Type"),
        }));
        return table;
    }

  private:
    std::int32_t type() { return kind_of(condition_.entry).type; }
    std::int32_t comparison() {
        const Kind kind = kind_of(condition_.entry);
        if (kind.type != condition::cell_value) throw Error(ErrorNumber::host_refused);
        return kind.excel;
    }
    std::u16string first_formula() {
        const std::int32_t kind = type();
        if (kind != condition::cell_value && kind != condition::expression) throw Error(ErrorNumber::host_refused);
        return formula("Formula1");
    }
    std::u16string second_formula() {
        if (comparison() > comparison::not_between) throw Error(ErrorNumber::host_refused);
        return formula("Formula2");
    }
    // A constant comes with the equals sign, too.
    std::u16string formula(const char* name) const {
        const auto text = get_property<rtl::OUString>(condition_.entry, name);
        const Rectangle at = owner().rectangle();
        const css::table::CellAddress cell{static_cast<sal_Int16>(owner().sheet.index()), at.left, at.top};
        const Book& book = owner().sheet.book;
        return book.host->translator().to_excel(as_seen_from(book, text, condition_.written_for, cell));
    }

    Condition condition_;
};

// Those of the first cell of a range.
class FormatConditions final : public Collection<FormatConditions, RangeAreas> {
  public:
    static constexpr std::u16string_view name_of_type = u"FormatConditions";

    using Collection::Collection;

    std::vector<Condition> all() const {
        const Rectangle area = owner().rectangle();
        return conditions_of(owner().sheet, {area.left, area.top, area.left, area.top});
    }
    Object made(const Condition& condition) const { return make_object<FormatCondition>(owner(), condition); }
};

}  // namespace

Object make_format_conditions(RangeAreas areas) {
    return make_object<FormatConditions>(std::move(areas));
}

}  // namespace qor::calc
