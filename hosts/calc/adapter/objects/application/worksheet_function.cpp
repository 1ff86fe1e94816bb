#include <algorithm>
#include <array>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XFunctionAccess.hpp>
#include <optional>

#include "hosts/calc/adapter/cells/cell_reader.hpp"
#include "hosts/calc/adapter/ground/cell_query.hpp"
#include "hosts/calc/adapter/objects/owned_object.hpp"
#include "hosts/calc/adapter/objects/ranges/range_object.hpp"
#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "hosts/calc/uno/service.hpp"

namespace qor::calc {
namespace {

const RangeObject* range_in(const Variant& value) {
    return value.is(Variant::Kind::object) ? dynamic_cast<const RangeObject*>(value.object().target()) : nullptr;
}

// What a function takes as one value: of a range its first cell's.
Variant single_value(const Variant& value) {
    Variant result = range_in(value) ? value.get(names::Value) : value;
    if (const Array* array = result.array()) return array->at(0);
    return result;
}

// The largest number among the arguments. In ranges and arrays only numbers count, alone every value has to be one.
class Largest {
  public:
    void take(const Variant& argument) {
        if (const RangeObject* range = range_in(argument)) {
            for (const Cells& cells : range->areas().areas) take_cells(range->areas().sheet, cells);
        } else if (const Array* array = argument.array()) {
            for (const Variant& element : *array) take_element(element);
        } else if (const bool* truth = argument.get_if<bool>()) {
            take_number(*truth ? 1 : 0);
        } else if (!argument.is_missing()) {
            take_number(to_double(argument));
        }
    }

    double result() const { return largest_.value_or(0); }

  private:
    // Blank cells are not read: a whole column has a million.
    void take_cells(const Sheet& sheet, const Cells& cells) {
        namespace flag = css::sheet::CellFlags;
        for (const auto& at : content_places(cells, flag::VALUE | flag::DATETIME | flag::FORMULA)) {
            const Variant values = read_values(
                sheet, cells_at(sheet, {at.StartColumn, at.StartRow, at.EndColumn, at.EndRow}), Typing::plain);
            const Array* table = values.array();
            if (!table) take_element(values);
            for (std::size_t place = 0; table && place < table->size(); ++place) take_element(table->at(place));
        }
    }

    void take_element(const Variant& element) {
        if (element.get_if<ErrorValue>()) throw Error(ErrorNumber::host_refused);
        using Kind = Variant::Kind;
        static constexpr std::array numbers{Kind::integer,      Kind::long_integer, Kind::single,
                                            Kind::double_float, Kind::currency,     Kind::date};
        if (std::ranges::find(numbers, element.kind()) != numbers.end()) take_number(to_double(element));
    }

    void take_number(double number) { largest_ = std::max(largest_.value_or(number), number); }

    std::optional<double> largest_;
};

std::int64_t filled_cells(const RangeAreas& areas) {
    namespace flag = css::sheet::CellFlags;
    std::int64_t count = 0;
    for (const Cells& cells : areas.areas) {
        for (const auto& at : content_places(cells, flag::VALUE | flag::DATETIME | flag::STRING | flag::FORMULA)) {
            count += Rectangle{at.StartColumn, at.StartRow, at.EndColumn, at.EndRow}.cells();
        }
    }
    return count;
}

// What is given, an empty text too; blank cells are not. An argument that is left out is none.
std::int64_t count_of(const Variant& argument) {
    if (const RangeObject* range = range_in(argument)) return filled_cells(range->areas());
    if (argument.is_missing()) return 0;
    const Array* array = argument.array();
    return array ? array->end() - array->begin() - std::ranges::count_if(*array, &Variant::is_empty) : 1;
}

class WorksheetFunctionObject final : public OwnedObject<WorksheetFunctionObject, HostPointer> {
  public:
    static constexpr std::u16string_view name_of_type = u"WorksheetFunction";

    using OwnedObject::OwnedObject;

    static const MemberTable<WorksheetFunctionObject>& members();

  private:
    using Self = WorksheetFunctionObject;

    bool is_logical(const Variant& value) { return single_value(value).get_if<bool>() != nullptr; }

    // The functions on texts and numbers are the office's.
    std::u16string proper(const Variant& text) {
        return value_of_text(u"Proper", "PROPER", {css::uno::Any(to_uno(to_text(single_value(text))))});
    }
    std::u16string replace(const Variant& text, const Variant& start, const Variant& count, const Variant& part) {
        return value_of_text(
            u"Replace", "REPLACE",
            {css::uno::Any(to_uno(to_text(single_value(text)))), css::uno::Any(to_double(single_value(start))),
             css::uno::Any(to_double(single_value(count))), css::uno::Any(to_uno(to_text(single_value(part))))});
    }
    double round_down(const Variant& number, const Variant& digits) {
        return value_of<double>(
            called(u"RoundDown", "ROUNDDOWN",
                   {css::uno::Any(to_double(single_value(number))), css::uno::Any(to_double(single_value(digits)))}));
    }

    std::u16string value_of_text(std::u16string_view member, const char* function,
                                 std::initializer_list<css::uno::Any> arguments) {
        return from_uno(value_of<rtl::OUString>(called(member, function, arguments)));
    }

    css::uno::Any called(std::u16string_view member, const char* function,
                         std::initializer_list<css::uno::Any> arguments) {
        const auto functions =
            create_service<css::sheet::XFunctionAccess>(owner()->context(), "com.sun.star.sheet.FunctionAccess");
        try {
            return functions->callFunction(rtl::OUString::createFromAscii(function), sequence_of(arguments));
        } catch (const css::uno::Exception&) {
            refuse(member);
        }
    }

    // Takes up to thirty arguments of any kind.
    template <class Calculation>
    static Member<Self> of_any_arguments(std::u16string_view name, Calculation calculation) {
        static constexpr std::array<std::u16string_view, 30> parameters{
            u"Arg1",  u"Arg2",  u"Arg3",  u"Arg4",  u"Arg5",  u"Arg6",  u"Arg7",  u"Arg8",  u"Arg9",  u"Arg10",
            u"Arg11", u"Arg12", u"Arg13", u"Arg14", u"Arg15", u"Arg16", u"Arg17", u"Arg18", u"Arg19", u"Arg20",
            u"Arg21", u"Arg22", u"Arg23", u"Arg24", u"Arg25", u"Arg26", u"Arg27", u"Arg28", u"Arg29", u"Arg30"};
        return {name,
                accesses::callable,
                {parameters.begin(), parameters.end()},
                [name, calculation](Self&, Access, std::span<Variant> arguments) -> Variant {
                    if (arguments.empty()) throw Error(ErrorNumber::argument_not_optional);
                    Variant result;
                    if (attempt([&] { result = calculation(arguments); }) != 0) refuse(name);
                    return result;
                }};
    }

    [[noreturn]] static void refuse(std::u16string_view member) {
        throw Error(ErrorNumber::host_refused, {},
                    u"Unable to get the " + std::u16string(member) + u" property of the WorksheetFunction class");
    }
};

const MemberTable<WorksheetFunctionObject>& WorksheetFunctionObject::members() {
    using W = WorksheetFunctionObject;
    static const MemberTable<W> table(rows_with({
        of_any_arguments(u"CountA",
                         [](std::span<Variant> arguments) {
                             std::int64_t count = 0;
                             for (const Variant& argument : arguments) count += count_of(argument);
                             return static_cast<double>(count);
                         }),
        method<&W::is_logical>(u"IsLogical", {u"Arg1"}),
        of_any_arguments(u"Max",
                         [](std::span<Variant> arguments) {
                             Largest largest;
                             for (const Variant& argument : arguments) largest.take(argument);
                             return largest.result();
                         }),
        method<&W::proper>(u"Proper", {u"Arg1"}),
        method<&W::replace>(u"Replace", {u"Arg1", u"Arg2", u"Arg3", u"Arg4"}),
        method<&W::round_down>(u"RoundDown", {u"Arg1", u"Arg2"}),
    }));
    return table;
}

}  // namespace

Object make_worksheet_function(HostPointer host) {
    return make_object<WorksheetFunctionObject>(std::move(host));
}

}  // namespace qor::calc
